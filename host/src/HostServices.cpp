// The records of the platform's application services, read by scripts and reset with the
// state that made them.
#include "host/src/HostServices.h"

#include <vector>

#include <lua.hpp>

#include "os/LaunchServices.h"
#include "vex/uisupport/Alert.h"
#include "zeblua/uisupport/src/LuaAlert.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RegistryTables.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/ui/Theme.h"
#include "zebui/utility/MonitorInfo.h"
#include "zebui/utility/OS_Menu.h"

namespace zebhost {

namespace {

using Rect32 = zebcore::geom::RectT<int>;

const char sServicesResetKey = 0;

// One script's services leave nothing behind for the next state.
int resetServices(lua_State*) {
    zeblua::uisupport::Alert::sSlientAlerts = false;
    vex::uisupport::ClearShownAlerts();
    zebui::ui::ClearMenuRuns();
    os::ClearOpenedURLs();
    zebui::utility::MonitorInfo::ResetMonitorRects();
    zebui::ui::Theme::ResetThemes();
    return 0;
}

void setField(lua_State* L, const char* name, lua_Number value) {
    lua_pushnumber(L, value);
    lua_setfield(L, -2, name);
}

void setField(lua_State* L, const char* name, const std::string& value) {
    lua_pushlstring(L, value.data(), value.size());
    lua_setfield(L, -2, name);
}

int hostShownAlerts(lua_State* L) {
    const std::vector<vex::uisupport::ShownAlert>& alerts = vex::uisupport::ShownAlerts();
    lua_createtable(L, static_cast<int>(alerts.size()), 0);
    for (size_t i = 0; i < alerts.size(); ++i) {
        lua_createtable(L, 0, 6);
        setField(L, "type", alerts[i].type);
        setField(L, "icon", alerts[i].icon);
        setField(L, "first", alerts[i].first);
        setField(L, "second", alerts[i].second);
        setField(L, "parent", alerts[i].parentId);
        setField(L, "response", alerts[i].response);
        lua_rawseti(L, -2, static_cast<int>(i + 1));
    }
    return 1;
}

int hostLastMenuRun(lua_State* L) {
    const zebui::ui::MenuRunRecord& run = zebui::ui::GetLastMenuRun();
    lua_createtable(L, 0, 5);
    setField(L, "runs", run.runs);
    setField(L, "node", run.nodeId);
    setField(L, "size", run.menuSize);
    setField(L, "answer", run.answer);
    lua_createtable(L, 0, 4);
    setField(L, "left", run.place.left);
    setField(L, "top", run.place.top);
    setField(L, "width", run.place.width);
    setField(L, "height", run.place.height);
    lua_setfield(L, -2, "place");
    return 1;
}

int hostOpenedURLs(lua_State* L) {
    const std::vector<std::string>& urls = os::OpenedURLs();
    lua_createtable(L, static_cast<int>(urls.size()), 0);
    for (size_t i = 0; i < urls.size(); ++i) {
        lua_pushlstring(L, urls[i].data(), urls[i].size());
        lua_rawseti(L, -2, static_cast<int>(i + 1));
    }
    return 1;
}

// A rectangle from {left, top, width, height} or the named fields.
int rectPart(lua_State* L, int rect, int position, const char* name) {
    lua_rawgeti(L, rect, position);
    if (lua_isnil(L, -1)) {
        lua_pop(L, 1);
        lua_getfield(L, rect, name);
    }
    const int value = static_cast<int>(luaL_checkinteger(L, -1));
    lua_pop(L, 1);
    return value;
}

constexpr int kMaxMonitors = 16;

void setMonitors(const Rect32* rects, int count) {
    zebui::utility::MonitorInfo::SetMonitorRects(std::vector<Rect32>(rects, rects + count));
}

int hostSetMonitors(lua_State* L) {
    if (lua_isnoneornil(L, 1)) {
        zebui::utility::MonitorInfo::ResetMonitorRects();
        return 0;
    }
    luaL_checktype(L, 1, LUA_TTABLE);
    const int count = static_cast<int>(lua_objlen(L, 1));
    luaL_argcheck(L, count <= kMaxMonitors, 1, "at most 16 monitors");
    Rect32 rects[kMaxMonitors];
    for (int i = 0; i < count; ++i) {
        lua_rawgeti(L, 1, i + 1);
        luaL_checktype(L, -1, LUA_TTABLE);
        const int rect = lua_gettop(L);
        rects[i] = Rect32(rectPart(L, rect, 1, "left"), rectPart(L, rect, 2, "top"),
                          rectPart(L, rect, 3, "width"), rectPart(L, rect, 4, "height"));
        lua_pop(L, 1);
    }
    return zeblua::utility::RunNative(L, "zebhost.setMonitors", [&] {
        setMonitors(rects, count);
        return 0;
    });
}

int hostSetAlertsSilent(lua_State* L) {
    SetAlertsAreSilent(lua_toboolean(L, 1) != 0);
    return 0;
}

const luaL_Reg kServiceFunctions[] = {
    {"shownAlerts", hostShownAlerts},         {"lastMenuRun", hostLastMenuRun},
    {"openedURLs", hostOpenedURLs},           {"setMonitors", hostSetMonitors},
    {"setAlertsSilent", hostSetAlertsSilent}, {nullptr, nullptr},
};

}  // namespace

void OpenHostServices(lua_State* L) {
    zeblua::utility::PushOrMakeRegistryTable(L, &sServicesResetKey, nullptr, resetServices);
    lua_pop(L, 1);
    zeblua::utility::RegisterFunctionModule(L, "zebhost", kServiceFunctions);
    lua_pop(L, 1);
}

}  // namespace zebhost

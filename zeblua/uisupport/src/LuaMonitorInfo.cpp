// zebMonitorInfo: a proxy owns one monitor query object and deletes it when collected.
#include "zeblua/uisupport/src/LuaMonitorInfo.h"

#include <lua.hpp>

#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/utility/MonitorInfo.h"

namespace zeblua {
namespace ui {
namespace utility {

namespace {

constexpr char kMonitorClass[] = "zebMonitorInfo";
constexpr char kMonitorMetaTable[] = "zeblua.zebMonitorInfo";

using zebui::utility::OS_MonitorInfo;
using Rect32 = zebcore::geom::RectT<int>;

struct MonitorProxy {
    using Object = OS_MonitorInfo;
    static constexpr const char* kMetatableName = kMonitorMetaTable;
};

// The object of the proxy at 1. Null, and no value from the caller, when the argument is
// no userdata at all or its object was collected; a userdata of another type raises the
// bad-argument error.
OS_MonitorInfo* liveInfo(lua_State* L) {
    return zeblua::utility::TestProxyPointer<OS_MonitorInfo>(L, 1, kMonitorMetaTable);
}

// -- info = zebMonitorInfo.NewMonitorInfo([activeOnly])
int monitorNew(lua_State* L) {
    const bool activeOnly = lua_toboolean(L, 1) != 0;  // nil or missing: false
    OS_MonitorInfo** block = zeblua::utility::PushPointerProxy<OS_MonitorInfo>(
        L, nullptr, kMonitorMetaTable, luaopen_zeblua_zebMonitorInfo);
    return zeblua::utility::RunNative(L, "NewMonitorInfo", [&] {
        *block = new OS_MonitorInfo(activeOnly);
        return 1;
    });
}

// -- count = info:GetMonitorCount()
int monitorGetCount(lua_State* L) {
    const OS_MonitorInfo* info = liveInfo(L);
    if (!info) return 0;
    lua_pushinteger(L, info->GetMonitorCount());
    return 1;
}

// -- rect = info:GetMonitorRect(index)
// index counts from 1; no value out of range, 0 and below included.
int monitorGetRect(lua_State* L) {
    const OS_MonitorInfo* info = liveInfo(L);
    if (!info) return 0;
    const lua_Integer index = lua_tointeger(L, 2);
    Rect32 rect;
    if (!info->GetMonitorRect(static_cast<unsigned int>(index - 1), rect)) return 0;
    return inkwell::PushRect32ToLua(L, rect);
}

// -- rect = info:GetMonitorRectFromRect(rect)
int monitorGetRectFromRect(lua_State* L) {
    if (!liveInfo(L)) return 0;
    Rect32 given;
    inkwell::GetRect32FromLua(L, 2, given);    // may run a field's __index
    const OS_MonitorInfo* info = liveInfo(L);  // which may have collected the proxy
    if (!info) return 0;
    return inkwell::PushRect32ToLua(L, info->GetMonitorRectFromRect(given));
}

const luaL_Reg kMonitorFunctions[] = {
    {"NewMonitorInfo", monitorNew},
    {"GetMonitorCount", monitorGetCount},
    {"GetMonitorRect", monitorGetRect},
    {"GetMonitorRectFromRect", monitorGetRectFromRect},
    {nullptr, nullptr},
};

const luaL_Reg kMonitorMethods[] = {
    {"__gc", zeblua::utility::DeleteObjectGC<MonitorProxy>},
    {"GetMonitorCount", monitorGetCount},
    {"GetMonitorRect", monitorGetRect},
    {"GetMonitorRectFromRect", monitorGetRectFromRect},
    {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaMonitorInfoClassName = kMonitorClass;
const char* const kZebLuaMonitorInfoMetaTableName = kMonitorMetaTable;

int luaopen_zebluaMonitorInfo(lua_State* L) {
    zeblua::utility::RegisterClassModule(L, kMonitorMetaTable, kMonitorMethods, kMonitorClass,
                                         kMonitorFunctions);
    return 1;
}

}  // namespace utility
}  // namespace ui
}  // namespace zeblua

extern "C" int luaopen_zeblua_zebMonitorInfo(lua_State* L) {
    return zeblua::ui::utility::luaopen_zebluaMonitorInfo(L);
}

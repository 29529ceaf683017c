// The tab well wrapper: tabs, the front-most tab, the action function and its constants.
#include "zeblua/ui/src/LuaUI_TabWellWrapper.h"

#include <string>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "zebcore/utility/Strings.h"
#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaUI_TabWell.h"
#include "zeblua/utility/src/LuaResultString.h"
#include "zebui/controls/UI_TabItem.h"
#include "zebui/controls/UI_TabWell.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_TabWell;

struct TabActionConstant {
    const char* name;
    int value;
};

const TabActionConstant kTabActionConstants[] = {
    {"kTabItemAction_Click", zebui::controls::kTabItemAction_Click},
    {"kTabItemFrameDrag_Click", zebui::controls::kTabItemFrameDrag_Click},
    {"kTabItemAction_Close", zebui::controls::kTabItemAction_Close},
    {"kTabItemAction_MultipanedPopup", zebui::controls::kTabItemAction_MultipanedPopup},
    {"kTabItemAction_FlyoutMenu", zebui::controls::kTabItemAction_FlyoutMenu},
    {"kTabItemAction_FrameDrag", zebui::controls::kTabItemAction_FrameDrag},
    {"kTabItemAction_BecomeFrontmost", zebui::controls::kTabItemAction_BecomeFrontmost},
    {"kTabItemAction_BecomeNonFrontmost", zebui::controls::kTabItemAction_BecomeNonFrontmost},
    {"kTabItemAction_ToggleLock", zebui::controls::kTabItemAction_ToggleLock},
    {"kTabItemAction_ContextMenu", zebui::controls::kTabItemAction_ContextMenu},
    {"kTabItemAction_WheelScroll", zebui::controls::kTabItemAction_WheelScroll},
};

// -- well:AddTab(tab, text, closable, frontmost): inserted at tab (from 0). Making it the
// front-most runs the action function, so the well is held.
int lua_AddTab(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const int index = static_cast<int>(luaL_checkinteger(L, 2));
    size_t length = 0;
    const char* text = luaL_checklstring(L, 3, &length);
    const bool closable = lua_toboolean(L, 4) != 0;
    const bool frontmost = lua_toboolean(L, 5) != 0;
    return CallOnControl<UI_TabWell>(L, "AddTab", [&](UI_TabWell& well) {
        well.AddTab(index, zebcore::utility::UTF8to16(std::string(text, length)), closable,
                    frontmost, false);
    });
}

// -- well:RemoveTab(tab)
int lua_RemoveTab(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const int index = static_cast<int>(luaL_checkinteger(L, 2));
    return CallOnControl<UI_TabWell>(L, "RemoveTab",
                                     [&](UI_TabWell& well) { well.RemoveTab(index); });
}

// -- well:SetFrontmost(tab): a tab out of range (taken as unsigned) is ignored. The
// action function hears of the change, so the well is held.
int lua_SetFrontmost(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Integer index = luaL_checkinteger(L, 2);
    return CallOnControl<UI_TabWell>(L, "SetFrontmost", [&](UI_TabWell& well) {
        const zebui::ui::UI_SubView* tabs = well.GetTabsContainer();
        if (!tabs || static_cast<unsigned long>(index) >= tabs->ChildSize()) return;
        well.SetFrontmost(static_cast<int>(index));
    });
}

// -- well:SetShowTabsOnly([flag]): no argument clears the flag.
int lua_SetShowTabsOnly(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool tabsOnly = lua_toboolean(L, 2) != 0;
    return CallOnControl<UI_TabWell>(L, "SetShowTabsOnly",
                                     [&](UI_TabWell& well) { well.SetShowTabsOnly(tabsOnly); });
}

// -- text = well:GetTabItemText(tab): nothing for a tab out of range.
int lua_GetTabItemText(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const int index = static_cast<int>(luaL_checkinteger(L, 2));
    if (!CastControlNode<UI_TabWell>(L, 1)) return 0;
    std::string* text = utility::PushResultString(L);
    UI_TabWell* well = CastControlNode<UI_TabWell>(L, 1);  // the push may have collected
    const bool found = well && utility::RunNative(L, "GetTabItemText", [&] {
                           const boost::intrusive_ptr<UI_TabWell> held(well);
                           const zebui::controls::UI_TabItem* tab = held->GetTabItem(index);
                           if (tab) *text = zebcore::utility::UTF16to8(tab->GetText());
                           return tab != nullptr;
                       });
    if (!found) return 0;
    lua_pushlstring(L, text->data(), text->size());
    return 1;
}

// -- well:SetTabItemActionFunction(fn): fn(action, tab [, rect]) for each tab action of a
// well that zebcontrols made. A later function replaces it.
int lua_TabItemActionFunction(lua_State* L) {
    AddCallbackFunction<LuaUI_TabWell>(
        L, "SetTabItemActionFunction", [](LuaUI_TabWell& well, const LuaFunctionEntry& entry) {
            well.SetActionHookRegistryIndex(entry.state, entry.reference);
        });
    return 0;
}

}  // namespace

const luaL_Reg LuaUI_TabWellWrapper::methods[] = {
    {"AddTab", lua_AddTab},
    {"RemoveTab", lua_RemoveTab},
    {"SetFrontmost", lua_SetFrontmost},
    {"SetShowTabsOnly", lua_SetShowTabsOnly},
    {"GetTabItemText", lua_GetTabItemText},
    {"SetTabItemActionFunction", lua_TabItemActionFunction},
    {nullptr, nullptr},
};

const char* LuaUI_TabWellWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebTabWell";
    return sMetatableName;
}

void LuaUI_TabWellWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
    for (const TabActionConstant& constant : kTabActionConstants) {
        lua_pushinteger(L, constant.value);
        lua_setfield(L, -2, constant.name); /* metatable.name = value */
    }
}

}  // namespace ui
}  // namespace zeblua

// The popup menu wrapper.
#include "zeblua/ui/src/LuaUI_PopupWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zeblua/ui/src/LuaUI_ButtonWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_Popup.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_Popup;

// -- popup:AddItem(text): one more choice at the end of the menu.
int controlAddItem(lua_State* L) {
    return SetTextOfControl<UI_Popup>(
        L, "AddItem",
        [](UI_Popup& popup, const zebcore::UTF16String& item) { popup.AddItem(item); });
}

// -- popup:DeleteAllItems(): the value string stays.
int controlDeleteAllItems(lua_State* L) {
    return CallOnControl<UI_Popup>(L, "DeleteAllItems",
                                   [](UI_Popup& popup) { popup.DeleteAllItems(); });
}

// -- text = popup:GetValueString()
int controlGetValueString(lua_State* L) {
    return TextOfControl<UI_Popup>(L, "GetValueString",
                                   [](UI_Popup& popup) { return popup.GetValueString(); });
}

// -- popup:SetValueString(text): a change of value, so the change function runs before
// this returns.
int controlSetValueString(lua_State* L) {
    return SetTextOfControl<UI_Popup>(L, "SetValueString",
                                      [](UI_Popup& popup, const zebcore::UTF16String& text) {
                                          popup.SetValueString(text, true);
                                      });
}

// -- tight = popup:GetTightMargins()
int controlGetTightMargins(lua_State* L) {
    return AnswerOfControl<UI_Popup>(L, "GetTightMargins",
                                     [](UI_Popup& popup) { return popup.GetTightMargins(); });
}

// -- popup:SetTightMargins([flag]): no argument sets them, nil clears them.
int controlSetTightMargins(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool tight = FlagDefaultTrue(L, 2);
    return CallOnControl<UI_Popup>(L, "SetTightMargins",
                                   [tight](UI_Popup& popup) { popup.SetTightMargins(tight); });
}

}  // namespace

const luaL_Reg LuaUI_PopupWrapper::methods[] = {
    {"AddItem", controlAddItem},
    {"DeleteAllItems", controlDeleteAllItems},
    {"GetValueString", controlGetValueString},
    {"SetValueString", controlSetValueString},
    {"GetTightMargins", controlGetTightMargins},
    {"SetTightMargins", controlSetTightMargins},
    {nullptr, nullptr},
};

const char* LuaUI_PopupWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_Popup";
    return sMetatableName;
}

void LuaUI_PopupWrapper::RegisterMethods(lua_State* L) {
    LuaUI_ButtonWrapper::RegisterMethods(L);
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

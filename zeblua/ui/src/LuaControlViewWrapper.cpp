// The control view wrapper: enabling, the unknown value, change notification, focus drawing.
#include "zeblua/ui/src/LuaControlViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/ControlChangedBinder.h"
#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"
#include "zebui/controls/UI_ControlView.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_ControlView;

// -- control:SetEnabled([flag]): no argument enables, nil disables.
// Losing the focus on the way runs focus functions, so the control is held.
int controlSetEnabled(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool enabled = FlagDefaultTrue(L, 2);
    return CallOnControl<UI_ControlView>(
        L, "SetEnabled", [&](UI_ControlView& control) { control.SetDisabled(!enabled); });
}

// -- enabled = control:GetEnabled()
int controlGetEnabled(lua_State* L) {
    return AnswerOfControl<UI_ControlView>(
        L, "GetEnabled", [](UI_ControlView& control) { return !control.IsDisabled(); });
}

// -- control:SetValueUnknown(): a change of value when the value was known, so the change
// function runs before this returns.
int controlSetValueUnknown(lua_State* L) {
    return CallOnControl<UI_ControlView>(
        L, "SetValueUnknown", [](UI_ControlView& control) { control.SetValueUnknown(); });
}

// -- unknown = control:IsValueUnknown()
int controlIsValueUnknown(lua_State* L) {
    return AnswerOfControl<UI_ControlView>(
        L, "IsValueUnknown", [](UI_ControlView& control) { return control.IsValueUnknown(); });
}

// -- ok = control:NotifyWhenChanged(fn): fn() with no arguments after each change of the
// value, for as long as the node lives, whatever becomes of this wrapper. Only the first
// function given to a control ever runs; a later one is kept and never called.
int controlNotifyWhenChanged(lua_State* L) {
    return AddNotifyFunction<UI_ControlView>(L, "NotifyWhenChanged",
                                             LuaNotifyWhenChanged<UI_ControlView>);
}

// -- suppressed = control:GetSuppressFocusDrawing()
// Answers the opposite of the control's flag, so a script reads back the opposite of what
// SetSuppressFocusDrawing set: scripts written against it may count on that.
int controlGetSuppressFocusDrawing(lua_State* L) {
    return AnswerOfControl<UI_ControlView>(
        L, "GetSuppressFocusDrawing",
        [](UI_ControlView& control) { return !control.GetSuppressFocusDrawing(); });
}

// -- control:SetSuppressFocusDrawing([flag]): no argument suppresses, nil does not.
int controlSetSuppressFocusDrawing(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool suppress = FlagDefaultTrue(L, 2);
    return CallOnControl<UI_ControlView>(
        L, "SetSuppressFocusDrawing",
        [&](UI_ControlView& control) { control.SetSuppressFocusDrawing(suppress); });
}

}  // namespace

const luaL_Reg LuaControlViewWrapper::methods[] = {
    {"SetEnabled", controlSetEnabled},
    {"GetEnabled", controlGetEnabled},
    {"SetValueUnknown", controlSetValueUnknown},
    {"IsValueUnknown", controlIsValueUnknown},
    {"NotifyWhenChanged", controlNotifyWhenChanged},
    {"GetSuppressFocusDrawing", controlGetSuppressFocusDrawing},
    {"SetSuppressFocusDrawing", controlSetSuppressFocusDrawing},
    {nullptr, nullptr},
};

const char* LuaControlViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebControlView";
    return sMetatableName;
}

void LuaControlViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The text control set: the label of every control that shows a text.
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"

#include <lua.hpp>

#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_TextControlBase.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_TextControlBase;

// -- control:SetLabelText(text)
int controlSetLabelText(lua_State* L) {
    return SetTextOfControl<UI_TextControlBase>(
        L, "SetLabelText", [](UI_TextControlBase& control, const zebcore::UTF16String& text) {
            control.SetLabelText(text);
        });
}

// -- text = control:GetLabelText()
int controlGetLabelText(lua_State* L) {
    return TextOfControl<UI_TextControlBase>(
        L, "GetLabelText", [](UI_TextControlBase& control) { return control.GetLabelText(); });
}

// -- control:SetFontSizeId(id): the toolkit's numbering.
int controlSetFontSizeId(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const auto id = static_cast<int>(luaL_checkinteger(L, 2));
    return CallOnControl<UI_TextControlBase>(
        L, "SetFontSizeId", [id](UI_TextControlBase& control) { control.SetFontSizeId(id); });
}

// -- rect = control:GetLabelTextRect(): in the control's own coordinates.
int controlGetLabelTextRect(lua_State* L) {
    return PushControlAnswer<UI_TextControlBase>(
        L, "GetLabelTextRect",
        [](UI_TextControlBase& control) { return control.GetLabelTextRect(); },
        inkwell::PushRectF32ToLua);
}

// -- control:SetTextAlignment(alignment): the toolkit's TextAlignment, any integer kept.
int controlSetTextAlignment(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const auto alignment = static_cast<zebui::inkwell::TextAlignment>(luaL_checkinteger(L, 2));
    return CallOnControl<UI_TextControlBase>(
        L, "SetTextAlignment",
        [alignment](UI_TextControlBase& control) { control.SetTextAlignment(alignment); });
}

}  // namespace

const luaL_Reg LuaTextControlBaseWrapper::methods[] = {
    {"SetLabelText", controlSetLabelText},         {"GetLabelText", controlGetLabelText},
    {"SetFontSizeId", controlSetFontSizeId},       {"GetLabelTextRect", controlGetLabelTextRect},
    {"SetTextAlignment", controlSetTextAlignment}, {nullptr, nullptr},
};

void LuaTextControlBaseWrapper::RegisterMethods(lua_State* L) {
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The static text wrapper.
#include "zeblua/ui/src/LuaStaticTextWrapper.h"

#include <lua.hpp>

#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/LuaControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_StaticText.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_StaticText;

// -- text:SetStringValue(text): a change of value when the text differs.
int statictextSetStringValue(lua_State* L) {
    return SetTextOfControl<UI_StaticText>(
        L, "SetStringValue",
        [](UI_StaticText& control, const zebcore::UTF16String& text) { control.SetValue(text); });
}

// -- text = text:GetStringValue()
int statictextGetStringValue(lua_State* L) {
    return TextOfControl<UI_StaticText>(L, "GetStringValue",
                                        [](UI_StaticText& control) { return control.GetValue(); });
}

// -- text:SetCustomTextColor(colour): a colour table, in place of the theme's text colour.
int controlSetCustomTextColor(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    zebui::inkwell::ColorRGBA colour(0, 0, 0, 0);
    inkwell::GetColorRGBAFromLua(L, 2, colour);  // may run a field's __index
    return CallOnControl<UI_StaticText>(L, "SetCustomTextColor", [&](UI_StaticText& control) {
        control.SetCustomTextColor(colour, false);
    });
}

}  // namespace

const luaL_Reg LuaStaticTextWrapper::methods[] = {
    {"SetStringValue", statictextSetStringValue},
    {"GetStringValue", statictextGetStringValue},
    {"SetCustomTextColor", controlSetCustomTextColor},
    {"SetCustomFontSize", SetCustomFontSizeOf<UI_StaticText>},
    {nullptr, nullptr},
};

const char* LuaStaticTextWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebStaticText";
    return sMetatableName;
}

void LuaStaticTextWrapper::RegisterMethods(lua_State* L) {
    LuaControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

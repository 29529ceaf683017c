// The disclosure triangle button wrapper: the text button set and the twirl's duration.
#include "zeblua/ui/src/LuaUI_DisclosureButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_TextButtonWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_DisclosureTriangleButton.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_DisclosureTriangleButton;

// -- triangle:SetTwirlDuration(seconds)
int controlSetTwirlDuration(lua_State* L) {
    return SetNumberOfControl<UI_DisclosureTriangleButton>(
        L, "SetTwirlDuration", [](UI_DisclosureTriangleButton& triangle, lua_Number seconds) {
            triangle.SetTwirlDuration(seconds);
        });
}

}  // namespace

const luaL_Reg LuaUI_DisclosureButtonWrapper::methods[] = {
    {"SetTwirlDuration", controlSetTwirlDuration},
    {nullptr, nullptr},
};

const char* LuaUI_DisclosureButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_DisclosureTriangleButton";
    return sMetatableName;
}

void LuaUI_DisclosureButtonWrapper::RegisterMethods(lua_State* L) {
    LuaUI_TextButtonWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

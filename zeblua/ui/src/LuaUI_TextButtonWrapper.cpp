// The text button wrapper: the button and text control sets and the label's indent.
#include "zeblua/ui/src/LuaUI_TextButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zeblua/ui/src/LuaUI_ButtonWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_TextButton.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_TextButton;

// -- button:SetTextIndent(units)
int controlSetTextIndent(lua_State* L) {
    return SetNumberOfControl<UI_TextButton>(L, "SetTextIndent",
                                             [](UI_TextButton& button, lua_Number indent) {
                                                 button.SetTextIndent(static_cast<float>(indent));
                                             });
}

}  // namespace

const luaL_Reg LuaUI_TextButtonWrapper::methods[] = {
    {"SetTextIndent", controlSetTextIndent},
    {nullptr, nullptr},
};

const char* LuaUI_TextButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_TextButton";
    return sMetatableName;
}

void LuaUI_TextButtonWrapper::RegisterMethods(lua_State* L) {
    LuaUI_ButtonWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

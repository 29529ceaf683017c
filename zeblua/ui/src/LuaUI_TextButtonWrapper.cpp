// The text button wrapper.
#include "zeblua/ui/src/LuaUI_TextButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zeblua/ui/src/LuaUI_ButtonWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_TextButtonWrapper::methods[] = {
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

// The button wrapper.
#include "zeblua/ui/src/LuaUI_ButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_ButtonWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_ButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebButton";
    return sMetatableName;
}

void LuaUI_ButtonWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

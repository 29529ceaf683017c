// The window wrapper.
#include "zeblua/ui/src/LuaOS_WindowWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_NodeWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaOS_WindowWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaOS_WindowWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebOS_Window";
    return sMetatableName;
}

void LuaOS_WindowWrapper::RegisterMethods(lua_State* L) {
    LuaUI_NodeWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

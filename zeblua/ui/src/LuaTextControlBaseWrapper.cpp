// The text control set.
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"

#include <lua.hpp>

namespace zeblua {
namespace ui {

const luaL_Reg LuaTextControlBaseWrapper::methods[] = {
    {nullptr, nullptr},
};

void LuaTextControlBaseWrapper::RegisterMethods(lua_State* L) {
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The interactive control view wrapper.
#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaControlViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaInteractiveControlViewWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaInteractiveControlViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebInteractiveControlView";
    return sMetatableName;
}

void LuaInteractiveControlViewWrapper::RegisterMethods(lua_State* L) {
    LuaControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

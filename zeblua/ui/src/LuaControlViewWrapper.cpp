// The control view wrapper.
#include "zeblua/ui/src/LuaControlViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaControlViewWrapper::methods[] = {
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

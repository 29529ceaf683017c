// The divider wrapper.
#include "zeblua/ui/src/LuaDividerWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaControlViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaDividerWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaDividerWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebDivider";
    return sMetatableName;
}

void LuaDividerWrapper::RegisterMethods(lua_State* L) {
    LuaControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

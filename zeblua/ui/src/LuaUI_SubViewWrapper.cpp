// The sub view wrapper.
#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_NodeWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_SubViewWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_SubViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebSubView";
    return sMetatableName;
}

void LuaUI_SubViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_NodeWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

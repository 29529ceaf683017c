// The tab well wrapper.
#include "zeblua/ui/src/LuaUI_TabWellWrapper.h"

#include <lua.hpp>

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_TabWellWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_TabWellWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebTabWell";
    return sMetatableName;
}

void LuaUI_TabWellWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

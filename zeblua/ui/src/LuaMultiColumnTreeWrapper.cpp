// The multi-column tree wrapper.
#include "zeblua/ui/src/LuaMultiColumnTreeWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaMultiColumnTreeWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaMultiColumnTreeWrapper::GetMetatableName() {
    static const char* const sMetatableName = "Zeb.MultiColumnTree";
    return sMetatableName;
}

void LuaMultiColumnTreeWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

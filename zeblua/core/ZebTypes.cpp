// zebTypes: which platform the library was built for.
#include "zeblua/core/ZebTypes.h"

#include <lua.hpp>

#include "zeblua/utility/src/LuaModule.h"

namespace {

const luaL_Reg kZebTypesMethods[] = {{nullptr, nullptr}};
const luaL_Reg kZebTypesFunctions[] = {{nullptr, nullptr}};

}  // namespace

extern "C" int luaopen_zeblua_zebcore_zebTypes(lua_State* L) {
    zeblua::utility::RegisterClassModule(L, "zeblua.core.zebTypes", kZebTypesMethods, "zebTypes",
                                         kZebTypesFunctions);
    zeblua::utility::SetIntegerConstant(L, "ZEB_OS_Flag_WIN", 1);
    zeblua::utility::SetIntegerConstant(L, "ZEB_OS_Flag_MAC", 2);
    // The flag of the platform the library was built for.
    zeblua::utility::SetIntegerConstant(L, "ZEB_OS_Flag_THIS_ONE", 2);
    zeblua::utility::SetIntegerConstant(L, "ZEB_OS_Flag_ALL", -1);
    return 1;
}

// PLACEHOLDER until the numeric library lands: registers an empty numeric table.
#include "zeblua/numeric/src/Numeric.h"

#include <lua.hpp>

namespace zeblua {
namespace numeric {

const char* const kLuaNumericLibName = "numeric";

namespace {
const luaL_Reg funcs[] = {{nullptr, nullptr}};
}

void OpenLuaNumeric(lua_State* L) {
    lua_checkstack(L, 2);
    lua_createtable(L, 0, 0);
    luaL_register(L, nullptr, funcs);
    lua_setfield(L, -2, kLuaNumericLibName);
}

}  // namespace numeric
}  // namespace zeblua

// PLACEHOLDER until the string library lands: registers an empty zebString table.
#include "zeblua/string/src/ZebString.h"

#include <lua.hpp>

namespace zeblua {
namespace string {

const char* const kZebLuaStringLibName = "zebString";

namespace {
const luaL_Reg string_funcs[] = {{nullptr, nullptr}};
}

int luaopen_zebluaStrings(lua_State* L) {
    lua_checkstack(L, 2);
    luaL_register(L, kZebLuaStringLibName, string_funcs);
    return 1;
}

}  // namespace string
}  // namespace zeblua

extern "C" int luaopen_zeblua_zebString(lua_State* L) {
    return zeblua::string::luaopen_zebluaStrings(L);
}

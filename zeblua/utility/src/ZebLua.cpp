// Root registration of the library.
#include "zeblua/utility/src/ZebLua.h"

#include <lua.hpp>

#include "zeblua/numeric/src/Numeric.h"
#include "zeblua/string/src/ZebString.h"
#include "zeblua/utility/src/MainThread.h"

namespace zeblua {
namespace {

const luaL_Reg kRootFunctions[] = {{nullptr, nullptr}};

void registerRoot(lua_State* L) {
    utility::RecordMainThread(L);
    luaL_register(L, "zeblua", kRootFunctions); /* global zeblua, no functions of its own */
    numeric::OpenLuaNumeric(L);                 /* zeblua.numeric */
    string::luaopen_zebluaStrings(L);           /* global zebString, on top */
}

}  // namespace

int InitLua(lua_State* L) {
    registerRoot(L);
    return 1;
}

int InitEmbeddedCodeLoader(lua_State* L) {
    luaL_loadstring(L, "table.insert(package.loaders, require 'zeblua.EmbeddedCodeLoader')");
    return lua_pcall(L, 0, 0, 0);
}

}  // namespace zeblua

extern "C" int luaopen_zeblua(lua_State* L) {
    zeblua::InitLua(L);
    return 1;
}

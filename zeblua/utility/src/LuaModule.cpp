// The class and function registration forms.
#include "zeblua/utility/src/LuaModule.h"

#include <lua.hpp>

#include "zeblua/utility/src/MainThread.h"

namespace zeblua {
namespace utility {

void RegisterClassModule(lua_State* L, const char* metatableName, const luaL_Reg* methods,
                         const char* libraryName, const luaL_Reg* functions) {
    RecordMainThread(L);
    luaL_newmetatable(L, metatableName); /* registry[metatableName] = mt */
    lua_pushvalue(L, -1);
    lua_setfield(L, -2, "__index"); /* mt.__index = mt */
    luaL_register(L, nullptr, methods);
    luaL_register(L, libraryName, functions); /* mt, library */
}

void RegisterFunctionModule(lua_State* L, const char* libraryName, const luaL_Reg* functions) {
    RecordMainThread(L);
    luaL_register(L, libraryName, functions);
}

void SetIntegerConstant(lua_State* L, const char* name, long value) {
    lua_pushinteger(L, value);
    lua_setfield(L, -2, name);
}

void SetStringConstant(lua_State* L, const char* name, const char* value) {
    lua_pushstring(L, value);
    lua_setfield(L, -2, name);
}

}  // namespace utility
}  // namespace zeblua

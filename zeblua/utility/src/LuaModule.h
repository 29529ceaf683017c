// The two registration forms every Lua module of the library follows.
#pragma once

struct lua_State;
struct luaL_Reg;

namespace zeblua {
namespace utility {

// Class form: the registry metatable is its own __index and holds the methods and
// metamethods; the functions go into the global table libraryName. Leaves the
// metatable and, above it, the library table on the stack; the opener adds its
// constants to the table on top and returns 1.
void RegisterClassModule(lua_State* L, const char* metatableName, const luaL_Reg* methods,
                         const char* libraryName, const luaL_Reg* functions);

// Function form: the functions go into the global table libraryName, left on top.
void RegisterFunctionModule(lua_State* L, const char* libraryName, const luaL_Reg* functions);

// A constant on the table on top of the stack.
void SetIntegerConstant(lua_State* L, const char* name, long value);
void SetStringConstant(lua_State* L, const char* name, const char* value);

}  // namespace utility
}  // namespace zeblua

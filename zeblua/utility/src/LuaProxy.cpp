// The untyped core of the proxy helpers.
#include "zeblua/utility/src/LuaProxy.h"

#include <lua.hpp>

namespace zeblua {
namespace utility {

void* NewProxyBlock(lua_State* L, size_t size, const char* metatableName) {
    void* block = lua_newuserdata(L, size);
    luaL_getmetatable(L, metatableName);
    lua_setmetatable(L, -2);
    return block;
}

void* CheckProxyBlock(lua_State* L, int index, const char* metatableName) {
    return luaL_checkudata(L, index, metatableName);
}

void* TestProxyBlock(lua_State* L, int index, const char* metatableName) {
    return lua_touserdata(L, index) ? CheckProxyBlock(L, index, metatableName) : nullptr;
}

int PushProxyString(lua_State* L, const char* displayName, const void* shown) {
    lua_pushfstring(L, "%s(%p)", displayName, shown);
    return 1;
}

int NothingGC(lua_State*) {
    return 0;
}

}  // namespace utility
}  // namespace zeblua

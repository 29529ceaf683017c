// The untyped core of the proxy helpers.
#include "zeblua/utility/src/LuaProxy.h"

#include <lua.hpp>

#include "zebcore/debug/Debug.h"

namespace zeblua {
namespace utility {

namespace {

// Pushes the metatable registered under metatableName, or nil. Looking it up by name
// hashes the whole name, on every proxy call; so the metatable is also kept in the
// registry under the name's address, where a lookup hashes one pointer. That is sound
// because names are the modules' constants, so one address always stands for one name,
// and because a registered metatable is never replaced (luaL_newmetatable keeps the
// first).
void pushMetatable(lua_State* L, const char* metatableName) {
    void* address = const_cast<char*>(metatableName);
    lua_pushlightuserdata(L, address);
    lua_rawget(L, LUA_REGISTRYINDEX);
    if (!lua_isnil(L, -1)) return;
    lua_pop(L, 1);
    luaL_getmetatable(L, metatableName);
    if (lua_isnil(L, -1)) return;  // the module is not open: nothing to remember yet
    lua_pushlightuserdata(L, address);
    lua_pushvalue(L, -2);
    lua_rawset(L, LUA_REGISTRYINDEX); /* registry[lightud(name)] = metatable */
}

}  // namespace

void PushProxyMetatable(lua_State* L, const char* metatableName, ModuleOpener opener) {
    pushMetatable(L, metatableName);
    if (lua_isnil(L, -1)) {
        lua_pop(L, 1);
        lua_pushcfunction(L, opener);
        lua_call(L, 0, 0);
        pushMetatable(L, metatableName);
        ZEB_ASSERT_MSG(!lua_isnil(L, -1), "The opener of a proxy made no metatable");
    }
}

void* NewProxyBlock(lua_State* L, size_t size, const char* metatableName, ModuleOpener opener) {
    void* block = lua_newuserdata(L, size);
    PushProxyMetatable(L, metatableName, opener);
    lua_setmetatable(L, -2);
    return block;
}

// luaL_checkudata's test with the metatable found by address. Whatever fails it goes to
// luaL_checkudata itself, which raises its own error.
void* CheckProxyBlock(lua_State* L, int index, const char* metatableName) {
    void* block = lua_touserdata(L, index);
    if (block && lua_getmetatable(L, index)) {
        pushMetatable(L, metatableName);
        const bool matches = lua_rawequal(L, -1, -2) != 0;
        lua_pop(L, 2);
        if (matches) return block;
    }
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

bool IsCopiedFinalizer(lua_State* L, const char* metatableName) {
    if (lua_type(L, 1) != LUA_TUSERDATA || !lua_getmetatable(L, 1)) return false;
    pushMetatable(L, metatableName);
    const bool registered = lua_rawequal(L, -1, -2) != 0;
    lua_pop(L, 2);
    return !registered && RunsAsFinalizerOfArgument(L);
}

bool RunsAsFinalizerOfArgument(lua_State* L) {
    if (lua_type(L, 1) != LUA_TUSERDATA || !lua_getmetatable(L, 1)) return false;
    lua_pushliteral(L, "__gc"); /* a fixed name of Lua's: interned, no allocation */
    lua_rawget(L, -2);
    lua_Debug running;
    bool same = false;
    if (lua_getstack(L, 0, &running) && lua_getinfo(L, "f", &running)) { /* pushes the function */
        same = lua_rawequal(L, -1, -2) != 0;
        lua_pop(L, 1);
    }
    lua_pop(L, 2); /* __gc, metatable */
    return same;
}

}  // namespace utility
}  // namespace zeblua

// Registry tables made on demand, and the sentinel that tells when their state closes.
#include "zeblua/utility/src/RegistryTables.h"

#include <lua.hpp>

namespace zeblua {
namespace utility {

void PushRegistryTable(lua_State* L, const void* key) {
    lua_pushlightuserdata(L, const_cast<void*>(key));
    lua_rawget(L, LUA_REGISTRYINDEX);
}

void PushOrMakeRegistryTable(lua_State* L, const void* key, const char* mode,
                             int (*onClose)(lua_State*)) {
    PushRegistryTable(L, key);
    if (lua_istable(L, -1)) return;
    lua_pop(L, 1);
    lua_newtable(L);
    if (mode || onClose) {
        lua_createtable(L, 0, 2);
        if (mode) {
            lua_pushstring(L, mode);
            lua_setfield(L, -2, "__mode");
        }
        if (onClose) {
            lua_newuserdata(L, 0);
            lua_createtable(L, 0, 1);
            lua_pushcfunction(L, onClose);
            lua_setfield(L, -2, "__gc");
            lua_setmetatable(L, -2);
            lua_rawseti(L, -2, 1); /* metatable[1] = sentinel */
        }
        lua_setmetatable(L, -2);
    }
    lua_pushlightuserdata(L, const_cast<void*>(key));
    lua_pushvalue(L, -2);
    lua_rawset(L, LUA_REGISTRYINDEX); /* registry[key] = table */
}

int HeldSelfReference(lua_State* L, int tableIndex, int slot) {
    if (tableIndex < 0) tableIndex = lua_gettop(L) + tableIndex + 1;
    lua_rawgeti(L, tableIndex, slot);
    const int reference = lua_isnumber(L, -1) ? static_cast<int>(lua_tointeger(L, -1)) : 0;
    lua_pop(L, 1);
    if (reference <= 0) return LUA_NOREF;
    lua_rawgeti(L, LUA_REGISTRYINDEX, reference);
    const bool held = lua_rawequal(L, -1, tableIndex) != 0;
    lua_pop(L, 1);
    return held ? reference : LUA_NOREF;
}

int SelfReference(lua_State* L, int tableIndex, int slot) {
    if (tableIndex < 0) tableIndex = lua_gettop(L) + tableIndex + 1;
    const int held = HeldSelfReference(L, tableIndex, slot);
    if (held != LUA_NOREF) return held;
    lua_pushvalue(L, tableIndex);
    const int reference = luaL_ref(L, LUA_REGISTRYINDEX);
    lua_pushinteger(L, reference);
    lua_rawseti(L, tableIndex, slot);
    return reference;
}

void ClearPresentField(lua_State* L, int tableIndex) {
    lua_pushvalue(L, -1);
    lua_rawget(L, tableIndex); /* key, value */
    const bool present = !lua_isnil(L, -1);
    lua_pop(L, 1);
    if (present) {
        lua_pushnil(L);
        lua_rawset(L, tableIndex); /* t[key] = nil; pops key and nil */
    } else {
        lua_pop(L, 1);
    }
}

}  // namespace utility
}  // namespace zeblua

// Remembering a universe's main thread in its registry.
#include "zeblua/utility/src/MainThread.h"

#include <lua.hpp>

namespace zeblua {
namespace utility {
namespace {

char sMainThreadKey;  // its address keys registry[key] = main thread

lua_State* recordedMainThread(lua_State* L) {
    lua_checkstack(L, 1);
    lua_pushlightuserdata(L, &sMainThreadKey);
    lua_rawget(L, LUA_REGISTRYINDEX);
    lua_State* main = lua_tothread(L, -1);
    lua_pop(L, 1);
    return main;
}

}  // namespace

void RecordMainThread(lua_State* L) {
    lua_checkstack(L, 2);
    if (lua_pushthread(L) == 1) { /* L, the main thread, on top */
        lua_pushlightuserdata(L, &sMainThreadKey);
        lua_insert(L, -2);
        lua_rawset(L, LUA_REGISTRYINDEX); /* registry[key] = L */
    } else {
        lua_pop(L, 1);
    }
}

lua_State* GetMainThread(lua_State* L) {
    if (lua_State* main = recordedMainThread(L)) return main;
    RecordMainThread(L);
    return recordedMainThread(L);
}

}  // namespace utility
}  // namespace zeblua

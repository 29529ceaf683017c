// Remembering a universe's main thread in its registry.
#include "zeblua/utility/src/MainThread.h"

#include <lua.hpp>

#include "zeblua/utility/src/RegistryTables.h"
#include "zeblua/utility/src/RunningScript.h"

namespace zeblua {
namespace utility {
namespace {

char sMainThreadKey;  // its address keys registry[key] = main thread
char sCloseWatchKey;  // a registry table whose sentinel tells when the state closes

// The close sentinel's: lua_close runs finalizers on the main thread.
int forgetClosingThread(lua_State* L) {
    ForgetMainThread(L);
    return 0;
}

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
    const bool isMain = lua_pushthread(L) == 1;
    lua_pop(L, 1);
    if (!isMain || recordedMainThread(L) == L) return;
    PushOrMakeRegistryTable(L, &sCloseWatchKey, nullptr, forgetClosingThread);
    lua_pop(L, 1);
    RememberMainThread(L); /* only once the sentinel will forget it */
    lua_pushlightuserdata(L, &sMainThreadKey);
    lua_pushthread(L);
    lua_rawset(L, LUA_REGISTRYINDEX); /* registry[key] = L */
}

lua_State* GetMainThread(lua_State* L) {
    if (lua_State* main = recordedMainThread(L)) return main;
    RecordMainThread(L);
    return recordedMainThread(L);
}

}  // namespace utility
}  // namespace zeblua

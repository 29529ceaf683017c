// Remembering a universe's main thread in its registry, and forgetting it as its state closes.
#include "zeblua/utility/src/MainThread.h"

#include <lua.hpp>

#include "zeblua/utility/src/RegistryTables.h"
#include "zeblua/utility/src/RunningScript.h"

namespace zeblua {
namespace utility {
namespace {

char sMainThreadKey;  // its address keys registry[key] = main thread
char sCloseWatchKey;  // a registry table whose sentinel tells when the state closes

// Main threads whose close sentinel will forget them.
constexpr int kMostStates = 8;
lua_State* sRememberedThreads[kMostStates];

// The thread that CachedRegistryReference values belong to, and its generation.
lua_State* sCachingThread = nullptr;
unsigned long long sCachingGeneration = 0;

void remember(lua_State* L) {
    for (lua_State*& slot : sRememberedThreads) {
        if (!slot) {
            slot = L;
            return;
        }
    }
}

// The close sentinel's: lua_close runs finalizers on the main thread.
int forgetClosingThread(lua_State* L) {
    for (lua_State*& slot : sRememberedThreads)
        if (slot == L) slot = nullptr;
    if (L == sCachingThread) sCachingThread = nullptr;
    ForgetRunningState(L);
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
    remember(L); /* only once the sentinel will forget it */
    lua_pushlightuserdata(L, &sMainThreadKey);
    lua_pushthread(L);
    lua_rawset(L, LUA_REGISTRYINDEX); /* registry[key] = L */
}

lua_State* GetMainThread(lua_State* L) {
    if (lua_State* main = recordedMainThread(L)) return main;
    RecordMainThread(L);
    return recordedMainThread(L);
}

bool IsRememberedMainThread(lua_State* L) {
    if (L && L == sCachingThread) return true;
    for (lua_State* remembered : sRememberedThreads)
        if (remembered && remembered == L) return true;
    return false;
}

bool CachedRegistryReference::Holds(lua_State* L) const {
    return L == sCachingThread && mGeneration == sCachingGeneration;
}

bool CachedRegistryReference::Push(lua_State* L) const {
    if (!Holds(L)) return false;
    lua_rawgeti(L, LUA_REGISTRYINDEX, mReference);
    if (lua_topointer(L, -1) == mAddress) return true;
    lua_pop(L, 1);
    return false;
}

void CachedRegistryReference::Keep(lua_State* L, int reference) const {
    if (reference <= 0) {
        mGeneration = 0; /* sCachingGeneration is never 0 while a thread is kept */
        return;
    }
    if (L != sCachingThread) {
        if (!IsRememberedMainThread(L)) return;
        sCachingThread = L;
        ++sCachingGeneration;
    }
    lua_rawgeti(L, LUA_REGISTRYINDEX, reference);
    mAddress = lua_topointer(L, -1);
    lua_pop(L, 1);
    mReference = reference;
    mGeneration = sCachingGeneration;
}

}  // namespace utility
}  // namespace zeblua

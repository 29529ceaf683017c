// Key tables, one per list and Lua state, kept in the registry under the list's address.
#include "zeblua/utility/src/LuaInternedKeys.h"

#include <lua.hpp>

#include "zeblua/utility/src/RegistryTables.h"

namespace zeblua {
namespace utility {
namespace {

// A reader pushes its key table on every call, and lua_rawgeti on an integer key is the
// cheapest read of the registry: so each list remembers its table's reference in the state
// of one main thread, the last one to push a list. Only a main thread, because it lives
// until lua_close, whose sentinel forgets it; while it is remembered no other state can
// have a thread at its address. A new remembered thread starts a new generation, so a
// list's reference from an earlier one is never read.
lua_State* sRememberedThread = nullptr;
unsigned long long sGeneration = 0;
char sCloseWatchKey;  // a registry table whose sentinel tells when the state closes

// The close sentinel's: lua_close runs finalizers on the main thread.
int forgetClosingThread(lua_State* L) {
    if (L == sRememberedThread) sRememberedThread = nullptr;
    return 0;
}

// Makes L, when it is a main thread, the remembered one. Raises a memory error only when
// it makes the state's close sentinel.
bool rememberMainThread(lua_State* L) {
    if (L == sRememberedThread) return true;
    const bool isMain = lua_pushthread(L) == 1;
    lua_pop(L, 1);
    if (!isMain) return false;
    PushOrMakeRegistryTable(L, &sCloseWatchKey, nullptr, forgetClosingThread);
    lua_pop(L, 1);
    sRememberedThread = L; /* only once the sentinel will forget it */
    ++sGeneration;
    return true;
}

}  // namespace

int InternedKeys::Push(lua_State* L) const {
    if (L == sRememberedThread && mGeneration == sGeneration) {
        lua_rawgeti(L, LUA_REGISTRYINDEX, mReference);
        return lua_gettop(L);
    }
    void* registryKey = const_cast<InternedKeys*>(this);
    lua_checkstack(L, 5); /* the close sentinel's table is the deepest */
    lua_pushlightuserdata(L, registryKey);
    lua_rawget(L, LUA_REGISTRYINDEX);
    if (lua_isnil(L, -1)) {
        lua_pop(L, 1);
        lua_createtable(L, mCount + 1, 0);
        for (int i = 0; i < mCount; ++i) {
            lua_pushstring(L, mNames[i]);
            lua_rawseti(L, -2, i + 1);
        }
        lua_pushvalue(L, -1);
        lua_pushinteger(L, luaL_ref(L, LUA_REGISTRYINDEX));
        lua_rawseti(L, -2, mCount + 1); /* keys[count + 1] = its own reference */
        lua_pushlightuserdata(L, registryKey);
        lua_pushvalue(L, -2);
        lua_rawset(L, LUA_REGISTRYINDEX); /* registry[this] = keys */
    }
    if (rememberMainThread(L)) {
        lua_rawgeti(L, -1, mCount + 1);
        mReference = static_cast<int>(lua_tointeger(L, -1));
        mGeneration = sGeneration;
        lua_pop(L, 1);
    }
    return lua_gettop(L);
}

}  // namespace utility
}  // namespace zeblua

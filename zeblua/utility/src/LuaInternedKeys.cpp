// Key tables, one per list and Lua state, kept in the registry under the list's address.
#include "zeblua/utility/src/LuaInternedKeys.h"

#include <lua.hpp>

#include "zeblua/utility/src/RegistryTables.h"

namespace zeblua {
namespace utility {

// A reader pushes its key table on every call: the table's integer registry reference is
// kept for the remembered main thread, so that push is one lua_rawgeti.
int InternedKeys::Push(lua_State* L) const {
    if (mReference.Push(L)) return lua_gettop(L);
    void* registryKey = const_cast<InternedKeys*>(this);
    lua_checkstack(L, 4);
    lua_pushlightuserdata(L, registryKey);
    lua_rawget(L, LUA_REGISTRYINDEX);
    if (lua_isnil(L, -1)) {
        lua_pop(L, 1);
        lua_createtable(L, mCount + 1, 0);
        for (int i = 0; i < mCount; ++i) {
            lua_pushstring(L, mNames[i]);
            lua_rawseti(L, -2, i + 1);
        }
        lua_pushlightuserdata(L, registryKey);
        lua_pushvalue(L, -2);
        lua_rawset(L, LUA_REGISTRYINDEX); /* registry[this] = keys */
    }
    mReference.Keep(L, SelfReference(L, -1, mCount + 1)); /* keys[count + 1] */
    return lua_gettop(L);
}

}  // namespace utility
}  // namespace zeblua

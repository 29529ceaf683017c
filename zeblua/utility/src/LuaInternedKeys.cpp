// Key tables, one per list and Lua state, kept in the registry under the list's address.
#include "zeblua/utility/src/LuaInternedKeys.h"

#include <lua.hpp>

namespace zeblua {
namespace utility {

int InternedKeys::Push(lua_State* L) const {
    void* registryKey = const_cast<InternedKeys*>(this);
    lua_pushlightuserdata(L, registryKey);
    lua_rawget(L, LUA_REGISTRYINDEX);
    if (lua_isnil(L, -1)) {
        lua_pop(L, 1);
        lua_createtable(L, mCount, 0);
        for (int i = 0; i < mCount; ++i) {
            lua_pushstring(L, mNames[i]);
            lua_rawseti(L, -2, i + 1);
        }
        lua_pushlightuserdata(L, registryKey);
        lua_pushvalue(L, -2);
        lua_rawset(L, LUA_REGISTRYINDEX); /* registry[this] = keys */
    }
    return lua_gettop(L);
}

}  // namespace utility
}  // namespace zeblua

// A native string that Lua owns, so a binding can fill it in C++ and push it last.
#include "zeblua/utility/src/LuaResultString.h"

#include <new>

#include <lua.hpp>

namespace zeblua {
namespace utility {
namespace {

const char* const kResultStringMetatableName = "zeblua.ResultString";

int resultStringGC(lua_State* L) {
    auto* text = static_cast<std::string*>(lua_touserdata(L, 1));
    text->~basic_string();
    return 0;
}

}  // namespace

std::string* PushResultString(lua_State* L) {
    lua_checkstack(L, 4);
    // The metatable is complete before the registry names it, so a memory error on the
    // way can never leave a metatable without its __gc for later strings.
    lua_getfield(L, LUA_REGISTRYINDEX, kResultStringMetatableName);
    if (lua_isnil(L, -1)) {
        lua_pop(L, 1);
        lua_createtable(L, 0, 1);
        lua_pushcfunction(L, resultStringGC);
        lua_setfield(L, -2, "__gc");
        lua_pushvalue(L, -1);
        lua_setfield(L, LUA_REGISTRYINDEX, kResultStringMetatableName);
    }
    void* block = lua_newuserdata(L, sizeof(std::string)); /* metatable, block */
    auto* text = new (block) std::string;                  // an empty string allocates nothing
    lua_insert(L, -2);                                     /* block, metatable */
    lua_setmetatable(L, -2);                               /* block */
    return text;
}

}  // namespace utility
}  // namespace zeblua

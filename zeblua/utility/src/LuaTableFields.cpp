// Field readers that leave the Lua stack as they found it.
#include "zeblua/utility/src/LuaTableFields.h"

#include <lua.hpp>

#include "zebcore/debug/Debug.h"

namespace zeblua {
namespace utility {
namespace {

// Execution goes on behind the report, so a null name must not reach lua_getfield.
bool hasFieldName(const char* inFieldName) {
    ZEB_ASSERT_MSG(inFieldName != NULL, "A table field needs a name");
    return inFieldName != nullptr;
}

// The CheckNumberField forms once their key is on top of the stack.
double checkNumberAtKey(lua_State* L, int index) {
    lua_gettable(L, index);                           /* value */
    const lua_Number value = luaL_checknumber(L, -1); /* lua_tonumber of the value */
    lua_pop(L, 1);
    return value;
}

}  // namespace

int GetIntegerField(lua_State* L, int index, const char* inFieldName) {
    if (!hasFieldName(inFieldName)) return 0;
    lua_getfield(L, index, inFieldName);
    const int value = static_cast<int>(lua_tointeger(L, -1));
    lua_remove(L, -1);
    return value;
}

bool GetBoolField(lua_State* L, int index, const char* inFieldName) {
    if (!hasFieldName(inFieldName)) return false;
    lua_getfield(L, index, inFieldName);
    const bool value = lua_toboolean(L, -1) != 0;
    lua_remove(L, -1);
    return value;
}

zebcore::UTF8String GetStringField(lua_State* L, int index, const char* inFieldName) {
    if (!hasFieldName(inFieldName)) return zebcore::UTF8String();
    lua_getfield(L, index, inFieldName);
    size_t length = 0;
    const char* text = lua_tolstring(L, -1, &length);
    zebcore::UTF8String value = text ? zebcore::UTF8String(text, length) : zebcore::UTF8String();
    lua_remove(L, -1);
    return value;
}

double CheckNumberField(lua_State* L, int index, const char* name) {
    lua_pushstring(L, name);
    return checkNumberAtKey(L, index);
}

double CheckNumberField(lua_State* L, int index, int keysIndex, int key) {
    lua_rawgeti(L, keysIndex, key);
    return checkNumberAtKey(L, index);
}

}  // namespace utility
}  // namespace zeblua

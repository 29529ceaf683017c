// Reading single fields of a Lua table from native code.
#pragma once

#include "zebcore/utility/Strings.h"

struct lua_State;

namespace zeblua {
namespace utility {

// Each reads field inFieldName of the table at index and leaves the stack as it was.
// The index is used before the field is pushed, so -1 means the table on top. A field's
// __index metamethod runs as in Lua. A null name is a developer error: it makes the
// assertion report "inFieldName != NULL", touches nothing and gives the default.

// lua_tointeger of the field: 0 if absent or not a number (numeric strings convert).
int GetIntegerField(lua_State* L, int index, const char* inFieldName);

// lua_toboolean of the field: false only for nil (so also when absent) and false.
bool GetBoolField(lua_State* L, int index, const char* inFieldName);

// The field as UTF-8, embedded zeros kept; a number converts as Lua converts it. The
// empty string if the field is absent or neither string nor number.
zebcore::UTF8String GetStringField(lua_State* L, int index, const char* inFieldName);

// The reading form of the geometry and event tables, which raises instead of defaulting:
// lua_pushstring of name, lua_gettable at index, luaL_checknumber then lua_tonumber of the
// value, pop. The name is pushed first, so index must be positive. A missing or
// non-numeric field raises Lua's argument error at position -1: call it with no C++
// object alive in the calling frames.
double CheckNumberField(lua_State* L, int index, const char* name);
// The same with the name pushed from slot key of the InternedKeys table at keysIndex, so
// that nothing is hashed: the same key string, the same lookup, the same errors.
double CheckNumberField(lua_State* L, int index, int keysIndex, int key);

}  // namespace utility
}  // namespace zeblua

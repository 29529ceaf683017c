// zebString: byte-position string functions, regular expressions and Unicode case mapping.
#pragma once

struct lua_State;

namespace zeblua {
namespace string {

extern const char* const kZebLuaStringLibName;  // "zebString"

// Registers the functions under the global name zebString; returns 1 (the table).
int luaopen_zebluaStrings(lua_State* L);

// A one-based byte position from the optional argument at index (positive), in
// 1..length; negative counts from the end. Missing or nil gives defaultPos; a
// position outside the string raises "<functionName>: Invalid stack position".
int GetOptionalOneBasedPos(lua_State* L, int index, int length, const char* functionName,
                           int defaultPos);

}  // namespace string
}  // namespace zeblua

extern "C" int luaopen_zeblua_zebString(lua_State* L);

// zeblua.numeric: decomposition and inversion of 4 x 4 transform matrices.
#pragma once

struct lua_State;

namespace zeblua {
namespace numeric {

extern const char* const kLuaNumericLibName;  // "numeric"

// Expects the zeblua table on top; stores the numeric table as its field "numeric"
// and leaves the stack as it found it.
void OpenLuaNumeric(lua_State* L);

}  // namespace numeric
}  // namespace zeblua

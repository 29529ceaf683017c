// debugSupport: code capture and coverage for the host's debugging tools.
#pragma once

struct lua_State;

namespace zeblua {
namespace DebugSupport {

// Registers the global table debugSupport with captureCode and the field
// coverageSupport, and leaves it on the stack; returns 1.
int InitLua(lua_State* L);

}  // namespace DebugSupport
}  // namespace zeblua

extern "C" int luaopen_zeblua_debugSupport(lua_State* L);

// zebLogging: scripts write to the host's log.
#pragma once

struct lua_State;

namespace zeblua {
namespace LoggingUtils {

// Registers the global table zebLogging and leaves it on the stack; returns 1.
int InitLua(lua_State* L);

}  // namespace LoggingUtils
}  // namespace zeblua

extern "C" int luaopen_zeblua_zebLogging(lua_State* L);

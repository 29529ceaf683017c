// zebcontrols: every control metatable, the interactive change message, the constructors.
#pragma once

struct lua_State;

namespace zeblua {
namespace ui {

// Opens the module once per state: a second call finds "zebUINode" in the registry,
// pushes nothing and returns 1, so its result is whatever was on top already. Otherwise
// registers every wrapper metatable, the tree row metatable and the message metatable,
// and leaves the global table zebcontrols on top. Returns 1.
int luaopen_LuaControls(lua_State* L);

// The metatable "interactiveChangeMessage" with the phase constants beginChange 0,
// continueChange 1, finishChange 2 and cancelChange 3. Leaves the stack as it was;
// returns 1.
int InitZebControls(lua_State* L);

}  // namespace ui
}  // namespace zeblua

// require "zeblua.zebcontrols": forwards to luaopen_LuaControls.
extern "C" int luaopen_zeblua_zebcontrols(lua_State* L);

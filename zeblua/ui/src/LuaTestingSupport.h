// luaTestingSupport: scripts send a control's change messages without a user.
#pragma once

struct lua_State;

namespace zeblua {
namespace ui {
namespace LuaTestingSupport {

// Registers the global table luaTestingSupport and leaves it on the stack; returns 1.
int InitLua(lua_State* L);

}  // namespace LuaTestingSupport
}  // namespace ui
}  // namespace zeblua

extern "C" int luaopen_zeblua_luaTestingSupport(lua_State* L);

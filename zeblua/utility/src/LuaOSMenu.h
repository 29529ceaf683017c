// OSMenu: native menus that scripts build, share with native code and run.
#pragma once

#include <boost/intrusive_ptr.hpp>

struct lua_State;

namespace zebui {
namespace utility {
class OS_Menu;
}  // namespace utility
}  // namespace zebui

namespace zeblua {
namespace utility {

extern const char* const kZebLuaOSMenuClassName;      // "OSMenu"
extern const char* const kZebLuaOSMenuMetaTableName;  // "zeblua.OSMenu"

// Pushes a proxy that holds a reference of its own to menu (none for null); returns 1.
// The proxy is made before the reference is taken, so Lua's memory error at the push
// leaves the menu's count as it was.
int PushOSMenuToLua(lua_State* L, boost::intrusive_ptr<zebui::utility::OS_Menu> menu);

// The payload of the menu proxy at index (luaL_checkudata): the menu, null once released.
zebui::utility::OS_Menu** zeblua_checkOSMenu(lua_State* L, int index);

}  // namespace utility
}  // namespace zeblua

// Registers the metatable and the global table OSMenu; returns 1.
extern "C" int luaopen_zeblua_OSMenu(lua_State* L);

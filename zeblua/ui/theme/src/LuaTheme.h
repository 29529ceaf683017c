// Theme: the colours and fonts the toolkit draws with, by index, and new named themes.
#pragma once

struct lua_State;

namespace zebui {
namespace ui {
class Theme;
}  // namespace ui
}  // namespace zebui

namespace zeblua {
namespace theme {

extern const char* const kZebLuaThemeClassName;      // "Theme"
extern const char* const kZebLuaThemeMetaTableName;  // "zeblua.zebTheme"

// The first index of the application's own colours; the toolkit's lie below it.
constexpr unsigned long kColor_ApplicationDomainStart = 10000;

// The payload of the theme value at index (luaL_checkudata): null once released.
zebui::ui::Theme** zeblua_checkTheme(lua_State* L, int index);

}  // namespace theme
}  // namespace zeblua

// Registers the metatable and the global table Theme with its constants; returns 1.
// Closing the state resets the theme store: registered themes are forgotten and the
// current theme's colours are the defaults again.
extern "C" int luaopen_zeblua_zebTheme(lua_State* L);

// zebUIResources: images and cursors from the resources of the toolkit, the framework or
// the application.
#pragma once

struct lua_State;

namespace zebui {
namespace utility {
class InkwellImageResourceCache;
class ResourceManager;
}  // namespace utility
}  // namespace zebui

namespace zeblua {
namespace ui {

extern const char* const kZebLuaUIResourcesClassName;      // "zebUIResources"
extern const char* const kZebLuaUIResourcesMetaTableName;  // "zeblua.zebUIResources"

// Pushes a resources value that lends manager and cache: both live as long as the
// application, so the value owns nothing and never ends. Returns 1.
int PushResourcesToLua(lua_State* L, const zebui::utility::ResourceManager* manager,
                       const zebui::utility::InkwellImageResourceCache* cache);

// Registers the metatable and the global table zebUIResources with its three accessor
// names; returns 1 (the table).
int luaopen_zebluaResources(lua_State* L);

}  // namespace ui
}  // namespace zeblua

// require "zeblua.zebUIResources": forwards to luaopen_zebluaResources.
extern "C" int luaopen_zeblua_zebUIResources(lua_State* L);

// OSLaunchUtils: opening an address with the user's default browser.
#pragma once

struct lua_State;

namespace zeblua {
namespace utility {

extern const char* const kZebLuaOSLaunchUtilsClassName;      // "OSLaunchUtils"
extern const char* const kZebLuaOSLaunchUtilsMetaTableName;  // "zeblua.OSLaunchUtils"

}  // namespace utility
}  // namespace zeblua

// Registers the metatable and the global table OSLaunchUtils; returns 1.
extern "C" int luaopen_zeblua_OSLaunchUtils(lua_State* L);

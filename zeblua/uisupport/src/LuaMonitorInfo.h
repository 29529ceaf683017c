// zebMonitorInfo: where the screens are. Monitors count from 1 here.
#pragma once

struct lua_State;

namespace zeblua {
namespace ui {
namespace utility {

extern const char* const kZebLuaMonitorInfoClassName;      // "zebMonitorInfo"
extern const char* const kZebLuaMonitorInfoMetaTableName;  // "zeblua.zebMonitorInfo"

// Registers the metatable and the global table zebMonitorInfo; returns 1. The queries
// are both methods and functions of the table, so zebMonitorInfo.GetMonitorCount(info)
// answers as info:GetMonitorCount() does.
int luaopen_zebluaMonitorInfo(lua_State* L);

}  // namespace utility
}  // namespace ui
}  // namespace zeblua

extern "C" int luaopen_zeblua_zebMonitorInfo(lua_State* L);

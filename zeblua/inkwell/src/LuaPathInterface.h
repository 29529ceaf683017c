// PathInterface: paths that scripts build and keep across draw callbacks.
#pragma once

struct lua_State;

namespace zebui {
namespace inkwell {
class PathP;
}
}  // namespace zebui

namespace zeblua {
namespace inkwell {

extern const char* const kZebLuaPathClassName;      // "PathInterface"
extern const char* const kZebLuaPathMetaTableName;  // "zeblua.zebPathInterface"

// The payload of the path proxy at index: the proxy's heap PathP, null once released.
zebui::inkwell::PathP** zeblua_checkPathInterface(lua_State* L, int index);

// Registers the metatable and the global table PathInterface; returns 1 (the table).
int luaopen_zebPathInterface(lua_State* L);

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebPathInterface(lua_State* L);

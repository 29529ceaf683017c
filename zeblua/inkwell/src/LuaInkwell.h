// zebInkwell: the Inkwell proxy a draw callback receives, and the ones NewInkwell owns.
#pragma once

struct lua_State;

namespace zeblua {
namespace inkwell {

struct InkwellProxy;

extern const char* const kZebLuaInkwellClassName;      // "zebInkwell"
extern const char* const kZebLuaInkwellMetaTableName;  // "zeblua.zebInkwell"

// The record of the Inkwell proxy at index, or Lua's type error.
InkwellProxy* zeblua_checkInkwell(lua_State* L, int index);

// False, after the report "Attempting to use an out-of-scope Inkwell", when the proxy has
// ended; the caller then returns no value.
bool InkwellInScope(const InkwellProxy* proxy);

// Registers the metatable and the global table zebInkwell; returns 1 (the table).
int luaopen_zebluaInkwell(lua_State* L);

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebInkwell(lua_State* L);

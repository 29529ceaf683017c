// zebSurfaceInterface: the surface proxies that draw through the toolkit's surfaces.
#pragma once

struct lua_State;

namespace zeblua {
namespace inkwell {

struct InkwellProxy;

extern const char* const kZebLuaSurfaceClassName;      // "zebSurfaceInterface"
extern const char* const kZebLuaSurfaceMetaTableName;  // "zeblua.zebSurfaceInterface"

// The record of the surface proxy at index, or Lua's type error. A light userdata that
// names no live record yields a record that has ended.
InkwellProxy* zeblua_checkSurface(lua_State* L, int index);

// False, after the report "Attempting to use an out-of-scope SurfaceInterface", when the
// proxy has ended; the caller then returns no value.
bool SurfaceInScope(const InkwellProxy* proxy);

// Registers the metatable and the global table zebSurfaceInterface with its constants;
// returns 1 (the table).
int luaopen_zebSurfaceInterface(lua_State* L);

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebSurfaceInterface(lua_State* L);

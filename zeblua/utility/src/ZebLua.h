// The library's front door: the root module and the embedded code searcher.
#pragma once

struct lua_State;

namespace zeblua {

// Registers the global zeblua table with its numeric field, and zebString. Leaves
// the zeblua table and the zebString table on the stack; returns 1.
int InitLua(lua_State* L);

// Appends the embedded code searcher to package.loaders. Returns the lua_pcall
// status and leaves the error value on the stack if there is one.
int InitEmbeddedCodeLoader(lua_State* L);

}  // namespace zeblua

// require "zeblua": the same steps; the one result is the zebString table.
extern "C" int luaopen_zeblua(lua_State* L);

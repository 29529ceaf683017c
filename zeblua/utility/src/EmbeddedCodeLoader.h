// The package searcher that finds Lua chunks among the application's resources.
#pragma once

struct lua_State;

namespace zeblua {

// Searcher: module name -> chunk from the "lua" resource of that name with its
// dots replaced by "_", or no result when there is none.
int DoLoadEmbeddedCode(lua_State* L);

}  // namespace zeblua

extern "C" int luaopen_zeblua_EmbeddedCodeLoader(lua_State* L);

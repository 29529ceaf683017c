// The Lua runtime services the host kernel offers beside the stock C API.
#pragma once

#include <cstddef>

struct lua_State;

extern "C" {

// Loads a chunk from bytes. Called with the environment table for the chunk on
// top of the stack; replaces it with the loaded function (or, on failure, with
// the error message) and returns the luaL_loadbuffer status. The buffer is not
// needed after the call.
int XuLua_loadChunkFromBuffer(lua_State* L, const char* buffer, size_t length,
                              const char* chunkName);
}

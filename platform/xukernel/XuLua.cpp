// Chunk loading for the host kernel.
#include "xukernel/XuLua.h"

#include <string>

#include <lua.hpp>

extern "C" int XuLua_loadChunkFromBuffer(lua_State* L, const char* buffer, size_t length,
                                         const char* chunkName) {
    // "=" keeps the module name verbatim in error positions ("mod.name:3: ...").
    const std::string name = std::string("=") + (chunkName ? chunkName : "?");
    const int status = luaL_loadbuffer(L, buffer, length, name.c_str());
    if (status == 0) {
        lua_pushvalue(L, -2); /* environment table */
        lua_setfenv(L, -2);   /* chunk's environment = table */
    }
    lua_remove(L, -2); /* drop the table, leaving chunk or message on top */
    return status;
}

// Universe records, one per Lua state, kept in the state's registry.
#include "xukernel/XuUniverse.h"

#include <lua.hpp>

namespace {

// Its address is the registry key: no script-visible name can collide with it.
const char sUniverseKey = 0;

}  // namespace

extern "C" XuLuaUniverse* XuLuaState_getUniverse(lua_State* L) {
    lua_pushlightuserdata(L, const_cast<char*>(&sUniverseKey));
    lua_rawget(L, LUA_REGISTRYINDEX);
    auto* universe = static_cast<XuLuaUniverse*>(lua_touserdata(L, -1));
    lua_pop(L, 1);
    if (universe) return universe;

    universe = static_cast<XuLuaUniverse*>(lua_newuserdata(L, sizeof(XuLuaUniverse)));
    universe->kernelData = nullptr;
    universe->captureHook = nullptr;
    lua_pushlightuserdata(L, const_cast<char*>(&sUniverseKey));
    lua_pushvalue(L, -2);
    lua_rawset(L, LUA_REGISTRYINDEX); /* registry[key] = universe */
    lua_pop(L, 1);
    return universe;
}

extern "C" void XuLuaState_setCaptureHook(lua_State* L, XuLuaCaptureHook* hook) {
    XuLuaState_getUniverse(L)->captureHook = hook;
}

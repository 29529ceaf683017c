// The kernel's record of a Lua universe: one per lua_State and all its threads.
#pragma once

#include <cstddef>

struct lua_State;

extern "C" {

// Receives code that a script hands to debugSupport.captureCode.
typedef void (*XuLuaCaptureFunction)(lua_State* L, const char* code, size_t length,
                                     const char* name);

// Owned by the host; it must outlive its installation.
struct XuLuaCaptureHook {
    XuLuaCaptureFunction capture;  // may be null
    void* context;  // the host's own word; the capture function reaches it through the universe
};

struct XuLuaUniverse {
    void* kernelData;               // the kernel's bookkeeping; null in this stand-in
    XuLuaCaptureHook* captureHook;  // null when no host asked for captured code
};

// The universe of L, made on first use and kept in the registry, so it ends with the
// state. Threads of one state share it. Raises only Lua's memory error.
XuLuaUniverse* XuLuaState_getUniverse(lua_State* L);

// Installs a capture hook on L's universe; null removes it.
void XuLuaState_setCaptureHook(lua_State* L, XuLuaCaptureHook* hook);
}

// debugSupport: hands captured code to the host's capture hook.
#include "zeblua/utility/src/DebugSupport.h"

#include <cstddef>

#include <lua.hpp>

#include "xukernel/HqLuaCoverage.h"
#include "xukernel/XuUniverse.h"
#include "zeblua/utility/src/LuaModule.h"

namespace zeblua {
namespace DebugSupport {
namespace {

// The hook is host code: whatever it throws stops here, short of the Lua frame.
void callCapture(XuLuaCaptureFunction capture, lua_State* L, const char* code, size_t length,
                 const char* name) noexcept {
    try {
        capture(L, code, length, name);
    } catch (...) {
    }
}

// -- debugSupport.captureCode(code, name)
// Without a hook the arguments are not even looked at.
int captureCode(lua_State* L) {
    const XuLuaUniverse* universe = XuLuaState_getUniverse(L);
    const XuLuaCaptureHook* hook = universe ? universe->captureHook : nullptr;
    if (!hook || (!hook->capture && !hook->context)) return 0;
    const XuLuaCaptureFunction capture = hook->capture;
    size_t length = 0;
    const char* code = luaL_checklstring(L, 1, &length);
    const char* name = luaL_checkstring(L, 2);
    // A record with only its second word set has nothing to call.
    if (capture) callCapture(capture, L, code, length, name);
    return 0;
}

const luaL_Reg kDebugSupportFunctions[] = {{"captureCode", captureCode}, {nullptr, nullptr}};

}  // namespace

int InitLua(lua_State* L) {
    utility::RegisterFunctionModule(L, "debugSupport", kDebugSupportFunctions);
    HqLuaCoverage_push(L);
    lua_setfield(L, -2, "coverageSupport"); /* debugSupport.coverageSupport = coverage table */
    return 1;
}

}  // namespace DebugSupport
}  // namespace zeblua

extern "C" int luaopen_zeblua_debugSupport(lua_State* L) {
    return zeblua::DebugSupport::InitLua(L);
}

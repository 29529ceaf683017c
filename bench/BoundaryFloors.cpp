// Floors of the crossing itself: a native function that does nothing, called from a Lua
// loop, and an empty Lua function called from native code.
#include <memory>

#include "bench/BenchRegistry.h"
#include "bench/BenchSession.h"

namespace zebbench {

namespace {

int noop(lua_State*) {
    return 0;
}

// -- for i = 1, n do noop(a, b) end
Step luaCallsNoop(int ops) {
    auto session = std::make_shared<BenchSession>();
    lua_State* L = session->L();
    lua_pushcfunction(L, noop);
    lua_pushstring(L, "alpha/beta/gamma");
    lua_pushstring(L, "alpha/beta/delta");
    const int loop = session->compileLoop(LoopChunk("f, a, b", "f(a, b)"), 3);
    return LoopStep(session, loop, ops);
}

// -- for i = 1, n do object:Noop(2) end, on a userdata whose metatable is its own __index,
// as every class-form proxy's is.
Step luaCallsNoopMethod(int ops) {
    auto session = std::make_shared<BenchSession>();
    lua_State* L = session->L();
    lua_newuserdata(L, sizeof(void*));
    lua_newtable(L);
    lua_pushvalue(L, -1);
    lua_setfield(L, -2, "__index");
    lua_pushcfunction(L, noop);
    lua_setfield(L, -2, "Noop");
    lua_setmetatable(L, -2);
    const int loop = session->compileLoop(LoopChunk("object", "object:Noop(2)"), 1);
    return LoopStep(session, loop, ops);
}

// The bare callback: what a draw hook pays before any scope, with the one argument a draw
// callback receives.
Step nativeCallsLua(int) {
    auto session = std::make_shared<BenchSession>();
    lua_State* L = session->L();
    luaL_dostring(L, "return function(ink) end");
    const int callback = luaL_ref(L, LUA_REGISTRYINDEX);
    return [session, L, callback] {
        lua_rawgeti(L, LUA_REGISTRYINDEX, callback);
        lua_pushnil(L);
        lua_pcall(L, 1, 0, 0);
    };
}

}  // namespace

void RegisterBoundaryFloors() {
    RegisterFloor("floor/LuaCallsNoop", "Lua -> no-op C function", 1000, luaCallsNoop);
    RegisterFloor("floor/LuaCallsNoopMethod", "Lua -> no-op C method", 1000, luaCallsNoopMethod);
    RegisterFloor("floor/NativeCallsLua", "C -> Lua callback (rawgeti + pcall)", 1, nativeCallsLua);
}

}  // namespace zebbench

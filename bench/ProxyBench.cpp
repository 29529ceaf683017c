// A class-form method from a Lua loop: the proxy checked with luaL_checkudata, then one
// virtual call on the pen.
#include <memory>

#include "bench/BenchCanvas.h"
#include "bench/BenchRegistry.h"
#include "bench/BenchSession.h"

namespace zebbench {

namespace {

// -- for i = 1, n do object:SetWidth(2) end, the floor's loop with the pen as object.
// The pen is made in a draw scope and outlives it, as a script's kept pen does.
Step penSetWidth(int ops) {
    auto fixture = std::make_shared<DrawingFixture>();
    lua_State* L = fixture->session.L();
    luaL_loadstring(L, "local ink = ...\n"
                       "return PenInterface.newPen(ink, zeblua_CreateNewRGBA(1, 0, 0, 1), 1)");
    CallInScope(L, fixture->canvas.inkwell, 1); /* pen */
    const int loop = fixture->session.compileLoop(LoopChunk("object", "object:SetWidth(2)"), 1);
    return [fixture, loop, ops] { fixture->session.runLoop(loop, ops); };
}

}  // namespace

void RegisterProxyBenchmarks() {
    RegisterCase("proxy/PenSetWidth", "pen:SetWidth(w) (luaL_checkudata)",
                 "floor/LuaCallsNoopMethod", 1000, penSetWidth);
}

}  // namespace zebbench

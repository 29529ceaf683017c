// A class-form method from a Lua loop: the proxy checked with luaL_checkudata, then one
// virtual call on the pen.
#include <benchmark/benchmark.h>

#include "bench/BenchCanvas.h"
#include "bench/BenchRegistry.h"
#include "bench/BenchSession.h"

namespace zebbench {

namespace {

// -- for i = 1, n do object:SetWidth(2) end, the floor's loop with the pen as object.
// The pen is made in a draw scope and outlives it, as a script's kept pen does.
void penSetWidth(benchmark::State& state, int ops) {
    BenchSession session;
    BenchCanvas canvas;
    lua_State* L = session.L();
    luaL_loadstring(L, "local ink = ...\n"
                       "return PenInterface.newPen(ink, zeblua_CreateNewRGBA(1, 0, 0, 1), 1)");
    CallInScope(L, canvas.inkwell, 1); /* pen */
    const int loop = session.compileLoop(LoopChunk("object", "object:SetWidth(2)"), 1);
    for (auto _ : state)
        session.runLoop(loop, ops);
}

}  // namespace

void RegisterProxyBenchmarks() {
    RegisterCase("proxy/PenSetWidth", "pen:SetWidth(w) (luaL_checkudata)",
                 "floor/LuaCallsNoopMethod", 1000, penSetWidth);
}

}  // namespace zebbench

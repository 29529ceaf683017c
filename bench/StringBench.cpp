// zebString from a Lua loop: a plain string function and a regular expression search,
// each called exactly as the no-op floor is, f(a, b) with f and both strings in locals.
#include <benchmark/benchmark.h>

#include "bench/BenchRegistry.h"
#include "bench/BenchSession.h"

namespace zebbench {

namespace {

void runStringLoop(benchmark::State& state, int ops, const char* function, const char* a,
                   const char* b) {
    BenchSession session;
    lua_State* L = session.L();
    lua_getglobal(L, "zebString");
    lua_getfield(L, -1, function);
    lua_remove(L, -2);
    lua_pushstring(L, a);
    lua_pushstring(L, b);
    const int loop = session.compileLoop(LoopChunk("f, a, b", "f(a, b)"), 3);
    for (auto _ : state)
        session.runLoop(loop, ops);
}

// Two strings that share a prefix, so the comparison walks some bytes.
void compare(benchmark::State& state, int ops) {
    runStringLoop(state, ops, "Compare", "alpha/beta/gamma", "alpha/beta/delta");
}

// The pattern is compiled on every call, as the module promises.
void matchB(benchmark::State& state, int ops) {
    runStringLoop(state, ops, "MatchB", "the quick brown fox", "b[a-z]+n");
}

}  // namespace

void RegisterStringBenchmarks() {
    RegisterCase("string/Compare", "zebString.Compare(a, b)", "floor/LuaCallsNoop", 1000, compare);
    RegisterCase("string/MatchB", "zebString.MatchB(s, regex)", "floor/LuaCallsNoop", 100, matchB);
}

}  // namespace zebbench

// A Lua state for one benchmark run, opened as zebhost opens one, and the loops that
// cross the boundary many times per measured iteration.
#pragma once

#include <memory>
#include <string>

#include <lua.hpp>

#include "bench/BenchRegistry.h"

namespace zebbench {

// Owns a state with the standard libraries, the library's entry points, the host's
// script layer (so the global constructors exist) and every drawing module. A set-up
// failure aborts the program: a benchmark on a half-open state measures nothing.
class BenchSession {
public:
    BenchSession();
    ~BenchSession();
    BenchSession(const BenchSession&) = delete;
    BenchSession& operator=(const BenchSession&) = delete;

    lua_State* L() const { return mL; }

    // Runs chunk with the nargs values on top of the stack as its "...", and keeps the
    // function it returns in the registry; returns the reference. The values are popped.
    int compileLoop(const std::string& chunk, int nargs);
    // Calls the Lua function under ref with argument n, outside any scope.
    void runLoop(int ref, int n);

private:
    lua_State* mL;
};

// The chunk text common to the Lua-driven loops: "...", the values the benchmark
// passes in, are named by locals, copied into locals of the loop function (a local is a
// register, an upvalue a load through the closure), then body runs n times.
//   LoopChunk("f, a, b", "f(a, b)")
std::string LoopChunk(const char* locals, const char* body);

// The step of a figure that is one Lua loop: runs the loop under ref with ops; owns session.
Step LoopStep(std::shared_ptr<BenchSession> session, int ref, int ops);

// Ends the program with what failed: a set-up that did not finish leaves nothing to measure.
[[noreturn]] void SetUpFailed(const char* what, const char* message);

}  // namespace zebbench

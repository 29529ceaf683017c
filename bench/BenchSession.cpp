// The state every benchmark run opens, and the Lua loops it drives.
#include "bench/BenchSession.h"

#include <cstdio>
#include <cstdlib>

#include "host/src/HostLuaHeap.h"
#include "host/src/Session.h"

namespace zebbench {

namespace {

void failOnLuaError(lua_State* L, int status, const char* what) {
    if (status != 0) SetUpFailed(what, lua_tostring(L, -1));
}

const char kDrawingModules[] = R"(
    require "zeblua.inkwell.zebInkwell"
    require "zeblua.inkwell.zebSurfaceInterface"
    require "zeblua.inkwell.zebSupplier"
    require "zeblua.inkwell.zebPathInterface"
    require "zeblua.inkwell.PenInterface"
)";

}  // namespace

BenchSession::BenchSession() : mL(zebhost::NewHostState()) {
    if (!mL) SetUpFailed("NewHostState", "out of memory");
    zebhost::SessionOptions options;
    options.resourcesDir = ZEBHOST_DEFAULT_RESOURCES;
    std::string error;
    if (!zebhost::OpenSession(mL, options, error)) SetUpFailed("OpenSession", error.c_str());
    lua_settop(mL, 0);
    failOnLuaError(mL, luaL_dostring(mL, kDrawingModules), "drawing modules");
    lua_settop(mL, 0);
}

BenchSession::~BenchSession() {
    zebhost::CloseHostState(mL);
}

int BenchSession::compileLoop(const std::string& chunk, int nargs) {
    failOnLuaError(mL, luaL_loadbuffer(mL, chunk.data(), chunk.size(), "=bench"), "loop chunk");
    lua_insert(mL, -nargs - 1); /* chunk below its arguments */
    failOnLuaError(mL, lua_pcall(mL, nargs, 1, 0), "loop chunk");
    return luaL_ref(mL, LUA_REGISTRYINDEX);
}

void BenchSession::runLoop(int ref, int n) {
    lua_rawgeti(mL, LUA_REGISTRYINDEX, ref);
    lua_pushinteger(mL, n);
    failOnLuaError(mL, lua_pcall(mL, 1, 0, 0), "loop");
}

std::string LoopChunk(const char* locals, const char* body) {
    return std::string("local ") + locals + " = ...\n" + "return function(n)\n  local " + locals +
           " = " + locals + "\n  for i = 1, n do " + body + " end\nend\n";
}

Step LoopStep(std::shared_ptr<BenchSession> session, int ref, int ops) {
    return [session, ref, ops] { session->runLoop(ref, ops); };
}

void SetUpFailed(const char* what, const char* message) {
    std::fprintf(stderr, "benchmark set-up failed: %s: %s\n", what, message ? message : "");
    std::exit(2);
}

}  // namespace zebbench

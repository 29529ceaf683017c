// Draw scopes opened around a callback, and PaintRect from Lua against Cairo alone.
#include <cairo.h>

#include <string>

#include <benchmark/benchmark.h>

#include "bench/BenchCanvas.h"
#include "bench/BenchRegistry.h"
#include "bench/BenchSession.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"

namespace zebbench {

namespace {

constexpr int kSurfaceSize = 256;
constexpr int kRectCount = 16;
constexpr double kRectSize = 8;

// Rectangle k of the grid both PaintRect loops fill: small, so that the fill itself is
// cheap and the crossing shows, and on whole pixels.
double rectLeft(int k) {
    return (k % 4) * 64 + 8;
}
double rectTop(int k) {
    return (k / 4) * 64 + 8;
}

// -- { AcquireInkwellProxy scope(...); lua_pcall(...) } around the given callback: the
// floor's call with the scope opened and closed around it.
void scopedCallback(benchmark::State& state, const char* callbackChunk) {
    BenchSession session;
    BenchCanvas canvas;
    lua_State* L = session.L();
    luaL_dostring(L, callbackChunk);
    lua_pushvalue(L, -1);
    CallInScope(L, canvas.inkwell, 0); /* once, checked: the loop measures no error path */
    const int callback = luaL_ref(L, LUA_REGISTRYINDEX);
    for (auto _ : state) {
        lua_rawgeti(L, LUA_REGISTRYINDEX, callback);
        int argCount = 0;
        zeblua::inkwell::AcquireInkwellProxy scope(L, &canvas.inkwell, argCount);
        lua_pcall(L, argCount, 0, 0);
    }
}

void bareScope(benchmark::State& state, int) {
    scopedCallback(state, "return function(ink) end");
}

void scopeWithSurface(benchmark::State& state, int) {
    scopedCallback(state, "return function(ink) ink:GetSurface() end");
}

// The PaintRect loop's own work in Cairo, in the order CairoSurface::PaintRect issues it.
void cairoFill(benchmark::State& state, int ops) {
    cairo_surface_t* pixels =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kSurfaceSize, kSurfaceSize);
    cairo_t* context = cairo_create(pixels);
    cairo_set_antialias(context, CAIRO_ANTIALIAS_GOOD);
    for (auto _ : state) {
        for (int i = 1; i <= ops; ++i) {
            const int k = i % kRectCount;
            cairo_new_path(context);
            cairo_rectangle(context, rectLeft(k), rectTop(k), kRectSize, kRectSize);
            cairo_set_source_rgba(context, 1, 0, 0, 1);
            cairo_fill(context);
        }
    }
    cairo_destroy(context);
    cairo_surface_destroy(pixels);
}

// An offscreen surface made in a draw scope, then filled from a Lua loop with rectangle
// and colour tables made by the script layer's constructors.
const char kPaintLoop[] = R"(
    local surface, count, rectSize = ...
    local rects = {}
    for k = 0, count - 1 do
        rects[k + 1] = zeblua_CreateNewRectF32((k % 4) * 64 + 8, math.floor(k / 4) * 64 + 8,
                                               rectSize, rectSize)
    end
    local colour = zeblua_CreateNewRGBA(1, 0, 0, 1)
    return function(n)
        for i = 1, n do surface:PaintRect(rects[i % count + 1], colour) end
    end
)";

void paintRect(benchmark::State& state, int ops) {
    BenchSession session;
    BenchCanvas canvas;
    lua_State* L = session.L();
    const std::string size = std::to_string(kSurfaceSize);
    luaL_loadstring(
        L, ("return (...):CreateOffscreenSurface(" + size + ", " + size + ", false)").c_str());
    CallInScope(L, canvas.inkwell, 1); /* surface */
    lua_pushvalue(L, -1);
    const int surface = luaL_ref(L, LUA_REGISTRYINDEX);
    lua_pushinteger(L, kRectCount);
    lua_pushnumber(L, kRectSize);
    const int loop = session.compileLoop(kPaintLoop, 3);
    for (auto _ : state)
        session.runLoop(loop, ops);
    // An offscreen surface lives until the script releases it.
    lua_rawgeti(L, LUA_REGISTRYINDEX, surface);
    lua_getfield(L, -1, "Release");
    lua_insert(L, -2);
    lua_pcall(L, 1, 0, 0);
}

}  // namespace

void RegisterDrawingBenchmarks() {
    RegisterCase("scope/Bare", "draw scope around the callback", "floor/NativeCallsLua", 1,
                 bareScope);
    RegisterCase("scope/GetSurface", "draw scope + ink:GetSurface()", "floor/NativeCallsLua", 1,
                 scopeWithSurface);
    RegisterDifference("scope/GetSurfaceAlone", "ink:GetSurface() in a scope (the two above)",
                       "proxy/PenSetWidth", "scope/GetSurface", "scope/Bare");
    RegisterFloor("floor/CairoFill", "native Cairo fill per rect", 10000, cairoFill);
    RegisterCase("draw/PaintRect", "surface:PaintRect(rect, colour) per rect", "floor/CairoFill",
                 10000, paintRect);
}

}  // namespace zebbench

// Draw scopes opened around a callback, and PaintRect from Lua against Cairo alone.
#include <cairo.h>

#include <memory>
#include <string>

#include "bench/BenchCanvas.h"
#include "bench/BenchRegistry.h"
#include "bench/BenchSession.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"

namespace zebbench {

namespace {

constexpr int kSurfaceSize = 256;
constexpr int kRectCount = 16;  // a PaintRect step's ops are whole passes over them
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
Step scopedCallback(const char* callbackChunk) {
    auto fixture = std::make_shared<DrawingFixture>();
    lua_State* L = fixture->session.L();
    luaL_dostring(L, callbackChunk);
    lua_pushvalue(L, -1);
    CallInScope(L, fixture->canvas.inkwell, 0); /* once, checked: the step measures no error path */
    const int callback = luaL_ref(L, LUA_REGISTRYINDEX);
    return [fixture, L, callback] {
        lua_rawgeti(L, LUA_REGISTRYINDEX, callback);
        int argCount = 0;
        zeblua::inkwell::AcquireInkwellProxy scope(L, &fixture->canvas.inkwell, argCount);
        lua_pcall(L, argCount, 0, 0);
    };
}

Step bareScope(int) {
    return scopedCallback("return function(ink) end");
}

Step scopeWithSurface(int) {
    return scopedCallback("return function(ink) ink:GetSurface() end");
}

// A Cairo context on its own image surface, destroyed with the step.
struct CairoTarget {
    CairoTarget()
        : pixels(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kSurfaceSize, kSurfaceSize)),
          context(cairo_create(pixels)) {}
    ~CairoTarget() {
        cairo_destroy(context);
        cairo_surface_destroy(pixels);
    }
    CairoTarget(const CairoTarget&) = delete;
    CairoTarget& operator=(const CairoTarget&) = delete;

    cairo_surface_t* pixels;
    cairo_t* context;
};

// The PaintRect loop's own work in Cairo, in the order CairoSurface::PaintRect issues it.
Step cairoFill(int ops) {
    auto target = std::make_shared<CairoTarget>();
    cairo_set_antialias(target->context, CAIRO_ANTIALIAS_GOOD);
    return [target, ops] {
        cairo_t* context = target->context;
        for (int pass = 0; pass < ops / kRectCount; ++pass) {
            for (int k = 0; k < kRectCount; ++k) {
                cairo_new_path(context);
                cairo_rectangle(context, rectLeft(k), rectTop(k), kRectSize, kRectSize);
                cairo_set_source_rgba(context, 1, 0, 0, 1);
                cairo_fill(context);
            }
        }
    };
}

// An offscreen surface made in a draw scope, then filled from a Lua loop with rectangle
// and colour tables made by the script layer's constructors, each pass over every rect.
const char kPaintLoop[] = R"(
    local surface, count, rectSize = ...
    local rects = {}
    for k = 0, count - 1 do
        rects[k + 1] = zeblua_CreateNewRectF32((k % 4) * 64 + 8, math.floor(k / 4) * 64 + 8,
                                               rectSize, rectSize)
    end
    local colour = zeblua_CreateNewRGBA(1, 0, 0, 1)
    return function(n)
        local surface, rects, colour, count = surface, rects, colour, count
        for pass = 1, n / count do
            for k = 1, count do surface:PaintRect(rects[k], colour) end
        end
    end
)";

// The offscreen surface lives until the script releases it, which the fixture does before
// its canvas and state go.
struct PaintFixture : DrawingFixture {
    ~PaintFixture() {
        lua_State* L = session.L();
        lua_rawgeti(L, LUA_REGISTRYINDEX, surface);
        lua_getfield(L, -1, "Release");
        lua_insert(L, -2);
        lua_pcall(L, 1, 0, 0);
    }

    int surface = LUA_NOREF;
};

Step paintRect(int ops) {
    auto fixture = std::make_shared<PaintFixture>();
    lua_State* L = fixture->session.L();
    const std::string size = std::to_string(kSurfaceSize);
    luaL_loadstring(
        L, ("return (...):CreateOffscreenSurface(" + size + ", " + size + ", false)").c_str());
    CallInScope(L, fixture->canvas.inkwell, 1); /* surface */
    lua_pushvalue(L, -1);
    fixture->surface = luaL_ref(L, LUA_REGISTRYINDEX);
    lua_pushinteger(L, kRectCount);
    lua_pushnumber(L, kRectSize);
    const int loop = fixture->session.compileLoop(kPaintLoop, 3);
    return [fixture, loop, ops] { fixture->session.runLoop(loop, ops); };
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

// zebhost.canvas: offscreen drawing from a script through a real draw scope.
#include "host/src/HostCanvas.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/InkwellTypes.h"
#include "zebui/inkwell/cairo/CairoSupplier.h"
#include "zebui/inkwell/cairo/CairoSurface.h"

namespace zebhost {

using zebui::inkwell::CairoSupplier;
using zebui::inkwell::CairoSurface;

CairoSupplier& CanvasSupplier() {
    static auto* sSupplier = new CairoSupplier;
    return *sSupplier;
}

bool WritePNG(CairoSurface& surface, const char* path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    std::error_code ignored;
    if (!folder.empty()) std::filesystem::create_directories(folder, ignored);
    return surface.WritePNG(path);
}

namespace {

enum class CanvasResult { kDrawn, kScriptFailed, kNotWritten };

// The protected call in which the script draws: fn at 1, the Inkwell as a light userdata
// at 2. The draw scope is made here, in a frame with no other C++ object, so a Lua memory
// error in the scope's own pushes unwinds to paintCanvas's lua_pcall, whose frame still
// releases the surface. fn's error is raised again only after the scope has closed.
int drawInScope(lua_State* L) {
    auto* inkwell = static_cast<zebui::inkwell::Inkwell*>(lua_touserdata(L, 2));
    lua_settop(L, 1); /* fn */
    int argCount = 0;
    int status = 0;
    {
        zeblua::inkwell::AcquireInkwellProxy scope(L, inkwell, argCount);
        status = lua_pcall(L, argCount, 0, 0);
    }
    return status == 0 ? 0 : lua_error(L); /* fn's own error value, as it raised it */
}

// Draws with drawInScope and fn, which the caller has pushed: the pushes that can raise
// come before this frame has C++ objects. Its C++ objects are gone when it returns, so the
// caller may raise; on kScriptFailed the script's error value is on top of the stack.
CanvasResult paintCanvas(lua_State* L, int width, int height, const char* pngPath) {
    const boost::intrusive_ptr<CairoSurface> surface(
        CanvasSupplier().MakeOffscreenCairoSurface(width, height, false));
    if (!surface) throw std::length_error("larger than 256 MiB of pixels");
    zebui::inkwell::Inkwell inkwell(&CanvasSupplier(), surface.get());
    surface->PushStateStack();
    surface->SetAntiAliasPolicy(zebui::inkwell::kAntiAliasPolicy_Med);
    lua_pushlightuserdata(L, &inkwell); /* drawInScope, fn, inkwell: no allocation */
    const int status = lua_pcall(L, 2, 0, 0);
    surface->PopStateStack();
    if (status != 0) return CanvasResult::kScriptFailed;
    if (pngPath && !WritePNG(*surface, pngPath)) return CanvasResult::kNotWritten;
    return CanvasResult::kDrawn;
}

}  // namespace

int HostCanvas(lua_State* L) {
    const lua_Integer width = luaL_checkinteger(L, 1);
    const lua_Integer height = luaL_checkinteger(L, 2);
    luaL_checktype(L, 3, LUA_TFUNCTION);
    const char* pngPath = luaL_optstring(L, 4, nullptr);
    luaL_argcheck(L, width > 0 && width <= 32767, 1, "width out of range (1 to 32767)");
    luaL_argcheck(L, height > 0 && height <= 32767, 2, "height out of range (1 to 32767)");
    lua_pushcfunction(L, drawInScope);
    lua_pushvalue(L, 3);
    const CanvasResult result = zeblua::utility::RunNative(L, "zebhost.canvas", [&] {
        return paintCanvas(L, static_cast<int>(width), static_cast<int>(height), pngPath);
    });
    switch (result) {
    case CanvasResult::kScriptFailed:
        return lua_error(L); /* fn's own error value, as it raised it */
    case CanvasResult::kNotWritten:
        return luaL_error(L, "zebhost.canvas: cannot write %s", pngPath);
    case CanvasResult::kDrawn:
        break;
    }
    lua_pushboolean(L, 1);
    return 1;
}

}  // namespace zebhost

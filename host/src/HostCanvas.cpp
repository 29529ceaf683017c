// zebhost.canvas: offscreen drawing from a script through a real draw scope.
#include "host/src/HostCanvas.h"

#include <filesystem>
#include <system_error>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/InkwellTypes.h"
#include "zebui/inkwell/cairo/CairoSupplier.h"
#include "zebui/inkwell/cairo/CairoSurface.h"

namespace zebhost {

namespace {

using zebui::inkwell::CairoSupplier;
using zebui::inkwell::CairoSurface;

enum class CanvasResult { kDrawn, kScriptFailed, kNotWritten };

// The canvas's own supplier. Never destroyed: a script may keep a surface drawn over the
// canvas (NewInkwell holds it) until its state closes.
CairoSupplier& canvasSupplier() {
    static auto* sSupplier = new CairoSupplier;
    return *sSupplier;
}

bool writePNG(CairoSurface& surface, const char* path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    std::error_code ignored;
    if (!folder.empty()) std::filesystem::create_directories(folder, ignored);
    return surface.WritePNG(path);
}

// Draws with the function at index fnIndex. Its C++ objects are gone when it returns, so
// the caller may raise; on kScriptFailed the script's error value is on top of the stack.
CanvasResult paintCanvas(lua_State* L, int width, int height, int fnIndex, const char* pngPath) {
    const boost::intrusive_ptr<CairoSurface> surface(
        canvasSupplier().MakeOffscreenCairoSurface(width, height, false));
    zebui::inkwell::Inkwell inkwell(&canvasSupplier(), surface.get());
    surface->PushStateStack();
    surface->SetAntiAliasPolicy(zebui::inkwell::kAntiAliasPolicy_Med);
    lua_pushvalue(L, fnIndex);
    int argCount = 0;
    int status = 0;
    {
        zeblua::inkwell::AcquireInkwellProxy scope(L, &inkwell, argCount);
        status = lua_pcall(L, argCount, 0, 0);
    }
    surface->PopStateStack();
    if (status != 0) return CanvasResult::kScriptFailed;
    if (pngPath && !writePNG(*surface, pngPath)) return CanvasResult::kNotWritten;
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
    switch (paintCanvas(L, static_cast<int>(width), static_cast<int>(height), 3, pngPath)) {
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

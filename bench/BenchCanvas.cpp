// Drawing targets and set-up scopes for the benchmarks.
#include "bench/BenchCanvas.h"

#include <lua.hpp>

#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"

namespace zebbench {

BenchCanvas::BenchCanvas()
    : surface(supplier.MakeOffscreenCairoSurface(16, 16, false)),
      inkwell(&supplier, surface.get()) {}

void CallInScope(lua_State* L, zebui::inkwell::Inkwell& inkwell, int nresults) {
    int argCount = 0;
    int status = 0;
    {
        zeblua::inkwell::AcquireInkwellProxy scope(L, &inkwell, argCount);
        status = lua_pcall(L, argCount, nresults, 0);
    }
    if (status != 0) SetUpFailed("a draw scope", lua_tostring(L, -1));
}

}  // namespace zebbench

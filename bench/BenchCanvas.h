// A real drawing target for the benchmarks, and draw scopes opened on it from C++ exactly
// as a draw hook opens them.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "bench/BenchSession.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/cairo/CairoSupplier.h"
#include "zebui/inkwell/cairo/CairoSurface.h"

struct lua_State;

namespace zebbench {

// The Inkwell that scopes are opened on, over a small surface of its own. The supplier
// outlives the surface it made, which outlives the Inkwell over it.
struct BenchCanvas {
    BenchCanvas();

    zebui::inkwell::CairoSupplier supplier;
    boost::intrusive_ptr<zebui::inkwell::CairoSurface> surface;
    zebui::inkwell::Inkwell inkwell;
};

// A session with a canvas for its draw scopes, for a step to own. The canvas goes first,
// then the state, as a body's locals did.
struct DrawingFixture {
    BenchSession session;
    BenchCanvas canvas;
};

// Calls the Lua function on top of the stack (popped) with a scoped Inkwell proxy for
// inkwell, keeping its nresults results on the stack; a Lua error aborts the program.
void CallInScope(lua_State* L, zebui::inkwell::Inkwell& inkwell, int nresults);

}  // namespace zebbench

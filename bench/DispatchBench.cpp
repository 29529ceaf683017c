// The paths that run on every mouse move and every frame: a move dispatched to a node with a
// bound "uiMouseEvent", and a draw pass over custom-drawn nodes, each beside its floor.
#include <memory>

#include <benchmark/benchmark.h>
#include <boost/intrusive_ptr.hpp>

#include "bench/BenchRegistry.h"
#include "bench/BenchSession.h"
#include "zeblua/ui/src/LuaControlWrapperBase.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/cairo/CairoSupplier.h"
#include "zebui/inkwell/cairo/CairoSurface.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zebbench {

namespace {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;

constexpr int kGridSide = 10;  // 100 nodes
constexpr int kCellSize = 12;
constexpr int kCanvasSize = kGridSide * kCellSize;

// Runs chunk, which returns a node wrapper, and answers its node.
NodeP nodeFromChunk(BenchSession& session, const char* chunk) {
    lua_State* L = session.L();
    const int loop = session.compileLoop(chunk, 0); /* keeps what the chunk returned */
    lua_rawgeti(L, LUA_REGISTRYINDEX, loop);
    NodeP node = zeblua::ui::GetControlUserData(L, -1)->GetNode();
    lua_pop(L, 1);
    return node;
}

// The node goes before the state whose handler it holds.
struct MoveFixture {
    BenchSession session;
    NodeP node;
};

// -- node:BindZebOperation("uiMouseEvent", function(event) end), then moves dispatched to it
Step mouseMove(int) {
    auto fixture = std::make_shared<MoveFixture>();
    fixture->node = nodeFromChunk(fixture->session, R"(
        local node = zebhost.newNode("UI_SubView", "target", zeblua_CreateNewRectF32(0, 0, 100, 100))
        node:BindZebOperation("uiMouseEvent", function(event) end)
        return node
    )");
    const zebui::ui::MouseEvent move(zebui::ui::kMouseAction_Move, zebui::ui::kMouseButton_None, 0,
                                     zebcore::geom::PointT<float>(20, 30), 0, zebui::ui::OS_Event(),
                                     0, 0, 0, 0, zebui::ui::kSwipeDirection_None, 0);
    zebui::ui::UI_NodeManager* manager = zebui::ui::UI_NodeManager::Get(false);
    return [fixture, move, manager] {
        benchmark::DoNotOptimize(manager->DispatchMouseEvent(fixture->node.get(), move));
    };
}

// A root with a grid of children, each painting its own rectangle in its "uiDraw", as a
// script's custom-drawn controls do.
const char kDrawnGrid[] = R"(
    local rect, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA
    local side, cell = 10, 12
    local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, side * cell, side * cell))
    local face = rect(1, 1, cell - 2, cell - 2)
    for i = 0, side * side - 1 do
        local node = zebhost.newNode("UI_SubView", "cell", rect((i % side) * cell,
                                     math.floor(i / side) * cell, cell, cell), root)
        local colour = rgba(i / 100, 0.5, 1 - i / 100, 1)
        node:BindZebOperation("uiDraw", function(ink)
            ink:GetSurface():PaintRect(face, colour)
            return true
        end)
    end
    return root
)";

struct Canvas {
    zebui::inkwell::CairoSupplier supplier;
    boost::intrusive_ptr<zebui::inkwell::CairoSurface> surface{
        supplier.MakeOffscreenCairoSurface(kCanvasSize, kCanvasSize, false)};
};

// The canvas, then the grid's root, go before the state, as a body's locals did.
struct PassFixture {
    BenchSession session;
    NodeP root;
    Canvas canvas;
};

Step drawPass(int) {
    auto fixture = std::make_shared<PassFixture>();
    fixture->root = nodeFromChunk(fixture->session, kDrawnGrid);
    return [fixture] {
        zebui::inkwell::Inkwell inkwell(&fixture->canvas.supplier, fixture->canvas.surface.get());
        fixture->root->DeliverDraw(&inkwell);
    };
}

// The same hundred rectangles in the same colours, from one native loop.
Step nativeRects(int) {
    auto canvas = std::make_shared<Canvas>();
    return [canvas] {
        for (int i = 0; i < kGridSide * kGridSide; ++i) {
            const float left = float((i % kGridSide) * kCellSize + 1);
            const float top = float((i / kGridSide) * kCellSize + 1);
            canvas->surface->PaintRect(
                zebui::inkwell::ColorRGBA(float(i) / 100, 0.5f, 1 - float(i) / 100, 1),
                zebcore::geom::RectT<float>(left, top, kCellSize - 2, kCellSize - 2));
        }
    };
}

}  // namespace

void RegisterDispatchBenchmarks() {
    RegisterCase("event/MouseMove", "mouse move to a bound uiMouseEvent", "floor/NativeCallsLua", 1,
                 mouseMove);
    RegisterFloor("floor/NativeRects100", "100 rects from one native loop", 1, nativeRects);
    RegisterCase("draw/Pass100", "draw pass, 100 custom-drawn nodes", "floor/NativeRects100", 1,
                 drawPass);
}

}  // namespace zebbench

// A multi-column tree drawing a thousand visible rows, each cell through a Lua callback.
#include <memory>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "bench/BenchCanvas.h"
#include "bench/BenchRegistry.h"
#include "bench/BenchSession.h"
#include "zeblua/ui/src/LuaControlWrapperBase.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zebui/inkwell/Inkwell.h"

namespace zebbench {

namespace {

constexpr int kRows = 1000;

// A tree of kRows top-level rows in one column, tall enough to show them all, whose cell
// callback paints one small rect per cell: the per-row cost of a script-drawn tree.
const char kTreeChunk[] = R"(
    require "zeblua.zebcontrols"
    local rect, colour = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA(0.2, 0.4, 0.8, 1)
    local rows = ...
    local tree = zebcontrols.NewMultiColumnTree()
    tree:UI_SetLocalRectF(rect(0, 0, 120, rows * 18))
    for i = 1, rows do tree:CreateAndAppendRow(nil, false, "row" .. i) end
    tree:LayoutAfterAppendRow()
    local drawn = 0
    tree:BindZebOperation("mctDrawCell", function(ink, row, column, r)
        drawn = drawn + 1
        ink:GetSurface():PaintRect(rect(r.left, r.top, 4, 4), colour)
    end)
    return tree, function() return drawn end
)";

// The tree goes before the canvas and the state.
struct TreeFixture : DrawingFixture {
    boost::intrusive_ptr<zebui::ui::UI_Node> tree;
};

Step drawTree(int ops) {
    auto fixture = std::make_shared<TreeFixture>();
    lua_State* L = fixture->session.L();
    if (luaL_loadstring(L, kTreeChunk) != 0) SetUpFailed("tree chunk", lua_tostring(L, -1));
    lua_pushinteger(L, ops);
    if (lua_pcall(L, 1, 2, 0) != 0) SetUpFailed("tree chunk", lua_tostring(L, -1));
    const int counter = luaL_ref(L, LUA_REGISTRYINDEX);
    zeblua::ui::LuaControlWrapperBase* wrapper = zeblua::ui::GetControlUserData(L, -1);
    fixture->tree = wrapper ? wrapper->GetNode() : nullptr;
    if (!fixture->tree) SetUpFailed("tree chunk", "no tree");
    // One draw, checked: a step that skipped rows would measure less than it claims.
    fixture->tree->DeliverDraw(&fixture->canvas.inkwell);
    lua_rawgeti(L, LUA_REGISTRYINDEX, counter);
    lua_pcall(L, 0, 1, 0);
    if (lua_tointeger(L, -1) < ops) SetUpFailed("tree draw", "not every row was drawn");
    lua_pop(L, 1); /* the tree's wrapper stays below, held as a script holds its tree */
    luaL_unref(L, LUA_REGISTRYINDEX, counter);
    return [fixture] { fixture->tree->DeliverDraw(&fixture->canvas.inkwell); };
}

}  // namespace

void RegisterTreeBenchmarks() {
    RegisterCase("tree/DrawCell", "tree cell drawn through a Lua callback, per row",
                 "scope/GetSurface", kRows, drawTree);
}

}  // namespace zebbench

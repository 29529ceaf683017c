// Lifetimes under a hostile script: kept, released, collected and forged proxies, hand-called
// and removed metamethods, coroutines around callbacks, errors and yields in every callback.
#include <string>

#include <boost/intrusive_ptr.hpp>
#include <gmock/gmock.h>
#include <lua.hpp>

#include "tests/DrawingTestFixture.h"
#include "tests/LuaTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zebcore/geom/Geometry.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/ui/src/LuaControlWrapperFactory.h"
#include "zebui/ui/EventLoop.h"
#include "zebui/ui/UI_SubView.h"

namespace {

using ::testing::HasSubstr;
using zebui::ui::EventLoop;
using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;

const char* const kSurfaceEnded = "Attempting to use an out-of-scope SurfaceInterface";
const char* const kUnbalancedPop = "PopStateStack without PushStateStack";
const char* const kYieldAcross = "attempt to yield across metamethod/C-call boundary";

// newSubView(): a wrapper of a new view, pushed on whichever thread calls.
int newSubView(lua_State* L) {
    return zeblua::ui::LuaControlWrapperFactory(NodeP(new zebui::ui::UI_SubView), L) ? 1 : 0;
}

// Nothing is required in SetUp: that a proxy opens its own module is itself under test;
// the other tests require every module first, so that each fails only by its own fault.
class LifetimeAbuseTest : public LuaTest {
protected:
    void requireModules() {
        runLua("for _, name in ipairs({'inkwell.zebInkwell', 'inkwell.zebSurfaceInterface',\n"
               "    'inkwell.zebSupplier', 'inkwell.zebPathInterface', 'inkwell.PenInterface',\n"
               "    'inkwell.ShaderInterface', 'inkwell.zebImageInterface', 'zebUIResources',\n"
               "    'zebcontrols', 'debugSupport'}) do\n"
               "  require('zeblua.' .. name)\n"
               "end");
    }

    void SetUp() override {
        LuaTest::SetUp();
        lua_register(L, "newSubView", newSubView);
        lua_pushlightuserdata(L, this);
        lua_pushcclosure(L, drawOnCanvas, 1);
        lua_setglobal(L, "drawOnCanvas");
        runLua("rect, point = zeblua_CreateNewRectF32, zeblua_CreateNewPointF32\n"
               "red = zeblua_CreateNewRGBA(1, 0, 0, 1)");
        zebcore::debug::ClearRecordedAssertReports();
    }

    // ok [, message] = drawOnCanvas(fn): a draw hook's call on the fixture's canvas, its
    // surface state saved around the scope as the hook saves it.
    static int drawOnCanvas(lua_State* L) {
        auto* self = static_cast<LifetimeAbuseTest*>(lua_touserdata(L, lua_upvalueindex(1)));
        luaL_checktype(L, 1, LUA_TFUNCTION);
        lua_settop(L, 1);
        self->mCanvas.surface->PushStateStack();
        int status = 0;
        {
            int argCount = 0;
            zeblua::inkwell::AcquireInkwellProxy scope(L, &self->mCanvas.inkwell, argCount);
            status = lua_pcall(L, argCount, 0, 0);
        }
        self->mCanvas.surface->PopStateStack();
        lua_pushboolean(L, status == 0);
        lua_insert(L, 1);
        return lua_gettop(L);
    }

    // Each of calls answers nothing, raises nothing, and makes the one report.
    void expectEnded(const std::string& call, const char* report) {
        zebcore::debug::ClearRecordedAssertReports();
        EXPECT_EQ(resultCount(call), 0) << call;
        EXPECT_EQ(reportCount(report), 1) << call;
    }

    zebui::inkwell::CairoSupplier mSupplier;
    Canvas mCanvas{mSupplier, 16};
};

TEST_F(LifetimeAbuseTest, ForgedWrappersAreBadUserData) {
    requireModules();
    runLua("real = newSubView(); nodeSet = getmetatable(real)\n"
           "function forge(fields)\n"
           "  local p = newproxy(true)\n"
           "  for k, v in pairs(fields) do getmetatable(p)[k] = v end\n"
           "  return p\n"
           "end\n"
           "copied = {}; for k, v in pairs(nodeSet) do copied[k] = v end");
    // The copy that carries the wrappers' own __gc is a finalizer the collector will run on
    // it, so that __gc ends nothing there and raises nothing.
    const struct {
        const char* forgery;
        bool gcRaises;
    } forgeries[] = {
        {"forge({ControlWrapperIdentifier = nodeSet.ControlWrapperIdentifier})", true},
        {"forge(copied)", false},
        {"forge({ControlWrapperIdentifier = print, __index = nodeSet})", true},
    };
    for (const auto& f : forgeries) {
        runLua(std::string("fake = ") + f.forgery);
        for (const char* call :
             {"nodeSet.UI_GetNodeID(fake)", "nodeSet.Release(fake)",
              "nodeSet.UI_InstallTimer(fake, 1, print)", "nodeSet.UI_RemoveTimer(fake, 1)"})
            EXPECT_THAT(luaError(call), HasSubstr("Bad user data")) << f.forgery << ": " << call;
        if (f.gcRaises)
            EXPECT_THAT(luaError("nodeSet.__gc(fake)"), HasSubstr("Bad user data")) << f.forgery;
        else
            EXPECT_EQ(resultCount("nodeSet.__gc(fake)"), 0);
    }
    runLua("fake = nil");
    collectGarbage();  // unprotected, as a host's own call: a raising __gc would abort
    EXPECT_EQ(luaValue("real:UI_InstallTimer(1, print) ~= nil"), "true");

    // A real wrapper whose mark a script removed is refused by its methods, yet the
    // collector still ends it.
    const NodeP node(new zebui::ui::UI_SubView);
    setWrapper("unmarked", node);
    runLua("getmetatable(unmarked).ControlWrapperIdentifier = nil");
    EXPECT_THAT(luaError("unmarked:UI_GetNodeID()"), HasSubstr("Bad user data"));
    runLua("unmarked = nil");
    collectGarbage();
    EXPECT_EQ(node->GetReferenceCount(), 1);
}

// A proxy never reaches a script without its metatable: pushing one opens its module.
TEST_F(LifetimeAbuseTest, ProxiesPushedBeforeTheirModuleOpenIt) {
    runLua(R"(
        assert(zebInkwell == nil and zebSurfaceInterface == nil and zebcontrols == nil)
        zebhost.canvas(8, 8, function(ink)
            inkText = tostring(ink)
            supplier = ink:GetSupplier()
            local s = ink:GetSurface()
            s:PaintRect(rect(0, 0, 8, 8), red)
            local resources = require("zeblua.zebUIResources").getResources("app_resources")
            image = resources:getImage(supplier, "zeblua_badge")
        end)
        view = newSubView()
    )");
    EXPECT_THAT(luaValue("inkText"), HasSubstr("zebInkwell("));
    EXPECT_THAT(luaValue("tostring(supplier)"), HasSubstr("zebSupplierInterface("));
    EXPECT_EQ(luaValue("image:GetWidth() > 0"), "true");
    EXPECT_EQ(luaValue("type(getmetatable(image).__gc)"), "function");
    EXPECT_EQ(luaValue("type(view:UI_GetNodeID())"), "string");
    EXPECT_EQ(luaValue("type(zebcontrols)"), "table");
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);
}

// Whatever a script does to a surface proxy's __gc inside the scope, the scope still ends
// the record, and a light userdata of it never reads freed memory.
TEST_F(LifetimeAbuseTest, SurfaceGcCalledOrRemovedLeavesTheScopeWhole) {
    requireModules();
    const char* const abuses[] = {
        "s.__gc(s)",
        "s:__gc(); s:__gc()",
        "light.__gc(light)",
        "getmetatable(s).__gc = nil",
        "getmetatable(s).__gc = nil; s = nil; ink = nil; collectgarbage()",
        "local gc = ink.__gc; getmetatable(ink).__gc = nil; gc(ink)",
    };
    runLua("surfaceMt = debug.getregistry()['zeblua.zebSurfaceInterface']\n"
           "inkMt = debug.getregistry()['zeblua.zebInkwell']\n"
           "surfaceGc, inkGc = surfaceMt.__gc, inkMt.__gc");
    for (const char* abuse : abuses) {
        runLua(std::string("assert(drawOnCanvas(function(ink)\n"
                           "  s = ink:GetSurface(); light = ink:GetSurface()\n") +
               abuse +
               "\nend))\n"
               "s, ink = nil, nil\n"
               "for i = 1, 3 do collectgarbage() end");
        // The light value names a record that is gone, over a canvas now out of scope.
        expectEnded("light:PaintRect(rect(0, 0, 4, 4), red)", kSurfaceEnded);
        runLua("surfaceMt.__gc, inkMt.__gc = surfaceGc, inkGc");
    }
    EXPECT_TRUE(mCanvas.isClear(1, 1));

    // Kept past the scope, by hand, again: nothing of the canvas is touched.
    runLua("assert(drawOnCanvas(function(ink) kept = ink:GetSurface() end))\n"
           "kept:__gc(); kept:__gc(); kept:Release()");
    expectEnded("kept:PaintRect(rect(0, 0, 4, 4), red)", kSurfaceEnded);
    EXPECT_TRUE(mCanvas.isClear(1, 1));
}

// Every metamethod a script can reach on every kind of proxy, called by hand: twice on its
// own object, on each object of another kind, inside the scope and after it; then the
// collector and the state's close find nothing they could trip over.
TEST_F(LifetimeAbuseTest, HandCalledMetamethodsOfEveryKindTouchNothingFreed) {
    requireModules();
    runLua(R"(
        calls, refused = 0, 0
        function abuse()
            for _, x in pairs(kinds) do
                local mt = getmetatable(x)
                for _, method in ipairs({"__gc", "Release", "__tostring"}) do
                    local f = mt[method]
                    if f then
                        f(x); f(x)
                        calls = calls + 2
                        for _, other in pairs(kinds) do
                            if getmetatable(other) ~= mt and not pcall(f, other) then
                                refused = refused + 1
                            end
                        end
                    end
                end
            end
        end
        assert(drawOnCanvas(function(ink)
            local off = ink:CreateOffscreenSurface(4, 4, false)
            kinds = {
                ink, ink:GetSurface(), ink:GetSurface(), off, zebInkwell.NewInkwell(off),
                PathInterface.newPath(ink), PenInterface.newPen(ink, red, 1),
                Shader.newLinearShader(ink, point(0, 0), point(1, 1), red, red),
                ink:GetSupplier(), off:GetSurfaceImage(), newSubView(),
                zebUIResources.getResources("zebui_resources"),
            }
            abuse()
            kinds[2]:PaintRect(rect(0, 0, 8, 8), red)
        end))
        abuse()
        for _, x in ipairs(kinds) do tostring(x) end
        -- Every __gc copied into a script's own metatable, for the collector to find.
        for _, x in ipairs(kinds) do
            getmetatable(newproxy(true)).__gc = getmetatable(x).__gc
        end
    )");
    EXPECT_EQ(luaValue("#kinds"), "12");
    EXPECT_GT(std::stoi(luaValue("calls")), 40);
    EXPECT_GT(std::stoi(luaValue("refused")), 100);
    EXPECT_TRUE(mCanvas.isClear(1, 1)) << "a released surface drew";
    runLua("kinds = nil");
    collectGarbage();  // unprotected, as a host's own call: a raising __gc would abort
    collectGarbage();
}

TEST_F(LifetimeAbuseTest, ExtraPopsCannotReachTheScopesSavedState) {
    requireModules();
    const struct {
        const char* body;
        int refusedPops;
    } cases[] = {
        {"s:PopStateStack()", 1},
        {"s:PopStateStack(); light:PopStateStack()", 2},
        {"s:PushStateStack(); s:PopStateStack(); light:PopStateStack()", 1},
        {"s:PushStateStack(); s:PushStateStack()", 0},  // left for the scope to pop
        {"s:PushStateStack(); s:Release()", 0},
    };
    for (const auto& c : cases) {
        zebcore::debug::ClearRecordedAssertReports();
        runLua(std::string("assert(drawOnCanvas(function(ink)\n"
                           "  s = ink:GetSurface(); light = ink:GetSurface()\n") +
               c.body + "\n  light:Transform({{1, 0, 5}, {0, 1, 5}, {0, 0, 1}})\nend))");
        EXPECT_EQ(reportCount(kUnbalancedPop), c.refusedPops) << c.body;
        zebcore::geom::MatrixT<float> matrix;
        mCanvas.surface->GetTransform(matrix);
        EXPECT_EQ(matrix(0, 2), 0.0f) << c.body << ": the scope's transform leaked";
        // The hook's own pop took the hook's own state: the stack is empty again.
        zebcore::debug::ClearRecordedAssertReports();
        mCanvas.surface->PopStateStack();
        EXPECT_EQ(reportCount(kUnbalancedPop), 1) << c.body << ": a state leaked past the scope";
    }
}

// Ticks run on the main thread, so a coroutine that pushed the wrapper may die, be
// collected, or stay suspended; a tick's errors and yields go nowhere.
TEST_F(LifetimeAbuseTest, TimersSurviveTheirCoroutinesAndTheirOwnFaults) {
    requireModules();
    runLua(R"(
        ticks, errors = 0, {}
        local co = coroutine.create(function()
            kept = newSubView()
            local id = kept:UI_InstallTimer(0.01, function() end)
            kept:UI_RemoveTimer(id)
        end)
        assert(coroutine.resume(co))
        co = nil
    )");
    for (int i = 0; i < 3; ++i)
        collectGarbage();
    runLua(R"(
        kept:UI_InstallTimer(0.01, function()
            ticks = ticks + 1
            local ok, message = pcall(coroutine.yield)
            errors[#errors + 1] = message
            if ticks == 2 then coroutine.yield() end
            if ticks == 3 then error("boom") end
        end)
    )");
    EventLoop::Get()->AdvanceTime(45);
    EXPECT_EQ(luaValue("ticks"), "4");
    EXPECT_THAT(luaValue("errors[1]"), HasSubstr(kYieldAcross));
    EXPECT_EQ(luaValue("#errors"), "4");

    // A timer whose wrapper lost its __gc still ends with the state, before any tick
    // could reach the closed state.
    const NodeP node(new zebui::ui::UI_SubView);
    setWrapper("w", node);
    runLua("getmetatable(w).__gc = nil; w:UI_InstallTimer(0.01, function() end); w = nil");
    collectGarbage();
    lua_close(L);
    L = nullptr;
    EXPECT_EQ(node->GetReferenceCount(), 1);
    EventLoop::Get()->AdvanceTime(50);
}

// Bound operations are callbacks too: bound from a coroutine that is gone, failing,
// yielding, ending their own wrapper or popping their scope's state, they leave the node,
// the draw pass and the input dispatch working.
TEST_F(LifetimeAbuseTest, BoundOperationsSurviveTheirFaults) {
    requireModules();
    runLua(R"(
        root = zebhost.newNode("UI_SubView")
        root:UI_SetLocalRectF(rect(0, 0, 16, 16))
        local co = coroutine.create(function()
            local view = zebhost.newNode("UI_SubView")
            view:UI_SetLocalRectF(rect(0, 0, 16, 16))
            root:ChildPushBack(view)
            view:BindZebOperation("uiDraw", function(ink)
                draws = (draws or 0) + 1
                kept = ink:GetSurface()
                kept:PopStateStack()
                kept:PaintRect(rect(0, 0, 4, 4), red)
                getmetatable(view).__gc(view)
                if draws == 2 then error("drawn wrong") end
                if draws == 3 then coroutine.yield() end
            end)
            view:BindZebOperation("uiMouseEvent", function(event)
                clicks = (clicks or 0) + 1
                if clicks == 1 then coroutine.yield() end
                error("clicked wrong")
            end)
        end)
        assert(coroutine.resume(co))
        co = nil
        collectgarbage(); collectgarbage()
        for i = 1, 3 do pictures = { zebhost.draw(root) } end
        for i = 1, 2 do zebhost.click(root, 2, 2) end
    )");
    EXPECT_EQ(luaValue("draws"), "3");
    EXPECT_GE(std::stoi(luaValue("clicks")), 2);  // every event of both clicks reached it
    EXPECT_EQ(luaValue("table.concat({ pictures[1]:pixel(1, 1) }, ',')"), "255,0,0,255");
    expectEnded("kept:PaintRect(rect(0, 0, 1, 1), red)", kSurfaceEnded);
}

// Where no opener ever ran on the main thread there is no thread for ticks: a wrapper
// pushed from a coroutine (its module opened on the way) refuses timers with a report.
TEST_F(LifetimeAbuseTest, WithoutAKnownMainThreadTimersAreRefused) {
    lua_State* bare = luaL_newstate();
    luaL_openlibs(bare);
    lua_register(bare, "newSubView", newSubView);
    ASSERT_EQ(luaL_dostring(bare, "return coroutine.wrap(function()\n"
                                  "  local w = newSubView()\n"
                                  "  return select('#', w:UI_InstallTimer(0.01, print))\n"
                                  "end)()"),
              0)
        << lua_tostring(bare, -1);
    EXPECT_EQ(lua_tointeger(bare, -1), 0);
    lua_close(bare);
    EXPECT_EQ(reportCount("No main thread: open the library on it before timers"), 1);
}

// Errors and yields in a draw scope and in the coverage hook end as Lua errors, and the
// scope still closes.
TEST_F(LifetimeAbuseTest, ErrorsAndYieldsInsideCallbacksAreCleanLuaErrors) {
    requireModules();
    const struct {
        const char* code;
        const char* error;
    } cases[] = {
        {"zebhost.canvas(4, 4, function(ink) kept = ink:GetSurface(); coroutine.yield() end)",
         kYieldAcross},
        {"zebhost.canvas(4, 4, function(ink) kept = ink:GetSurface(); error('drawn wrong') end)",
         "drawn wrong"},
        {"error(select(2, drawOnCanvas(function(ink) kept = ink:GetSurface();"
         " coroutine.yield() end)))",
         kYieldAcross},
        {"setmetatable(coverage.hits, {__newindex = function() coroutine.yield() end})\n"
         "coverage.start()\n"
         "local x = 1\n",
         kYieldAcross},
        {"setmetatable(coverage.hits, {__newindex = function() error('no hits') end})\n"
         "coverage.start()\n"
         "local x = 1\n",
         "no hits"},
    };
    runLua("coverage = debugSupport.coverageSupport");
    for (const auto& c : cases) {
        runLua(std::string("co = coroutine.create(function()\n") + c.code +
               "\nend)\n"
               "ok, message = coroutine.resume(co)\n"
               "setmetatable(coverage.hits, nil)");
        EXPECT_EQ(luaValue("ok"), "false") << c.code;
        EXPECT_THAT(luaValue("message"), HasSubstr(c.error)) << c.code;
        EXPECT_EQ(luaValue("coroutine.status(co)"), "dead") << c.code;
        if (luaValue("kept ~= nil") == "true")
            expectEnded("kept:PaintRect(rect(0, 0, 1, 1), red)", kSurfaceEnded);
        runLua("kept = nil");
    }
}

}  // namespace

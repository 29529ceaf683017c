// Drawing scopes: Inkwell and surface proxies end with their scope, nested scopes, the
// light userdata of a second GetSurface, collection mid-scope, owned Inkwells, offscreen.
#include <new>
#include <string>

#include <gmock/gmock.h>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "tests/DrawingTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaImageInterface.h"
#include "zeblua/inkwell/src/LuaInkwell.h"
#include "zeblua/inkwell/src/LuaSurfaceInterface.h"
#include "zebui/inkwell/ImageInterface.h"
#include "zebui/inkwell/SurfaceInterface.h"

namespace {

using ::testing::HasSubstr;
using zeblua::inkwell::InkwellProxy;
using zebui::inkwell::CairoSurface;
using zebui::inkwell::SurfaceInterface;

const char* const kInkwellEnded = "Attempting to use an out-of-scope Inkwell";
const char* const kSurfaceEnded = "Attempting to use an out-of-scope SurfaceInterface";

// addressOf(userdata): its block as a light userdata, to compare with a reused record.
int addressOf(lua_State* L) {
    lua_pushlightuserdata(L, lua_touserdata(L, 1));
    return 1;
}

// skipScope(fn): opens a scope on the Inkwell of its upvalue, calls fn in it, then raises
// before the guard can close it: a Lua error leaves a guard's destructor unrun.
int skipScope(lua_State* L) {
    auto* inkwell = static_cast<zebui::inkwell::Inkwell*>(lua_touserdata(L, lua_upvalueindex(1)));
    lua_pushvalue(L, 1);
    int argCount = 0;
    new (lua_newuserdata(L, sizeof(zeblua::inkwell::AcquireInkwellProxy)))
        zeblua::inkwell::AcquireInkwellProxy(L, inkwell, argCount); /* fn, guard, proxy */
    lua_remove(L, -2);
    lua_call(L, argCount, 0);
    return luaL_error(L, "the scope is skipped");
}

class DrawingScopeTest : public DrawingTest {
protected:
    // The record behind the global surface proxy name.
    InkwellProxy* surfaceRecord(const char* name) {
        lua_getglobal(L, name);
        InkwellProxy* record = zeblua::inkwell::zeblua_checkSurface(L, -1);
        lua_pop(L, 1);
        return record;
    }
    CairoSurface* cairoSurfaceOf(const char* name) {
        return dynamic_cast<CairoSurface*>(surfaceRecord(name)->surface);
    }
    // Each call answers nothing, raises nothing, and makes exactly the one report.
    void expectEnded(const std::string& call, const char* report) {
        zebcore::debug::ClearRecordedAssertReports();
        EXPECT_EQ(resultCount(call), 0) << call;
        EXPECT_EQ(reportCount(report), 1) << call;
        EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 1u) << call;
    }
};

TEST_F(DrawingScopeTest, KeptProxiesAnswerAsEndedOnceTheirScopeHasClosed) {
    runLua(R"(
        function keep(ink)
            ink:Release()  -- a draw callback's Inkwell is the toolkit's: no effect
            keptInk = ink
            keptSurface = ink:GetSurface()
            keptSurface:PaintRect(rect(0, 0, 4, 4), red)
            liveText = tostring(keptSurface)
        end
    )");
    draw(mCanvas.inkwell, "keep");
    EXPECT_EQ(mCanvas.surface->ReadPixel(1, 1), kRedPixel);
    EXPECT_NE(luaValue("liveText"), "zebSurfaceInterface(" + nullPointerText() + ")");

    const struct {
        const char* call;
        const char* report;
    } cases[] = {
        {"keptInk:GetSurface()", kInkwellEnded},
        {"keptInk:GetSupplier()", kInkwellEnded},
        {"keptInk:CreateOffscreenSurface(4, 4, false)", kInkwellEnded},
        {"PathInterface.newPath(keptInk)", kInkwellEnded},
        {"PenInterface.newPen(keptInk, red, 1)", kInkwellEnded},
        {"Shader.newLinearShader(keptInk, point(0, 0), point(1, 1), red, blue)", kInkwellEnded},
        {"Shader.newRadialShader(keptInk, point(0, 0), point(1, 1), red, blue)", kInkwellEnded},
        {"keptSurface:PaintRect(rect(4, 4, 8, 8), blue)", kSurfaceEnded},
        // The scope is tested before any argument: wrong ones raise nothing.
        {"keptSurface:FillPath(42)", kSurfaceEnded},
        {"keptSurface:StrokePath()", kSurfaceEnded},
        {"keptSurface:ShadePath('no shader')", kSurfaceEnded},
        {"keptSurface:PushStateStack()", kSurfaceEnded},
        {"keptSurface:PopStateStack()", kSurfaceEnded},
        {"keptSurface:GetSurfaceImage()", kSurfaceEnded},
        {"keptSurface:Flush()", kSurfaceEnded},
        {"keptSurface:Release()", kSurfaceEnded},
        {"zebInkwell.NewInkwell(keptSurface)", kSurfaceEnded},
    };
    for (const auto& c : cases)
        expectEnded(c.call, c.report);

    EXPECT_TRUE(mCanvas.isClear(6, 6)) << "an ended surface drew";
    EXPECT_EQ(luaValue("tostring(keptInk)"), "zebInkwell(" + nullPointerText() + ")");
    EXPECT_EQ(luaValue("tostring(keptSurface)"), "zebSurfaceInterface(" + nullPointerText() + ")");
    // __gc of ended scoped proxies touches nothing of the toolkit's.
    runLua("keptInk, keptSurface = nil, nil");
    collectGarbage();
    EXPECT_EQ(mCanvas.surface->GetReferenceCount(), 1);
}

TEST_F(DrawingScopeTest, ASecondGetSurfaceIsTheSameRecordAsALightUserdata) {
    runLua(R"(
        function twice(ink)
            first = ink:GetSurface()
            second = ink:GetSurface()
            kinds = type(first) .. "," .. type(second)
            same = rawequal(first, second)
            second:PaintRect(rect(0, 0, 4, 4), red)
        end
        function releaseThroughSecond(ink)
            local a = ink:GetSurface()
            local b = ink:GetSurface()
            b:Release()
            a:PaintRect(rect(0, 0, 4, 4), red)          -- ended through b
            ink:GetSurface():PaintRect(rect(0, 0, 4, 4), red)  -- the same ended record
            b:Release()                                 -- a second Release reports
        end
    )");
    draw(mCanvas.inkwell, "twice");
    EXPECT_EQ(luaValue("kinds"), "userdata,userdata");
    EXPECT_EQ(luaValue("same"), "false");
    lua_getglobal(L, "first");
    lua_getglobal(L, "second");
    EXPECT_FALSE(lua_islightuserdata(L, -2));
    EXPECT_TRUE(lua_islightuserdata(L, -1));
    EXPECT_EQ(lua_touserdata(L, -2), lua_touserdata(L, -1));
    lua_pop(L, 2);
    EXPECT_EQ(mCanvas.surface->ReadPixel(1, 1), kRedPixel);
    expectEnded("first:PaintRect(rect(8, 8, 4, 4), blue)", kSurfaceEnded);
    expectEnded("second:PaintRect(rect(8, 8, 4, 4), blue)", kSurfaceEnded);
    EXPECT_TRUE(mCanvas.isClear(9, 9));

    zebcore::debug::ClearRecordedAssertReports();
    draw(mOther.inkwell, "releaseThroughSecond");
    EXPECT_EQ(reportCount(kSurfaceEnded), 3);
    EXPECT_TRUE(mOther.isClear(1, 1));

    // Lua 5.1 keeps one metatable for all light userdata: any of them is now a surface
    // proxy, and one that names no record answers as an ended surface.
    int unrelated = 0;
    lua_pushlightuserdata(L, &unrelated);
    ASSERT_TRUE(lua_getmetatable(L, -1));
    luaL_getmetatable(L, zeblua::inkwell::kZebLuaSurfaceMetaTableName);
    EXPECT_TRUE(lua_rawequal(L, -1, -2));
    lua_pop(L, 2);
    lua_setglobal(L, "stray");
    expectEnded("stray:PaintRect(rect(0, 0, 1, 1), red)", kSurfaceEnded);
    EXPECT_EQ(unrelated, 0);
}

TEST_F(DrawingScopeTest, ClosingANestedScopeEndsTheParentsSurfaceOnTheSameInkwellOnly) {
    defineDispatch("dispatchSame", mCanvas.inkwell);
    defineDispatch("dispatchOther", mOther.inkwell);
    lua_register(L, "addressOf", addressOf);
    runLua(R"(
        function child(ink)
            ink:GetSurface():PaintRect(rect(12, 0, 4, 4), blue)
        end
        function parent(ink)
            local s = ink:GetSurface()
            local address = addressOf(s)
            s:PaintRect(rect(0, 0, 4, 4), red)
            dispatchOther("child")
            s:PaintRect(rect(0, 4, 4, 4), red)   -- another Inkwell: still live
            dispatchSame("child")
            s:PaintRect(rect(0, 8, 4, 4), red)   -- ended by the child's scope
            s = nil
            fullCollect()                         -- the Inkwell proxy still names the record
            fullCollect()
            local again = ink:GetSurface()
            sameRecord = rawequal(again, address)
            again:PaintRect(rect(0, 12, 4, 4), red)
            parentInkLive = ink:GetSupplier() ~= nil
        end
    )");
    draw(mCanvas.inkwell, "parent");
    EXPECT_EQ(mCanvas.surface->ReadPixel(1, 1), kRedPixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(1, 5), kRedPixel);
    EXPECT_TRUE(mCanvas.isClear(1, 9));
    EXPECT_TRUE(mCanvas.isClear(1, 13));
    EXPECT_EQ(mCanvas.surface->ReadPixel(13, 1), kBluePixel);
    EXPECT_EQ(mOther.surface->ReadPixel(13, 1), kBluePixel);
    EXPECT_EQ(reportCount(kSurfaceEnded), 2);
    EXPECT_EQ(luaValue("parentInkLive"), "true");
    EXPECT_EQ(luaValue("sameRecord"), "true") << "GetSurface gave another record back";
}

TEST_F(DrawingScopeTest, RecordsStayWritableThroughAFullCollectionInTheMiddleOfAScope) {
    // The surface is taken in a frame of its own, so no stale register of the callback
    // holds it or the Inkwell proxy when the collector runs.
    runLua(R"(
        function paint(ink)
            local s = ink:GetSurface()
            s:PaintRect(rect(0, 0, 4, 4), red)
            strayLight = ink:GetSurface()   -- an address: the collector does not follow it
        end
        function dropEverything(ink)
            paint(ink)
            ink = nil                        -- the argument too: nothing in Lua holds it
            fullCollect()
            fullCollect()
            strayLight:PaintRect(rect(4, 0, 4, 4), red)   -- still this scope's surface
        end
    )");
    draw(mCanvas.inkwell, "dropEverything");
    EXPECT_EQ(mCanvas.surface->ReadPixel(1, 1), kRedPixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(5, 1), kRedPixel);
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);
    // Once the scope is closed the records may go; the light userdata outlives them.
    for (int i = 0; i < 4; ++i)
        collectGarbage();
    expectEnded("strayLight:PaintRect(rect(8, 0, 4, 4), red)", kSurfaceEnded);
    EXPECT_TRUE(mCanvas.isClear(9, 1));

    // A proxy made outside any guard: once it is gone, its surface record is held only
    // for the scope on its Inkwell, and ends with that scope.
    zeblua::inkwell::newProxyFromInkwell(L, &mOther.inkwell, nullptr);
    lua_setglobal(L, "unguarded");
    runLua("paint(unguarded) unguarded = nil");
    for (int i = 0; i < 4; ++i)
        collectGarbage();
    runLua("strayLight:PaintRect(rect(4, 0, 4, 4), red)");
    EXPECT_EQ(mOther.surface->ReadPixel(5, 1), kRedPixel);
    runLua("function nothing(ink) end");
    draw(mOther.inkwell, "nothing");
    expectEnded("strayLight:PaintRect(rect(8, 0, 4, 4), red)", kSurfaceEnded);
    EXPECT_TRUE(mOther.isClear(9, 1));
}

TEST_F(DrawingScopeTest, AnOwnedInkwellDrawsOffscreenAndTheImageOutlivesBothReleases) {
    runLua(R"(
        function offscreen(ink)
            local scoped = ink:GetSurface()
            off = ink:CreateOffscreenSurface(8, 8, false)
            offIsNew = not rawequal(off, scoped) and type(off) == "userdata"
            own = zebInkwell.NewInkwell(off)
            ownSurface = own:GetSurface()
            ownSurface:PaintRect(rect(0, 0, 8, 8), red)
            image = off:GetSurfaceImage()
            own:Release()
            off:Release()
            own:Release()                  -- a second Release of an Inkwell does nothing
        end
    )");
    draw(mCanvas.inkwell, "offscreen");
    EXPECT_EQ(luaValue("offIsNew"), "true");
    EXPECT_TRUE(mCanvas.isClear(1, 1)) << "the offscreen drawing reached the canvas";
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);
    collectGarbage();
    EXPECT_EQ(luaValue("image:GetWidth() .. 'x' .. image:GetHeight()"), "8x8");
    lua_getglobal(L, "image");
    zebui::inkwell::ImageInterface* image = *zeblua::inkwell::zeblua_checkImage(L, -1);
    lua_pop(L, 1);
    EXPECT_EQ(image->GetReferenceCount(), 1);
    mOther.surface->DrawImage(*image, zebcore::geom::PointT<float>(0, 0), 1.0f);
    EXPECT_EQ(mOther.surface->ReadPixel(7, 7), kRedPixel);
    EXPECT_TRUE(mOther.isClear(8, 8));
    // Both releases ended what came from them; the Inkwell's scope went with it.
    expectEnded("own:GetSurface()", kInkwellEnded);
    expectEnded("ownSurface:PaintRect(rect(0, 0, 8, 8), blue)", kSurfaceEnded);
    expectEnded("off:Flush()", kSurfaceEnded);
    expectEnded("off:Release()", kSurfaceEnded);
}

TEST_F(DrawingScopeTest, AnOwnedInkwellAndItsSurfaceMayGoInEitherOrder) {
    runLua(R"(
        function make(ink)
            first = ink:CreateOffscreenSurface(4, 4, false)
            firstInk = zebInkwell.NewInkwell(first)
            second = ink:CreateOffscreenSurface(4, 4, false)
            secondInk = zebInkwell.NewInkwell(second)
            square = PathInterface.newPath(ink)
            square:AddRect(rect(0, 0, 4, 4))
        end
    )");
    draw(mCanvas.inkwell, "make");
    // The collector ends an owned Inkwell; its surface then fills with its own supplier.
    runLua("firstInk = nil");
    collectGarbage();
    collectGarbage();
    runLua("first:FillPath(square, blue)");
    EXPECT_EQ(cairoSurfaceOf("first")->ReadPixel(1, 1), kBluePixel);
    runLua("first:Release()");
    // The surface released first: the Inkwell keeps it for its own drawing.
    boost::intrusive_ptr<SurfaceInterface> second(surfaceRecord("second")->surface);
    runLua("second:Release()");
    EXPECT_EQ(second->GetReferenceCount(), 2);  // this test's and the Inkwell's
    runLua("secondInk:GetSurface():PaintRect(rect(0, 0, 4, 4), red)");
    EXPECT_EQ(static_cast<CairoSurface*>(second.get())->ReadPixel(2, 2), kRedPixel);
    runLua("secondInk:Release()");
    EXPECT_EQ(second->GetReferenceCount(), 1);
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);
}

TEST_F(DrawingScopeTest, AnOffscreenSurfaceTheScriptNeverReleasesOutlivesTheCollector) {
    runLua(R"(
        function make(ink)
            forgotten = ink:CreateOffscreenSurface(4, 4, true)
            released = ink:CreateOffscreenSurface(4, 4, true)
        end
    )");
    draw(mCanvas.inkwell, "make");
    boost::intrusive_ptr<SurfaceInterface> forgotten(surfaceRecord("forgotten")->surface);
    boost::intrusive_ptr<SurfaceInterface> released(surfaceRecord("released")->surface);
    EXPECT_EQ(forgotten->GetReferenceCount(), 2);
    runLua("released:Release()");
    EXPECT_EQ(released->GetReferenceCount(), 1);
    expectEnded("released:Release()", kSurfaceEnded);
    EXPECT_EQ(released->GetReferenceCount(), 1);

    runLua("forgotten, released = nil, nil");
    collectGarbage();
    collectGarbage();
    EXPECT_EQ(forgotten->GetReferenceCount(), 2) << "the collector freed an offscreen surface";
    // The script's reference is lost for good; give it back here so nothing leaks.
    intrusive_ptr_release(forgotten.get());
}

TEST_F(DrawingScopeTest, AStateClosedWithAScopeLeftOpenLeavesNoListedRecord) {
    // A proxy made outside any guard, in a state of its own, takes a surface: that scope
    // is never closed before the state goes.
    lua_State* other = luaL_newstate();
    luaL_openlibs(other);
    zeblua::inkwell::luaopen_zebluaInkwell(other);
    zeblua::inkwell::luaopen_zebSurfaceInterface(other);
    lua_settop(other, 0);
    zeblua::inkwell::newProxyFromInkwell(other, &mCanvas.inkwell, nullptr);
    lua_setglobal(other, "ink");
    ASSERT_EQ(luaL_dostring(other, "surface = ink:GetSurface()"), 0) << lua_tostring(other, -1);
    lua_close(other);
    // The next scope on that Inkwell ends only what is still there.
    runLua("function draw(ink) ink:GetSurface():PaintRect(rect(0, 0, 2, 2), red) end");
    draw(mCanvas.inkwell, "draw");
    EXPECT_EQ(mCanvas.surface->ReadPixel(0, 0), kRedPixel);
}

// A scope's proxies carry a metatable without __gc from the start, so that ending them
// calls no Lua function and collecting them costs nothing; scripts see the registered
// table, the same methods and texts, and no revival by later scopes, which reuse the
// anchors of the same depth.
TEST_F(DrawingScopeTest, AnEndedProxyLooksTheSameToScriptsAndHasNoFinalizer) {
    runLua(R"(
        function keep(ink)
            keptInk, keptSurface = ink, ink:GetSurface()
            inkMeta, surfaceMeta = getmetatable(ink), getmetatable(keptSurface)
            liveGC = debug.getmetatable(ink).__gc ~= nil
        end
        function later(ink) ink:GetSurface():PaintRect(rect(0, 0, 2, 2), red) end
    )");
    draw(mCanvas.inkwell, "keep");
    for (int i = 0; i < 3; ++i)
        draw(mCanvas.inkwell, "later");
    EXPECT_EQ(luaValue("getmetatable(keptInk) == inkMeta"), "true");
    EXPECT_EQ(luaValue("getmetatable(keptSurface) == surfaceMeta"), "true");
    EXPECT_EQ(luaValue("liveGC"), "false");
    EXPECT_EQ(luaValue("debug.getmetatable(keptInk).__gc"), "nil");
    EXPECT_EQ(luaValue("debug.getmetatable(keptSurface).__gc"), "nil");
    EXPECT_EQ(luaValue("keptInk.GetSurface == inkMeta.GetSurface"), "true");
    EXPECT_EQ(luaValue("tostring(keptSurface)"), "zebSurfaceInterface(" + nullPointerText() + ")");
    expectEnded("keptInk:GetSurface()", kInkwellEnded);
    expectEnded("keptSurface:PaintRect(rect(4, 4, 2, 2), blue)", kSurfaceEnded);
    // Its own __gc, reached through __index and called by hand, ends nothing.
    EXPECT_EQ(resultCount("keptInk.__gc(keptInk)"), 0);
    EXPECT_THAT(luaError("keptInk.GetSurface(keptSurface)"),
                HasSubstr("zeblua.zebInkwell expected"));
    EXPECT_TRUE(mCanvas.isClear(5, 5));
    runLua("keptInk, keptSurface = nil, nil");
    collectGarbage();
    EXPECT_EQ(mCanvas.surface->GetReferenceCount(), 1);
}

// A guard skipped by a Lua error leaves its records anchored and listed. The next guard of
// its depth, here on another Inkwell, ends and unlists them before it takes their slots:
// otherwise a record let go would still be listed when a scope on its Inkwell closes.
TEST_F(DrawingScopeTest, AGuardALuaErrorSkippedIsEndedByTheNextGuardOfItsDepth) {
    lua_pushlightuserdata(L, &mCanvas.inkwell);
    lua_pushcclosure(L, skipScope, 1);
    lua_setglobal(L, "skipScope");
    defineDispatch("dispatchOther", mOther.inkwell);
    runLua(R"(
        function stale(ink) staleSurface = ink:GetSurface() end
        function outer(ink) skipped = select(2, pcall(skipScope, stale)) end
        function child(ink) ink:GetSurface():PaintRect(rect(4, 0, 2, 2), blue) end
        function parent(ink) dispatchOther("child") end
    )");
    draw(mOther.inkwell, "outer");
    EXPECT_THAT(luaValue("skipped"), HasSubstr("the scope is skipped"));
    draw(mOther.inkwell, "parent");
    expectEnded("staleSurface:PaintRect(rect(0, 0, 2, 2), red)", kSurfaceEnded);
    runLua("staleSurface = nil");
    collectGarbage();
    draw(mCanvas.inkwell, "child");
    EXPECT_EQ(mCanvas.surface->ReadPixel(5, 1), kBluePixel);
    EXPECT_EQ(mOther.surface->ReadPixel(5, 1), kBluePixel);
    EXPECT_TRUE(mCanvas.isClear(1, 1));
}

}  // namespace

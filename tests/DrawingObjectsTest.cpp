// Paths, pens, shaders, images and suppliers: they outlive scopes, reach the surface with
// their arguments and defaults, and report once released.
#include <cstdio>
#include <string>
#include <vector>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "tests/DrawingTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/inkwell/src/LuaPenInterface.h"
#include "zeblua/inkwell/src/LuaShaderInterface.h"
#include "zeblua/inkwell/src/LuaSupplier.h"
#include "zebui/inkwell/PenInterface.h"
#include "zebui/inkwell/ShaderInterface.h"
#include "zebui/inkwell/cairo/CairoPen.h"

namespace {

using zebui::inkwell::PenInterface;

const char* const kPathReleased = "Attempting to use a release PathInterface";
const char* const kPathReleasedForSurface = "Attempting to use a released PathInterface";
const char* const kPenEnded = "Attempting to use an out-of-scope PenInterface";
const char* const kShaderReleased = "Attempting to use a released ShaderInterface";

class DrawingObjectsTest : public DrawingTest {
protected:
    PenInterface* pen(const char* name) {
        lua_getglobal(L, name);
        PenInterface* object = *zeblua::inkwell::zeblua_checkPenInterface(L, -1);
        lua_pop(L, 1);
        return object;
    }
    std::string penDescription(const char* name) {
        return dynamic_cast<zebui::inkwell::CairoPen&>(*pen(name)).Describe();
    }
};

TEST_F(DrawingObjectsTest, ObjectsMadeInOneScopeDrawInALaterOneOnAnotherSurface) {
    runLua(R"(
        function make(ink)
            square = PathInterface.newPath(ink)
            square:AddRect(rect(2, 2, 4, 4))
            line = PathInterface.newPath(ink)
            line:MoveTo(0, 10)
            line:LineTo(16, 10)
            pen = PenInterface.newPen(ink, blue, 2)
            shader = Shader.newLinearShader(ink, point(0, 0), point(16, 0), red, blue)
            band = PathInterface.newPath(ink)
            band:AddRect(rect(0, 12, 16, 4))
        end
        function use(ink)
            local s = ink:GetSurface()
            s:FillPath(square, red)
            s:StrokePath(line, pen)
            s:ShadePath(band, shader)
        end
    )");
    draw(mCanvas.inkwell, "make");
    draw(mOther.inkwell, "use");
    EXPECT_EQ(mOther.surface->ReadPixel(3, 3), kRedPixel);
    EXPECT_TRUE(mOther.isClear(1, 1));
    EXPECT_TRUE(mOther.isClear(7, 7));
    EXPECT_EQ(mOther.surface->ReadPixel(8, 9), kBluePixel);
    EXPECT_EQ(mOther.surface->ReadPixel(8, 10), kBluePixel);
    EXPECT_TRUE(mOther.isClear(8, 8));
    const auto left = mOther.surface->ReadPixel(0, 14);
    const auto right = mOther.surface->ReadPixel(15, 14);
    EXPECT_GT(left[0], 200);
    EXPECT_LT(left[2], 50);
    EXPECT_GT(right[2], 200);
    EXPECT_LT(right[0], 50);
    EXPECT_EQ(mCanvas.inkedPixelCount(), 0) << "making objects drew";
}

TEST_F(DrawingObjectsTest, ArgumentsAndDefaultsReachTheSurfaceInOrder) {
    mCanvas.surface->SetCallLogEnabled(true);
    runLua(R"(
        function log(ink)
            local s = ink:GetSurface()
            local p = PathInterface.newPath(ink)
            p:MoveTo(1, 2)
            p:LineTo(3, 4)
            p:BezierTo(point(5, 6), point(7, 8), point(9, 10))
            p:AddRect(rect(0, 1, 2, 3))
            p:AddArc(point(8, 8), 4)
            p:AddArc(point(8, 8), 2, 90, 45)
            p:ClosePath()
            local pen = PenInterface.newPen(ink, blue, 2)
            local shader = Shader.newLinearShader(ink, point(0, 0), point(16, 0), red, blue)
            s:FillPath(p, red)
            s:FillPath(p, red, 0)
            s:StrokePath(p, pen)
            s:StrokePath(p, red, 3)
            s:ShadePath(p, shader)
            s:ShadePath(p, shader, 0)
            s:PaintRect(rect(1, 2, 3, 4), blue)
        end
    )");
    draw(mCanvas.inkwell, "log");
    const std::string path =
        "path=[M(1,2) L(3,4) C(5,6,7,8,9,10) R(0,1,2,3) A(8,8,4,0,360) A(8,8,2,90,45) Z]";
    EXPECT_EQ(
        loggedCalls(mCanvas, "FillPath"),
        (std::vector<std::string>{"FillPath(brush=(1,0,0,1), " + path + ", windingFill=true)",
                                  "FillPath(brush=(1,0,0,1), " + path + ", windingFill=false)"}));
    const auto strokes = loggedCalls(mCanvas, "StrokePath");
    ASSERT_EQ(strokes.size(), 2u);
    EXPECT_EQ(strokes[0].find("StrokePath(pen=(colour=(0,0,1,1), width=2,"), 0u) << strokes[0];
    EXPECT_EQ(strokes[1].find("StrokePath(pen=(colour=(1,0,0,1), width=3,"), 0u) << strokes[1];
    const std::string shader = "shader=linear((0,0),(16,0),0:(1,0,0,1),1:(0,0,1,1))";
    EXPECT_EQ(
        loggedCalls(mCanvas, "ShadePath"),
        (std::vector<std::string>{"ShadePath(" + shader + ", " + path + ", windingFill=true)",
                                  "ShadePath(" + shader + ", " + path + ", windingFill=false)"}));
    EXPECT_EQ(loggedCalls(mCanvas, "PaintRect"),
              std::vector<std::string>{"PaintRect(colour=(0,0,1,1), rect=(1,2,3,4))"});
}

TEST_F(DrawingObjectsTest, StrokePathTakesItsFormFromTheNumberOfValues) {
    runLua(R"(
        function stroke(ink)
            local s = ink:GetSurface()
            local row = PathInterface.newPath(ink)
            row:MoveTo(0, 2)
            row:LineTo(16, 2)
            s:StrokePath(row, PenInterface.newPen(ink, blue, 2))   -- 3 values: a pen
            local lower = PathInterface.newPath(ink)
            lower:MoveTo(0, 8)
            lower:LineTo(16, 8)
            s:StrokePath(lower, red, 4)                           -- 4 values: colour, width
            colourWithoutWidth = select(2, pcall(s.StrokePath, s, row, red))
            penWithWidth = select(2, pcall(s.StrokePath, s, row, PenInterface.newPen(ink, red, 1), 3))
        end
    )");
    draw(mCanvas.inkwell, "stroke");
    EXPECT_EQ(mCanvas.surface->ReadPixel(5, 1), kBluePixel);
    EXPECT_TRUE(mCanvas.isClear(5, 3));
    for (int y = 6; y < 10; ++y)
        EXPECT_EQ(mCanvas.surface->ReadPixel(5, y), kRedPixel) << y;
    EXPECT_TRUE(mCanvas.isClear(5, 5));
    EXPECT_TRUE(mCanvas.isClear(5, 10));
    EXPECT_NE(luaValue("colourWithoutWidth")
                  .find("bad argument #3 to '?' (zeblua.inkwell.PenInterface expected, got table)"),
              std::string::npos)
        << luaValue("colourWithoutWidth");
    EXPECT_NE(
        luaValue("penWithWidth").find("bad argument #3 to '?' (table expected, got userdata)"),
        std::string::npos)
        << luaValue("penWithWidth");
}

TEST_F(DrawingObjectsTest, ReleasedObjectsReportWhereTheyAreUsedAndReleaseTwiceIsHarmless) {
    runLua(R"(
        function make(ink)
            path = PathInterface.newPath(ink)
            livePath = PathInterface.newPath(ink)
            livePath:AddRect(rect(0, 0, 16, 16))
            pen = PenInterface.newPen(ink, red, 1)
            shader = Shader.newRadialShader(ink, point(8, 8), point(16, 8), red, blue)
            image = ink:GetSurface():GetSurfaceImage()
            liveTexts = {tostring(path), tostring(pen), tostring(shader), tostring(image)}
        end
        function useReleased(ink)
            local s = ink:GetSurface()
            s:FillPath(path, red)
            s:StrokePath(path, red, 1)
            s:ShadePath(path, shader)
            s:StrokePath(livePath, pen)
            s:ShadePath(livePath, shader)
        end
    )");
    draw(mCanvas.inkwell, "make");
    const std::string null = nullPointerText();
    const char* const names[] = {"path", "pen", "shader", "image"};
    const char* const shown[] = {"zebPathInterface(", "PenInterface(", "ShaderInterface(",
                                 "ImageInterface("};
    for (int i = 0; i < 4; ++i) {
        const std::string live = luaValue(std::string("liveTexts[") + std::to_string(i + 1) + "]");
        EXPECT_EQ(live.find(shown[i]), 0u) << live;
        EXPECT_EQ(live.find(null), std::string::npos) << live;
        runLua(std::string(names[i]) + ":Release() " + names[i] + ":Release()");
        EXPECT_EQ(luaValue(std::string("tostring(") + names[i] + ")"), shown[i] + null + ")");
    }
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);

    const struct {
        const char* call;
        const char* report;  // null: no report at all
    } cases[] = {
        {"path:MoveTo(1, 2)", kPathReleased},
        {"path:LineTo(1, 2)", kPathReleased},
        {"path:BezierTo(point(0, 0), point(1, 1), point(2, 2))", kPathReleased},
        {"path:AddRect(rect(0, 0, 1, 1))", kPathReleased},
        {"path:AddArc(point(0, 0), 1)", kPathReleased},
        {"path:ClosePath()", kPathReleased},
        {"pen:SetWidth(2)", kPenEnded},
        {"pen:GetWidth()", kPenEnded},
        {"pen:GetMiterLimit()", kPenEnded},
        {"pen:SetLineCap(1)", kPenEnded},
        {"pen:GetLineJoin()", kPenEnded},
        {"pen:SetDashPattern(1, 2)", kPenEnded},
        {"image:GetWidth()", nullptr},
        {"image:GetHeight()", nullptr},
    };
    for (const auto& c : cases) {
        zebcore::debug::ClearRecordedAssertReports();
        EXPECT_EQ(resultCount(c.call), 0) << c.call;
        EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), c.report ? 1u : 0u) << c.call;
        if (c.report) {
            EXPECT_EQ(reportCount(c.report), 1) << c.call;
        }
    }

    zebcore::debug::ClearRecordedAssertReports();
    draw(mOther.inkwell, "useReleased");
    EXPECT_EQ(reportCount(kPathReleasedForSurface), 3);
    EXPECT_EQ(reportCount(kPenEnded), 1);
    EXPECT_EQ(reportCount(kShaderReleased), 1);
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 5u);
    EXPECT_TRUE(mOther.isClear(8, 8));
    // __gc after Release: nothing left to free twice.
    runLua("path, pen, shader, image = nil, nil, nil, nil");
    collectGarbage();
}

// A point or rect field's __index may release the very path being built: the method looks
// at the path again once its tables are read, and reports instead of using a freed path.
TEST_F(DrawingObjectsTest, APathReleasedWhileItsArgumentsAreReadIsLookedAtAgain) {
    runLua(R"(
        function releasing(victim)
            local done = false
            return setmetatable({}, {__index = function()
                if not done then done = true; victim:Release() end
                return 1
            end})
        end
        function make(ink) paths = {} for i = 1, 3 do paths[i] = PathInterface.newPath(ink) end end
    )");
    draw(mCanvas.inkwell, "make");
    const char* const calls[] = {
        "paths[1]:BezierTo(point(0, 0), releasing(paths[1]), point(2, 2))",
        "paths[2]:AddRect(releasing(paths[2]))",
        "paths[3]:AddArc(releasing(paths[3]), 1)",
    };
    for (const char* call : calls) {
        zebcore::debug::ClearRecordedAssertReports();
        EXPECT_EQ(resultCount(call), 0) << call;
        EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 1u) << call;
        EXPECT_EQ(reportCount(kPathReleased), 1) << call;
    }
}

TEST_F(DrawingObjectsTest, PenPropertiesAndDashPatternsReachThePen) {
    runLua(R"(
        function make(ink) pen = PenInterface.newPen(ink, red, 1) end
    )");
    draw(mCanvas.inkwell, "make");
    runLua(R"(
        pen:SetWidth(3)
        pen:SetMiterLimit(4)
        pen:SetLineJoin(PenInterface.kLineJoinType_Round)
        pen:SetLineCap(PenInterface.kLineCapType_Square)
        pen:SetDashPattern(4, 2, 1)
        got = table.concat({pen:GetWidth(), pen:GetMiterLimit(), pen:GetLineJoin(),
                            pen:GetLineCap()}, ",")
    )");
    EXPECT_EQ(luaValue("got"), "3,4,2,2");
    EXPECT_EQ(penDescription("pen"),
              "(colour=(1,0,0,1), width=3, miterLimit=4, join=2, cap=2, dashes=(4,2,1))");
    runLua("pen:SetDashPattern()");
    EXPECT_NE(penDescription("pen").find("dashes=()"), std::string::npos);
    EXPECT_NE(luaError("pen:SetDashPattern(1, 'x')").find("bad argument #2 to 'SetDashPattern'"),
              std::string::npos);
    EXPECT_NE(penDescription("pen").find("dashes=()"), std::string::npos);
}

TEST_F(DrawingObjectsTest, PensAndShadersHoldTheirOwnReferenceAgainstNativeCountedPointers) {
    runLua(R"(
        function make(ink)
            pen = PenInterface.newPen(ink, red, 2)
            shader = Shader.newLinearShader(ink, point(0, 0), point(1, 0), red, blue)
        end
    )");
    draw(mCanvas.inkwell, "make");
    PenInterface* penObject = pen("pen");
    lua_getglobal(L, "shader");
    zebui::inkwell::ShaderInterface* shaderObject =
        *zeblua::inkwell::zeblua_checkShaderInterface(L, -1);
    lua_pop(L, 1);
    EXPECT_EQ(penObject->GetReferenceCount(), 1);
    EXPECT_EQ(shaderObject->GetReferenceCount(), 1);
    {
        // A toolkit call that holds the pen for a while and lets go.
        boost::intrusive_ptr<PenInterface> borrowed(penObject);
        boost::intrusive_ptr<zebui::inkwell::ShaderInterface> borrowedShader(shaderObject);
    }
    EXPECT_EQ(luaValue("pen:GetWidth()"), "2");
    EXPECT_EQ(penObject->GetReferenceCount(), 1);
    EXPECT_EQ(shaderObject->GetReferenceCount(), 1);
    // Release and the collector free them; the leak checker would see it otherwise.
    runLua("pen:Release() shader = nil");
    collectGarbage();
}

TEST_F(DrawingObjectsTest, ScriptMistakesAreOrdinaryLuaErrors) {
    runLua(R"(
        function make(ink)
            path = PathInterface.newPath(ink)
            keptInk = ink
        end
    )");
    draw(mCanvas.inkwell, "make");
    // A method call counts its arguments after self, as Lua's own messages do.
    const struct {
        const char* code;
        const char* error;
    } cases[] = {
        {"path:MoveTo(point(1, 1))", "bad argument #1 to 'MoveTo' (number expected, got table)"},
        {"path:LineTo(1)", "bad argument #2 to 'LineTo' (number expected, got no value)"},
        {"path:BezierTo(1, 2, 3)", "bad argument #1 to 'BezierTo' (table expected, got number)"},
        {"path:AddArc(point(0, 0), 1, nil)",
         "bad argument #3 to 'AddArc' (number expected, got nil)"},
        {"PathInterface.newPath(path)", "zeblua.zebInkwell expected"},
        {"path.MoveTo(keptInk, 1, 2)", "zeblua.zebPathInterface expected"},
        {"PenInterface.newPen(keptInk, red, 1):SetWidth(2)", "attempt to index a nil value"},
    };
    for (const auto& c : cases) {
        const std::string message = luaError(c.code);
        EXPECT_NE(message.find(c.error), std::string::npos) << c.code << ": " << message;
    }
}

TEST_F(DrawingObjectsTest, ASupplierProxyLendsTheInkwellsSupplier) {
    runLua(R"(
        function take(ink)
            supplier = ink:GetSupplier()
            supplierText = tostring(supplier)
            supplier.__gc(supplier)
        end
    )");
    draw(mCanvas.inkwell, "take");
    lua_getglobal(L, "supplier");
    EXPECT_EQ(zeblua::inkwell::zeblua_checkSupplier(L, -1), &mSupplier);
    char expected[64];
    std::snprintf(expected, sizeof expected, "zebSupplierInterface(%p)", lua_touserdata(L, -1));
    lua_pop(L, 1);
    EXPECT_EQ(luaValue("supplierText"), expected);
    EXPECT_NE(luaError("PathInterface.newPath(supplier)").find("zeblua.zebInkwell expected"),
              std::string::npos);
}

}  // namespace

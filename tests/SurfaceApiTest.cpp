// The surface methods and zebInkwell.MeasureStringWidth: check order and reports, optional
// arguments by count, argument order at the surface, and what lands in the pixels.
#include <string>
#include <vector>

#include <lua.hpp>

#include "tests/DrawingTestFixture.h"
#include "tests/FailingAllocator.h"
#include "zebcore/debug/Debug.h"

namespace {

const char* const kSurfaceEnded = "Attempting to use an out-of-scope SurfaceInterface";
const char* const kPathReleased = "Attempting to use a released PathInterface";
const char* const kPenEnded = "Attempting to use an out-of-scope PenInterface";
const char* const kShaderReleased = "Attempting to use a released ShaderInterface";
const char* const kImageEnded = "Attempting to use an out-of-scope ImageInterface";

class SurfaceApiTest : public DrawingTest {
protected:
    void SetUp() override {
        DrawingTest::SetUp();
        // Live and released objects of every kind, and a surface whose scope has closed.
        runLua(R"(
            function imageOf(ink)
                local off = ink:CreateOffscreenSurface(2, 2, false)
                local picture = off:GetSurfaceImage()
                off:Release() -- the collector never frees an offscreen surface
                return picture
            end
            function makeObjects(ink)
                deadSurface = ink:GetSurface()
                path = PathInterface.newPath(ink)
                path:AddRect(rect(0, 0, 4, 4))
                pen = PenInterface.newPen(ink, blue, 1)
                shader = Shader.newLinearShader(ink, point(0, 0), point(4, 0), red, blue)
                image = imageOf(ink)
                releasedPath = PathInterface.newPath(ink)
                releasedPen = PenInterface.newPen(ink, red, 1)
                releasedShader = Shader.newRadialShader(ink, point(0, 0), point(1, 0), red, blue)
                releasedImage = imageOf(ink)
                releasedPath:Release()
                releasedPen:Release()
                releasedShader:Release()
                releasedImage:Release()
            end
        )");
        draw(mOther.inkwell, "makeObjects");
        zebcore::debug::ClearRecordedAssertReports();
    }

    // Runs "s:<call>" on a live surface of the canvas inside a draw scope; the number of
    // results is left in the global count.
    void callOnLiveSurface(const std::string& call) {
        runLua("function case(ink) local s = ink:GetSurface(); count = select('#', s:" + call +
               ") end");
        draw(mCanvas.inkwell, "case");
    }
};

TEST_F(SurfaceApiTest, AnEndedSurfaceReportsOnceBeforeItLooksAtAnyArgument) {
    // Arguments that are dead, of the wrong type or missing: the surface is tested first.
    const char* const calls[] = {
        "PushStateStack()",
        "PopStateStack()",
        "DrawString()",
        "MeasureStringWidth('text')",
        "PaintRect('not a rect')",
        "DrawOutline(rect(0, 0, 4, 4), red)",
        "DrawRoundedFill(rect(0, 0, 4, 4), red)",
        "StrokePath(releasedPath, releasedPen)",
        "StrokePath(path, red, 1)",
        "FillPath(releasedPath, red)",
        "ShadePath(releasedPath, releasedShader)",
        "Transform({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}})",
        "GetTransform()",
        "Clip(releasedPath)",
        "GetClipBounds()",
        "IsWithinClipBounds(rect(0, 0, 1, 1))",
        "DrawImage(releasedImage, point(0, 0))",
        "DrawImage2(releasedImage, rect(0, 0, 4, 4))",
        "DrawImage2(image, nil)",
        "SetAntiAliasPolicy(1)",
        "GetAntiAliasPolicy()",
        "GetSurfaceImage()",
        "Flush()",
        "Release()",
    };
    for (const char* call : calls) {
        zebcore::debug::ClearRecordedAssertReports();
        runLua(std::string("count = select('#', deadSurface:") + call + ")");
        EXPECT_EQ(luaValue("count"), "0") << call;
        EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 1u) << call;
        EXPECT_EQ(reportCount(kSurfaceEnded), 1) << call;
    }
    EXPECT_TRUE(mOther.isClear(1, 1));
}

TEST_F(SurfaceApiTest, ObjectArgumentsAreTestedInOrderEachWithItsOwnReport) {
    const struct {
        const char* call;
        const char* report;
    } cases[] = {
        {"StrokePath(releasedPath, releasedPen)", kPathReleased},
        {"StrokePath(path, releasedPen)", kPenEnded},
        {"StrokePath(releasedPath, red, 1)", kPathReleased},
        {"FillPath(releasedPath, red)", kPathReleased},
        {"ShadePath(releasedPath, releasedShader)", kPathReleased},
        {"ShadePath(path, releasedShader)", kShaderReleased},
        {"Clip(releasedPath)", kPathReleased},
        {"DrawImage(releasedImage, point(0, 0))", kImageEnded},
        // The object is tested before the later arguments are read.
        {"DrawImage(releasedImage, 'not a point')", kImageEnded},
        {"DrawImage2(releasedImage, rect(0, 0, 4, 4), rect(0, 0, 1, 1), 0.5)", kImageEnded},
    };
    for (const auto& c : cases) {
        zebcore::debug::ClearRecordedAssertReports();
        callOnLiveSurface(c.call);
        EXPECT_EQ(luaValue("count"), "0") << c.call;
        EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 1u) << c.call;
        EXPECT_EQ(reportCount(c.report), 1) << c.call;
    }
    EXPECT_EQ(mCanvas.inkedPixelCount(), 0) << "a refused call drew";
}

TEST_F(SurfaceApiTest, OptionalArgumentsGoByCountSoAnExplicitNilIsPresentAndFails) {
    mCanvas.surface->SetCallLogEnabled(true);
    runLua(R"(
        nilCalls = {
            function(s) s:DrawOutline(rect(0, 0, 8, 8), red, nil) end,
            function(s) s:DrawOutline(rect(0, 0, 8, 8), red, 2, nil) end,
            function(s) s:DrawString("x", 0, 0, red, 0, nil) end,
            function(s) s:DrawString("x", 0, 0, red, 0, 12, 0, nil) end,
            function(s) s:MeasureStringWidth("x", nil) end,
            function(s) s:FillPath(path, red, nil) end,
            function(s) s:ShadePath(path, shader, nil) end,
            function(s) s:Clip(path, nil) end,
            function(s) s:DrawImage(image, point(0, 0), nil) end,
            function(s) s:DrawImage2(image, rect(0, 0, 8, 8), nil) end,
            function(s) s:DrawImage2(image, rect(0, 0, 8, 8), rect(0, 0, 1, 1), nil) end,
            -- Four values: the colour form, whose colour is not a pen.
            function(s) s:StrokePath(path, pen, nil) end,
        }
        function defaults(ink)
            local s = ink:GetSurface()
            errors = {}
            for i, call in ipairs(nilCalls) do
                errors[i] = select(2, pcall(call, s))
            end
            s:DrawOutline(rect(0, 0, 8, 8), red)
            s:DrawString("x", 0, 0, red)
            s:MeasureStringWidth("x")
            s:FillPath(path, red)
            s:DrawImage(image, point(1, 2))
            s:DrawImage2(image, rect(0, 0, 8, 8))
            s:Clip(path)
        end
    )");
    draw(mCanvas.inkwell, "defaults");
    const char* const expected[] = {
        "#3 to 'DrawOutline' (number expected, got nil)",
        "#4 to 'DrawOutline' (number expected, got nil)",
        "#6 to 'DrawString' (number expected, got nil)",
        "#8 to 'DrawString' (number expected, got nil)",
        "#2 to 'MeasureStringWidth' (number expected, got nil)",
        "#3 to 'FillPath' (number expected, got nil)",
        "#3 to 'ShadePath' (number expected, got nil)",
        "#2 to 'Clip' (number expected, got nil)",
        "#3 to 'DrawImage' (number expected, got nil)",
        "#3 to 'DrawImage2' (table expected, got nil)",
        "#4 to 'DrawImage2' (number expected, got nil)",
        "#2 to 'StrokePath' (table expected, got userdata)",
    };
    for (int i = 0; i < 12; ++i) {
        const std::string error = luaValue("errors[" + std::to_string(i + 1) + "]");
        EXPECT_NE(error.find(expected[i]), std::string::npos) << i + 1 << ": " << error;
    }
    // Left out, each takes its default; the outline is drawn inside the rectangle.
    EXPECT_EQ(loggedCalls(mCanvas, "StrokePath"),
              std::vector<std::string>{"StrokePath(pen=(colour=(1,0,0,1), width=1, miterLimit=10, "
                                       "join=0, cap=0, dashes=()), path=[R(0.5,0.5,7,7)])"});
    EXPECT_EQ(loggedCalls(mCanvas, "DrawString"),
              std::vector<std::string>{"DrawString(brush=(1,0,0,1), font=(family=DejaVu Sans, "
                                       "style=, size=12), text=\"x\", point=(0,0), alignment=0, "
                                       "truncation=0, width=0)"});
    EXPECT_EQ(loggedCalls(mCanvas, "MeasureStringWidth"),
              std::vector<std::string>{"MeasureStringWidth(font=(family=DejaVu Sans, style=, "
                                       "size=12), text=\"x\", length=-1)"});
    EXPECT_EQ(loggedCalls(mCanvas, "FillPath"),
              std::vector<std::string>{"FillPath(brush=(1,0,0,1), path=[R(0,0,4,4)], "
                                       "windingFill=true)"});
    EXPECT_EQ(loggedCalls(mCanvas, "DrawImage("),
              std::vector<std::string>{"DrawImage(image=2x2, point=(1,2), opacity=1)"});
    EXPECT_EQ(loggedCalls(mCanvas, "DrawImage2"),
              std::vector<std::string>{"DrawImage2(supplier=set, image=2x2, destRect=(0,0,8,8), "
                                       "srcRect=null, opacity=1)"});
    EXPECT_EQ(loggedCalls(mCanvas, "Clip"),
              std::vector<std::string>{"Clip(path=[R(0,0,4,4)], windingFill=true)"});
}

TEST_F(SurfaceApiTest, DrawStringHandsTheSurfaceTruncationBeforeWidth) {
    mCanvas.surface->SetCallLogEnabled(true);
    runLua(R"(
        function text(ink)
            local s = ink:GetSurface()
            -- alignment 2, size 20, width 80, truncation 3; x and y are integers
            s:DrawString("Hello\0hidden", 3.7, 4.2, blue, 2, 20, 80, 3)
            s:DrawString("", 0, 0, red)
            s:DrawString("W", 1, 1, red, zebSurfaceInterface.kTextAlignment_Default, 14)
        end
    )");
    draw(mCanvas.inkwell, "text");
    EXPECT_EQ(
        loggedCalls(mCanvas, "DrawString"),
        (std::vector<std::string>{
            "DrawString(brush=(0,0,1,1), font=(family=DejaVu Sans, style=, size=20), "
            "text=\"Hello\", point=(3,4), alignment=2, truncation=3, width=80)",
            "DrawString(brush=(1,0,0,1), font=(family=DejaVu Sans, style=, size=12), text=\"\", "
            "point=(0,0), alignment=0, truncation=0, width=0)",
            "DrawString(brush=(1,0,0,1), font=(family=DejaVu Sans, style=, size=14), text=\"W\", "
            "point=(1,1), alignment=0, truncation=0, width=0)",
        }));
    EXPECT_GT(mCanvas.inkedPixelCount(), 10);
}

TEST_F(SurfaceApiTest, TextWidthsGrowWithTextAndSizeWithOrWithoutASurface) {
    runLua(R"(
        function measure(ink)
            local s = ink:GetSurface()
            short, long = s:MeasureStringWidth("Wide"), s:MeasureStringWidth("Wide text")
            large = s:MeasureStringWidth("Wide", 24)
            cut = s:MeasureStringWidth("Wide\0 text")
        end
    )");
    draw(mCanvas.inkwell, "measure");
    EXPECT_EQ(luaValue("type(short)"), "number");
    EXPECT_EQ(luaValue("short > 20 and long > short"), "true");
    EXPECT_EQ(luaValue("math.abs(large - 2 * short) < 1"), "true");
    EXPECT_EQ(luaValue("cut == short"), "true");
    EXPECT_EQ(luaValue("zebInkwell.MeasureStringWidth('Wide') == short"), "true");
    EXPECT_EQ(luaValue("zebInkwell.MeasureStringWidth('Wide text') == long"), "true");

    // Beyond the text: size from position 4, family from position 5; 2 and 3 are not read.
    EXPECT_EQ(
        luaValue("zebInkwell.MeasureStringWidth('Wide', 'x', {}, 24, 'DejaVu Sans') == large"),
        "true");
    EXPECT_EQ(
        luaValue("zebInkwell.MeasureStringWidth('Wide', nil, nil, 12, 'DejaVu Serif') ~= short"),
        "true");
    const struct {
        const char* call;
        const char* error;
    } forms[] = {
        {"zebInkwell.MeasureStringWidth('Wide', 24)", "bad argument #4"},
        {"zebInkwell.MeasureStringWidth('Wide', 24, 'DejaVu Sans')", "bad argument #4"},
        {"zebInkwell.MeasureStringWidth('Wide', nil, nil, 24)", "bad argument #5"},
        {"zebInkwell.MeasureStringWidth()", "bad argument #1"},
    };
    for (const auto& form : forms) {
        const std::string error = luaError(std::string("return ") + form.call);
        EXPECT_NE(error.find(form.error), std::string::npos) << form.call << ": " << error;
    }
}

TEST_F(SurfaceApiTest, ClipBoundsComeBackAsFloatsAndTheTestAnswersOneOrZero) {
    mCanvas.surface->SetCallLogEnabled(true);
    runLua(R"(
        function clip(ink)
            local s = ink:GetSurface()
            whole = s:GetClipBounds()
            local p = PathInterface.newPath(ink)
            p:AddRect(rect(0, 0, 8, 8))
            s:Clip(p)
            bounds = s:GetClipBounds()
            inside = s:IsWithinClipBounds(rect(2, 2, 2, 2))
            outside = s:IsWithinClipBounds(rect(10, 10, 2, 2))
            edge = s:IsWithinClipBounds(rect(7.5, 0.2, 0.2, 0.5))
            outsideIsTrue = outside and true
            s:PaintRect(rect(0, 0, 16, 16), red)
        end
    )");
    draw(mCanvas.inkwell, "clip");
    EXPECT_EQ(luaValue("whole"), "{left=0, top=0, width=16, height=16}");
    EXPECT_EQ(luaValue("bounds"), "{left=0, top=0, width=8, height=8}");
    EXPECT_EQ(luaValue("type(inside)"), "number");
    EXPECT_EQ(luaValue("inside"), "1");
    EXPECT_EQ(luaValue("outside"), "0");
    EXPECT_EQ(luaValue("type(outside)"), "number");
    EXPECT_EQ(luaValue("outsideIsTrue"), "true");
    EXPECT_EQ(luaValue("edge"), "1");
    const auto tests = loggedCalls(mCanvas, "IsWithinClipBounds");
    ASSERT_EQ(tests.size(), 3u);
    EXPECT_EQ(tests[2], "IsWithinClipBounds(rect=(7,0,1,1))");  // rounded outwards
    EXPECT_EQ(mCanvas.surface->ReadPixel(7, 7), kRedPixel);
    EXPECT_TRUE(mCanvas.isClear(8, 8));
    EXPECT_TRUE(mCanvas.isClear(0, 8));
}

TEST_F(SurfaceApiTest, OnlyTheThreeAntiAliasPoliciesArePassedOn) {
    mCanvas.surface->SetCallLogEnabled(true);
    runLua(R"(
        function policies(ink)
            local s = ink:GetSurface()
            seen = {}
            for i, value in ipairs({0, 1.5, 3, -1, 1, 2.0, 0.999, 0}) do
                s:SetAntiAliasPolicy(value)
                seen[i] = s:GetAntiAliasPolicy()
            end
            seen = table.concat(seen, " ")
        end
    )");
    draw(mCanvas.inkwell, "policies");
    EXPECT_EQ(luaValue("seen"), "0 0 0 0 1 2 2 0");
    EXPECT_EQ(loggedCalls(mCanvas, "SetAntiAliasPolicy"),
              (std::vector<std::string>{"SetAntiAliasPolicy(0)", "SetAntiAliasPolicy(1)",
                                        "SetAntiAliasPolicy(2)", "SetAntiAliasPolicy(0)"}));
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);
    EXPECT_EQ(luaValue("zebSurfaceInterface.kTextAlignment_Default == "
                       "zebSurfaceInterface.kTextAlignment_Left"),
              "true");
}

TEST_F(SurfaceApiTest, ShapesAndTransformsLandInThePixels) {
    runLua(R"(
        function shapes(ink)
            local s = ink:GetSurface()
            s:DrawRoundedFill(rect(0, 0, 16, 10), red, 4)
            s:PushStateStack()
            s:Transform({{1, 0, 4}, {0, 1, 10}, {0, 0, 1}})
            moved = s:GetTransform()
            s:DrawOutline(rect(0, 0, 8, 6), blue)
            s:PopStateStack()
            restored = s:GetTransform()
        end
    )");
    draw(mCanvas.inkwell, "shapes");
    EXPECT_EQ(luaValue("moved"), "{{1, 0, 4}, {0, 1, 10}, {0, 0, 1}}");
    EXPECT_EQ(luaValue("restored"), "{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}");
    // Rounded corners stay clear; the middle and the straight edges are filled.
    EXPECT_TRUE(mCanvas.isClear(0, 0));
    EXPECT_TRUE(mCanvas.isClear(15, 9));
    EXPECT_EQ(mCanvas.surface->ReadPixel(8, 0), kRedPixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(0, 4), kRedPixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(8, 4), kRedPixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(15, 5), kRedPixel);
    // A one-pixel outline of the moved rectangle (4, 10, 8, 6): its edge pixels only.
    for (const auto& edge : {std::make_pair(4, 10), std::make_pair(11, 10), std::make_pair(4, 15),
                             std::make_pair(11, 15), std::make_pair(7, 10), std::make_pair(4, 12)})
        EXPECT_EQ(mCanvas.surface->ReadPixel(edge.first, edge.second), kBluePixel)
            << edge.first << "," << edge.second;
    EXPECT_TRUE(mCanvas.isClear(7, 12));
    EXPECT_TRUE(mCanvas.isClear(3, 10));
    EXPECT_TRUE(mCanvas.isClear(12, 15));
}

TEST_F(SurfaceApiTest, AnOffscreenSurfaceDrawsOntoAnotherWholeScaledAndInPart) {
    runLua(R"(
        function compose(ink)
            -- Drawn before NewInkwell: the surface's own supplier makes brush and font.
            local off = ink:CreateOffscreenSurface(4, 4, false)
            off:DrawRoundedFill(rect(0, 0, 4, 4), blue, 0)
            off:PaintRect(rect(0, 0, 2, 4), red)
            local picture = off:GetSurfaceImage()
            off:PaintRect(rect(0, 0, 4, 4), red) -- after the image was taken: not in it
            off:Release()
            local s = ink:GetSurface()
            s:DrawImage(picture, point(0, 0))
            s:DrawImage(picture, point(12, 0), 0.5)
            s:DrawImage2(picture, rect(8, 8, 8, 8))
            s:DrawImage2(picture, rect(0, 8, 4, 4), rect(2, 0, 2, 2), 0.5)
            picture:Release()
        end
    )");
    draw(mCanvas.inkwell, "compose");
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);
    EXPECT_EQ(mCanvas.surface->ReadPixel(0, 0), kRedPixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(3, 3), kBluePixel);
    EXPECT_TRUE(mCanvas.isClear(4, 0));
    EXPECT_TRUE(mCanvas.isClear(11, 0));
    EXPECT_EQ(mCanvas.surface->ReadPixel(12, 0)[3], 128);
    // Scaled twice: the red half covers x 8..11, blended only where the halves meet.
    EXPECT_EQ(mCanvas.surface->ReadPixel(8, 8), kRedPixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(9, 15), kRedPixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(14, 8), kBluePixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(15, 15), kBluePixel);
    // The blue source quarter, at half opacity.
    const auto half = mCanvas.surface->ReadPixel(1, 9);
    EXPECT_NEAR(half[3], 128, 2);
    EXPECT_EQ(half[0], 0);
    EXPECT_GT(half[2], 250);
    EXPECT_TRUE(mCanvas.isClear(5, 9));
}

// A field's __index is script code, and it may release the surface or an object argument
// while the method reads its tables: the method looks at each again before it draws, and
// makes the report of an ended object instead of reaching a freed or null one.
TEST_F(SurfaceApiTest, AnObjectReleasedWhileTheTablesAreReadIsLookedAtAgain) {
    runLua(R"(
        -- A table whose every field is 1; the first read releases victim.
        function releasing(victim)
            local done = false
            return setmetatable({}, {__index = function()
                if not done then done = true; victim:Release() end
                return 1
            end})
        end
    )");
    const struct {
        const char* setup;
        const char* call;
        const char* report;
    } cases[] = {
        {"local off = ink:CreateOffscreenSurface(4, 4, false)",
         "off:PaintRect(releasing(off), red)", kSurfaceEnded},
        {"local off = ink:CreateOffscreenSurface(4, 4, false)",
         "off:DrawString('a', 0, 0, releasing(off))", kSurfaceEnded},
        {"local off = ink:CreateOffscreenSurface(4, 4, false)",
         "off:DrawOutline(rect(0, 0, 2, 2), releasing(off))", kSurfaceEnded},
        {"local off = ink:CreateOffscreenSurface(4, 4, false)",
         "off:DrawRoundedFill(releasing(off), red, 1)", kSurfaceEnded},
        {"local off = ink:CreateOffscreenSurface(4, 4, false)",
         "off:IsWithinClipBounds(releasing(off))", kSurfaceEnded},
        {"local s = ink:GetSurface()", "s:PaintRect(rect(0, 0, 4, 4), releasing(s))",
         kSurfaceEnded},
        {"local s, p = ink:GetSurface(), PathInterface.newPath(ink) p:AddRect(rect(0, 0, 4, 4))",
         "s:FillPath(p, releasing(p))", kPathReleased},
        {"local s, p = ink:GetSurface(), PathInterface.newPath(ink) p:AddRect(rect(0, 0, 4, 4))",
         "s:StrokePath(p, releasing(p), 1)", kPathReleased},
        {"local s, picture = ink:GetSurface(), imageOf(ink)",
         "s:DrawImage(picture, releasing(picture))", kImageEnded},
        {"local s, picture = ink:GetSurface(), imageOf(ink)",
         "s:DrawImage2(picture, releasing(picture))", kImageEnded},
    };
    for (const auto& c : cases) {
        runLua(std::string("function case(ink) ") + c.setup + " count = select('#', " + c.call +
               ") end");
        zebcore::debug::ClearRecordedAssertReports();
        draw(mCanvas.inkwell, "case");
        EXPECT_EQ(luaValue("count"), "0") << c.call;
        EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 1u) << c.call;
        EXPECT_EQ(reportCount(c.report), 1) << c.call;
    }
    EXPECT_TRUE(mCanvas.isClear(1, 1));
}

// The methods that read a rect and a colour are closures over the field names, so a draw
// loop pushes no key table; the rest are plain functions. Reads are the readers' either way.
TEST_F(SurfaceApiTest, RectAndColourMethodsKeepTheFieldNamesAsUpvalues) {
    // The upvalues of a method of the surface metatable, read from C (Lua's debug library
    // does not show a C function's).
    const auto upvalues = [this](const char* method) {
        luaL_getmetatable(L, "zeblua.zebSurfaceInterface");
        lua_getfield(L, -1, method);
        std::string names;
        for (int i = 1; lua_getupvalue(L, -1, i); ++i) {
            names += std::string(i > 1 ? " " : "") + lua_tostring(L, -1);
            lua_pop(L, 1);
        }
        lua_pop(L, 2);
        return names;
    };
    for (const char* method : {"PaintRect", "DrawOutline", "DrawRoundedFill"})
        EXPECT_EQ(upvalues(method), "top left height width red green blue alpha") << method;
    for (const char* method : {"DrawString", "IsWithinClipBounds", "FillPath"})
        EXPECT_EQ(upvalues(method), "") << method;
    EXPECT_EQ(luaValue("getmetatable(deadSurface).PaintRect == deadSurface.PaintRect"), "true");

    runLua(R"(
        function case(ink)
            local s = ink:GetSurface()
            local indexed = setmetatable({red = 0, green = 0, blue = 1},
                                         {__index = function(_, key) return key == 'alpha' and 1 end})
            s:PaintRect({left = 0, top = 0, width = 2, height = 2}, red)
            s:PaintRect({left = '2', top = 0, width = 2, height = 2}, indexed)
            s:DrawRoundedFill(rect(4, 0, 2, 2), red, 0)
        end
    )");
    draw(mCanvas.inkwell, "case");
    EXPECT_EQ(mCanvas.surface->ReadPixel(1, 1), kRedPixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(3, 1), kBluePixel);
    EXPECT_EQ(mCanvas.surface->ReadPixel(5, 1), kRedPixel);
    EXPECT_TRUE(mCanvas.isClear(7, 1));
}

// A Lua memory error at any step of GetSurfaceImage loses no image: the proxy is pushed
// before the surface hands out the image's reference. LeakSanitizer checks what is left.
TEST_F(SurfaceApiTest, AMemoryErrorInGetSurfaceImageLosesNoImage) {
    InstallFailingAllocator(L);
    runLua(R"(
        function takeImages(ink)
            local off = ink:CreateOffscreenSurface(2, 2, false)
            failures, taken = 0, 0
            for n = 1, 6 do
                failAllocation(n)
                local ok, result = pcall(off.GetSurfaceImage, off)
                failAllocation(0)
                if ok then
                    result:Release()
                    taken = taken + 1
                else
                    assert(result == "not enough memory", result)
                    failures = failures + 1
                end
            end
            off:Release()
        end
    )");
    draw(mCanvas.inkwell, "takeImages");
    EXPECT_GT(std::stoi(luaValue("failures")), 0);
    EXPECT_GT(std::stoi(luaValue("taken")), 0);
}

}  // namespace

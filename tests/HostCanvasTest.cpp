// zebhost.canvas: a real draw scope around the script's function, the PNG it writes, and
// the script's own error raised again.
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "tests/DrawingTestFixture.h"
#include "tests/FailingAllocator.h"
#include "zebcore/debug/Debug.h"
#include "zebui/inkwell/ImageInterface.h"

namespace {

namespace fs = std::filesystem;

class HostCanvasTest : public DrawingTest {
protected:
    void SetUp() override {
        DrawingTest::SetUp();
        mFolder = fs::temp_directory_path() /
                  ("zeblua-canvas-" + std::to_string(getpid()) + "-" +
                   ::testing::UnitTest::GetInstance()->current_test_info()->name());
        lua_pushstring(L, (mFolder / "out" / "canvas.png").c_str());
        lua_setglobal(L, "pngPath");
    }
    void TearDown() override {
        DrawingTest::TearDown();
        std::error_code ignored;
        fs::remove_all(mFolder, ignored);
    }

    fs::path pngFile() const { return mFolder / "out" / "canvas.png"; }

    // The written PNG decoded and drawn onto a surface of its size, for its pixels.
    boost::intrusive_ptr<zebui::inkwell::CairoSurface> readBack() {
        std::ifstream in(pngFile(), std::ios::binary);
        const std::vector<unsigned char> bytes((std::istreambuf_iterator<char>(in)),
                                               std::istreambuf_iterator<char>());
        const auto image = mSupplier.MakeImageFromPNG(bytes.data(), bytes.size());
        if (!image) return nullptr;
        boost::intrusive_ptr<zebui::inkwell::CairoSurface> surface(
            mSupplier.MakeOffscreenCairoSurface(image->GetWidth(), image->GetHeight(), false));
        surface->DrawImage(*image, zebcore::geom::PointT<float>(0, 0), 1.0f);
        return surface;
    }

    fs::path mFolder;
};

TEST_F(HostCanvasTest, DrawsInADrawScopeAndWritesThePNG) {
    runLua(R"(
        result = zebhost.canvas(20, 10, function(ink)
            keptInk = ink
            keptSurface = ink:GetSurface()
            policy = keptSurface:GetAntiAliasPolicy()
            keptSurface:PaintRect(rect(0, 0, 10, 10), red)
            keptSurface:DrawRoundedFill(rect(12, 2, 6, 6), blue, 0)
            keptSurface:Transform({{1, 0, 5}, {0, 1, 0}, {0, 0, 1}})
        end, pngPath)
    )");
    EXPECT_EQ(luaValue("result"), "true");
    EXPECT_EQ(luaValue("policy"), "1");  // set to medium, as a draw hook does
    const auto pixels = readBack();
    ASSERT_TRUE(pixels);
    EXPECT_EQ(pixels->Width(), 20);
    EXPECT_EQ(pixels->Height(), 10);
    EXPECT_EQ(pixels->ReadPixel(0, 0), kRedPixel);
    EXPECT_EQ(pixels->ReadPixel(9, 9), kRedPixel);
    EXPECT_EQ(pixels->ReadPixel(14, 4), kBluePixel);
    EXPECT_EQ(pixels->ReadPixel(10, 0)[3], 0);
    EXPECT_EQ(pixels->ReadPixel(19, 9)[3], 0);

    // The scope closed with the call: kept proxies report and answer nothing.
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 0u);
    EXPECT_EQ(resultCount("keptInk:GetSurface()"), 0);
    EXPECT_EQ(reportCount("Attempting to use an out-of-scope Inkwell"), 1);
    EXPECT_EQ(resultCount("keptSurface:PaintRect(rect(0, 0, 4, 4), blue)"), 0);
    EXPECT_EQ(reportCount("Attempting to use an out-of-scope SurfaceInterface"), 1);

    // Without a path (nil too) nothing is written.
    fs::remove(pngFile());
    runLua("assert(zebhost.canvas(4, 4, function() end))");
    runLua("assert(zebhost.canvas(4, 4, function() end, nil))");
    EXPECT_FALSE(fs::exists(pngFile()));
}

TEST_F(HostCanvasTest, TheFunctionsErrorIsRaisedAgainAfterTheScopeHasClosed) {
    runLua(R"(
        ok, message = pcall(zebhost.canvas, 8, 8, function(ink)
            keptInk = ink
            ink:GetSurface():PaintRect(rect(0, 0, 8, 8), red)
            error("drawing failed")
        end, pngPath)
        problem = {}
        sameObject = select(2, pcall(zebhost.canvas, 8, 8, function() error(problem) end)) == problem
    )");
    EXPECT_EQ(luaValue("ok"), "false");
    EXPECT_EQ(luaValue("message"), "test:5: drawing failed");
    EXPECT_EQ(luaValue("sameObject"), "true");
    EXPECT_FALSE(fs::exists(pngFile()));
    EXPECT_EQ(resultCount("keptInk:GetSupplier()"), 0);
    EXPECT_EQ(reportCount("Attempting to use an out-of-scope Inkwell"), 1);
}

TEST_F(HostCanvasTest, EveryArgumentIsCheckedBeforeTheFunctionRuns) {
    const struct {
        const char* call;
        const char* error;
    } cases[] = {
        {"zebhost.canvas(0, 8, draw)", "bad argument #1 to 'canvas' (width out of range"},
        {"zebhost.canvas(8, 40000, draw)", "bad argument #2 to 'canvas' (height out of range"},
        {"zebhost.canvas(20000, 20000, draw)", "zebhost.canvas: larger than 256 MiB of pixels"},
        {"zebhost.canvas('wide', 8, draw)", "bad argument #1 to 'canvas' (number expected"},
        {"zebhost.canvas(8, 8, 'draw')", "bad argument #3 to 'canvas' (function expected"},
        {"zebhost.canvas(8, 8, draw, {})", "bad argument #4 to 'canvas' (string expected"},
        {"zebhost.canvas(8, 8, draw, '/proc/zeblua/canvas.png')",
         "zebhost.canvas: cannot write /proc/zeblua/canvas.png"},
    };
    runLua("calls = 0 function draw() calls = calls + 1 end");
    for (const auto& c : cases) {
        const std::string error = luaError(c.call);
        EXPECT_NE(error.find(c.error), std::string::npos) << c.call << ": " << error;
    }
    // Only the call with a path that cannot be written got as far as drawing.
    EXPECT_EQ(luaValue("calls"), "1");
}

// A Lua memory error at any step, the draw scope's own pushes included, still frees the
// canvas's surface and Inkwell and comes back as the script's error. LeakSanitizer checks
// that no failing run left anything behind.
TEST_F(HostCanvasTest, AMemoryErrorAtAnyStepLeavesNothingBehind) {
    InstallFailingAllocator(L);
    runLua(R"(
        local draw = function(ink) ink:GetSurface():PaintRect(rect(0, 0, 8, 8), red) end
        failures, drawn = 0, 0
        for n = 1, 24 do
            failAllocation(n)
            local ok, message = pcall(zebhost.canvas, 8, 8, draw)
            failAllocation(0)
            if ok then
                drawn = drawn + 1
            else
                assert(message == "not enough memory", message)
                failures = failures + 1
            end
        end
    )");
    EXPECT_GT(std::stoi(luaValue("failures")), 2);
    EXPECT_GT(std::stoi(luaValue("drawn")), 0);
    EXPECT_EQ(reportCount("Attempting to use an out-of-scope Inkwell"), 0);
}

}  // namespace

// Every function of zebString, zeblua.numeric, the drawing and glue modules and change
// notification, run with Lua's allocator failing at each of its allocations in turn.
#include <string>

#include <gmock/gmock.h>
#include <lua.hpp>

#include "tests/DrawingTestFixture.h"
#include "tests/FailingAllocator.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace {

using ::testing::IsEmpty;

// sweep(calls): for each name = function of calls, calls it with the allocator failing
// at its first, second, ... growing request until a call runs without a failure. Every
// failure must come back as Lua's own memory error, maybe within a message of the function
// as Lua's loaders give it (or be handled inside). Returns the
// unexpected messages as one text, and counts in swept the functions that met a failure.
const char* const kSweep = R"(
    function sweep(calls)
        local problems = {}
        for name, call in pairs(calls) do
            local failures, n = 0, 0
            repeat
                n = n + 1
                failAllocation(n)
                local ok, message = pcall(call)
                local fired = failAllocation(0)
                if fired then
                    failures = failures + 1
                    if not ok and not tostring(message):find("not enough memory$") then
                        problems[#problems + 1] = name .. ": " .. tostring(message)
                        break
                    end
                end
            until not fired or n > 400
            if failures > 0 then swept = swept + 1 end
        end
        table.sort(problems)
        return table.concat(problems, "\n")
    end
    swept = 0
    -- What a call makes and must release, in slots that exist already: filling one
    -- allocates nothing, so a failure cannot lose what was made.
    kept, keptCount = {}, 0
    for i = 1, 1000 do kept[i] = false end
    function keep(object)
        if object then
            keptCount = keptCount + 1
            kept[keptCount] = object
        end
        return object
    end
    function releaseKept()
        for i = 1, keptCount do kept[i]:Release() end
    end
    long = string.rep("straße ", 8)
)";

class AllocationFailureTest : public DrawingTest {
protected:
    void SetUp() override {
        DrawingTest::SetUp();
        InstallFailingAllocator(L);
        runLua(kSweep);
    }

    // A native string that a Lua error skipped is unreachable: LeakSanitizer finds it now,
    // not only at exit, so the test that leaked is the one that fails.
    static int leaks() {
#if defined(__SANITIZE_ADDRESS__)
        return __lsan_do_recoverable_leak_check();
#else
        return 0;
#endif
    }
};

TEST_F(AllocationFailureTest, StringAndNumericFunctionsLeaveNothingBehind) {
    runLua(R"(
        local S, matrix = zebString, {{1, 0, 0, 0}, {0, 2, 0, 0}, {0, 0, 1, 0}, {1, 2, 3, 1}}
        problems = sweep({
            GetCharB = function() return S.GetCharB(long, 3) end,
            IsSpaceB = function() return S.IsSpaceB(long, 7) end,
            IsAlphaB = function() return S.IsAlphaB(long) end,
            Localize = function() return S.Localize("$$$/zebstring/Missing=" .. long) end,
            ReplaceInString = function() return S.ReplaceInString("^1 and ^2 " .. long, long, long) end,
            SubstringB = function() return S.SubstringB(long .. "x", 2, 30) end,
            Trim = function() return S.Trim("  " .. long .. "  ") end,
            MatchB = function() return S.MatchB(long, "(ß)e") end,
            ReplaceB = function() return S.ReplaceB(long, "ß", "ss") end,
            Compare = function() return S.Compare(long, long .. "x") end,
            ToUpper = function() return S.ToUpper(long) end,
            ToLower = function() return S.ToLower(long) end,
            UTF8to16 = function() return S.UTF8to16(long) end,
            UTF16to8 = function() return S.UTF16to8(S.UTF8to16(long)) end,
            unmatrix = function() return zeblua.numeric.unmatrix(matrix) end,
            invertMatrix = function() return zeblua.numeric.invertMatrix(matrix) end,
        })
    )");
    EXPECT_EQ(luaValue("problems"), "");
    // ToLower and UTF16to8 of long give long again, which Lua holds already: no allocation.
    EXPECT_EQ(luaValue("swept"), "9");
    collectGarbage();
    EXPECT_EQ(leaks(), 0);
}

TEST_F(AllocationFailureTest, DrawingAndGlueFunctionsLeaveNothingBehind) {
    runLua(R"(
        require "zeblua.zebUIResources"
        function sweepDrawing(ink)
            local s = ink:GetSurface()
            local p = PathInterface.newPath(ink)
            p:AddRect(rect(1, 1, 6, 6))
            local pen = PenInterface.newPen(ink, red, 2)
            local shader = Shader.newLinearShader(ink, point(0, 0), point(8, 0), red, blue)
            local image = s:GetSurfaceImage()
            local resources = zebUIResources.getResources(zebUIResources.app_resources)
            local supplier = ink:GetSupplier()
            problems = sweep({
                CreateOffscreenSurface = function() keep(ink:CreateOffscreenSurface(4, 4, false)) end,
                GetSurface = function() return ink:GetSurface() end,
                GetSupplier = function() return ink:GetSupplier() end,
                inkwell2string = function() return tostring(ink) end,
                NewInkwell = function()
                    keep(zebInkwell.NewInkwell(keep(ink:CreateOffscreenSurface(4, 4, false))))
                end,
                MeasureStringWidthModule = function() return zebInkwell.MeasureStringWidth(long, nil, nil, 12, "DejaVu Sans") end,
                SetRedrawDebugFlashDelay = function() zebInkwell.SetRedrawDebugFlashDelay(0) end,
                newPath = function() keep(PathInterface.newPath(ink)) end,
                PathMethods = function()
                    local q = PathInterface.newPath(ink)
                    q:MoveTo(0, 0); q:LineTo(4, 4); q:BezierTo(point(1, 1), point(2, 2), point(3, 3))
                    q:AddRect(rect(0, 0, 2, 2)); q:AddArc(point(4, 4), 2, 0, 90); q:ClosePath()
                end,
                newPen = function() keep(PenInterface.newPen(ink, red, 1)) end,
                PenMethods = function()
                    pen:SetWidth(3); pen:SetMiterLimit(4); pen:SetLineJoin(1); pen:SetLineCap(1)
                    pen:SetDashPattern(2, 1)
                    return pen:GetWidth(), pen:GetMiterLimit(), pen:GetLineJoin(), pen:GetLineCap()
                end,
                newLinearShader = function() keep(Shader.newLinearShader(ink, point(0, 0), point(4, 0), red, blue)) end,
                newRadialShader = function() keep(Shader.newRadialShader(ink, point(0, 0), point(4, 0), red, blue)) end,
                DrawString = function() s:DrawString(long, 0, 0, red, 0, 12, 0, 0) end,
                MeasureStringWidth = function() return s:MeasureStringWidth(long, 12) end,
                PaintRect = function() s:PaintRect(rect(0, 0, 2, 2), red) end,
                DrawOutline = function() s:DrawOutline(rect(0, 0, 8, 8), red, 2, 1) end,
                DrawRoundedFill = function() s:DrawRoundedFill(rect(0, 0, 8, 8), red, 2) end,
                StrokePath = function() s:StrokePath(p, pen); s:StrokePath(p, red, 1) end,
                FillPath = function() s:FillPath(p, red) end,
                ShadePath = function() s:ShadePath(p, shader) end,
                StateAndTransform = function()
                    s:PushStateStack()
                    s:Transform({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}})
                    s:Clip(p)
                    local bounds = s:GetClipBounds()
                    s:PopStateStack()
                    return s:GetTransform(), bounds, s:IsWithinClipBounds(rect(0, 0, 2, 2))
                end,
                DrawImage = function() s:DrawImage(image, point(0, 0), 0.5) end,
                DrawImage2 = function() s:DrawImage2(image, rect(0, 0, 4, 4), rect(0, 0, 2, 2), 1) end,
                AntiAlias = function() s:SetAntiAliasPolicy(1); return s:GetAntiAliasPolicy() end,
                GetSurfaceImage = function() keep(s:GetSurfaceImage()) end,
                ImageMethods = function() return image:GetWidth(), image:GetHeight(), tostring(image) end,
                surface2string = function() s:Flush(); return tostring(s), tostring(supplier) end,
                getResources = function() return zebUIResources.getResources(zebUIResources.app_resources) end,
                getImage = function() keep(resources:getImage(supplier, "zeblua_badge")) end,
                Cursors = function()
                    resources:DisplayCursor(3)
                    zebUIResources.DisplayCursorFromImage(image, 1, 1)
                end,
                doLogMessage = function() zebLogging.doLogMessage(long) end,
                EmbeddedSearcher = function() return package.loaders[#package.loaders]("zebhost.layer") end,
            })
            image:Release()
            p:Release()
            releaseKept()
        end
    )");
    draw(mCanvas.inkwell, "sweepDrawing");
    EXPECT_EQ(luaValue("problems"), "");
    EXPECT_GE(std::stoi(luaValue("swept")), 20);
    collectGarbage();
    EXPECT_EQ(leaks(), 0);
}

// A failure inside a notification's own pushes (the message table, the sender's wrapper)
// stays in its protected frame and loses neither the sender's reference nor a wrapper.
TEST_F(AllocationFailureTest, ChangeNotificationLeavesNothingBehind) {
    runLua(R"(
        require "zeblua.luaTestingSupport"
        local T = luaTestingSupport
        local box = zebhost.newNode("UI_Checkbox")
        box:NotifyWhenChanged(function() end)
        box:NotifyWhenChangedInteractively(function(msg) return msg.control:UI_GetNodeID() end)
        problems = sweep({
            NotifyWhenChanged = function() return box:NotifyWhenChanged(function() end) end,
            NotifyWhenChangedInteractively = function()
                return box:NotifyWhenChangedInteractively(function() end)
            end,
            SendControlValueChangeMessage = function() T.SendControlValueChangeMessage(box) end,
            Phases = function()
                T.SimulateBeginInteractiveChange(box)
                T.SimulateContinueInteractiveChange(box, 1)
                T.SimulateFinishInteractiveChange(box)
            end,
            ControlViewMethods = function()
                box:SetEnabled(); box:SetValueUnknown(); box:SetSuppressFocusDrawing()
                return box:GetEnabled(), box:IsValueUnknown(), box:GetSuppressFocusDrawing()
            end,
        })
        box = nil
    )");
    EXPECT_EQ(luaValue("problems"), "");
    EXPECT_EQ(luaValue("swept"), "5") << "every call met a failure";
    collectGarbage();
    EXPECT_EQ(leaks(), 0);
}

// Every constructor of zebcontrols: a failure in the wrapper's push comes after the new
// node exists, and must neither leak it nor leave a wrapper without its metatable.
TEST_F(AllocationFailureTest, ControlConstructorsLeaveNothingBehind) {
    runLua(R"(
        require "zeblua.zebcontrols"
        function sweepControls(ink)
            local C, supplier = zebcontrols, ink:GetSupplier()
            local owner = C.NewSubView()
            local calls = {
                NewDialogOwned = function()
                    keep(C.NewDialog(supplier, long, point(1, 2), point(3, 4), owner))
                end,
                NewDialogMain = function() keep(C.NewDialog(supplier, long, {}, {}, nil)) end,
                NewPictureButton = function() keep(C.NewPictureButton(long)) end,
                NewStaticImage = function() keep(C.NewStaticImage(long)) end,
                NewSearchBox = function() keep(C.NewSearchBox(true, true)) end,
                NewScrollView = function() keep(C.NewScrollView(1, keep(C.NewSubView()))) end,
                NewPopupWindow = function() keep(C.NewPopupWindow(supplier, true)) end,
                NewTextEdit = function() keep(C.NewTextEdit(1, 2, 14)) end,
            }
            for _, name in ipairs({"NewCheckbox", "NewRadioButton", "NewMultiColumnTree",
                    "NewHotTextButton", "NewHotTextNumber", "NewHotTextTimecode", "NewKnob",
                    "NewListBox", "NewStaticText", "NewTextButton", "NewDisclosureTriangleButton",
                    "NewSubView", "NewOverlaySubView", "NewPopupViewContainer", "NewPopup",
                    "NewSplitterView", "NewArrangementView", "NewSectionView", "NewDivider",
                    "NewTabWell", "NewWebView"}) do
                calls[name] = function()
                    local control = keep(C[name]())
                    assert(getmetatable(control) ~= nil, name .. " without its metatable")
                end
            end
            problems = sweep(calls)
            owner:Release()
            releaseKept()
        end
    )");
    draw(mCanvas.inkwell, "sweepControls");
    EXPECT_EQ(luaValue("problems"), "");
    EXPECT_EQ(luaValue("swept"), "29");
    collectGarbage();
    EXPECT_EQ(leaks(), 0);
}

TEST_F(AllocationFailureTest, ServicesLeaveNothingBehind) {
    runLua(R"(
        require "zeblua.uisupport.Alert"; require "zeblua.OSMenu"
        require "zeblua.zebMonitorInfo"; require "zeblua.OSLaunchUtils"; require "zeblua.zebTheme"
        require "zeblua.zebcontrols"
        local menu, sub = OSMenu.CreateOSMenu(), OSMenu.CreateOSMenu()
        menu:AppendItem("item", 5, sub)
        local button = zebcontrols.NewTextButton()
        local info = zebMonitorInfo.NewMonitorInfo()
        local url = "https://example.org/" .. string.rep("x", 40)
        -- Nobody answers: every modal run ends cancelled, as a dismissed box or menu.
        problems = sweep({
            CreateOSMenu = function() keep(OSMenu.CreateOSMenu()) end,
            GetItemSubMenu = function() keep(menu:GetItemSubMenu(0)) end,
            AppendItem = function() sub:AppendItem(long, 7) end,
            UI_DoPopupMenu = function() OSMenu.UI_DoPopupMenu(menu, button, {0, 0, 5, 5}) end,
            ToString = function() return tostring(menu) end,
            ShowNote = function() Alert.ShowNote(long, long .. "!") end,
            Show = function() return Alert.Show(1, 2, long, long .. "?") end,
            SimpleInputBox = function() return Alert.SimpleInputBox(long, long, long .. "..") end,
            NewMonitorInfo = function() local i = zebMonitorInfo.NewMonitorInfo() end,
            GetMonitorRect = function() return info:GetMonitorRect(1) end,
            OpenURL = function() OSLaunchUtils.OpenURLInDefaultBrowser(url) end,
            GetColor = function() return Theme.GetColor(277) end,
            GetFontName = function() return Theme.GetFontName(0) end,
            NewTheme = function() keep(Theme.NewTheme()) end,
            RegisterTheme = function() Theme.RegisterTheme(kept[1] or Theme.NewTheme(), long) end,
        })
        menu:Release(); sub:Release(); button:Release()
        releaseKept()
    )");
    EXPECT_EQ(luaValue("problems"), "");
    EXPECT_EQ(luaValue("swept"), "13");
    collectGarbage();
    EXPECT_EQ(leaks(), 0);
}

}  // namespace

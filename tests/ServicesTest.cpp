// Alerts, native menus, monitors, URL opens and the theme: who holds what, what a closing
// state resets, and the methods' answers when a script ends a proxy in the middle of a call.
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <lua.hpp>

#include "os/LaunchServices.h"
#include "tests/LuaTestFixture.h"
#include "vex/uisupport/Alert.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/uisupport/src/LuaAlert.h"
#include "zeblua/utility/src/LuaOSMenu.h"
#include "zebui/ui/EventLoop.h"
#include "zebui/ui/Theme.h"
#include "zebui/utility/MonitorInfo.h"
#include "zebui/utility/OS_Menu.h"

namespace {

using ::testing::HasSubstr;
using zebui::ui::EventLoop;
using zebui::ui::Theme;
using zebui::utility::OS_Menu;

class ServicesTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        runLua("require 'zeblua.uisupport.Alert'; require 'zeblua.OSMenu';"
               "require 'zeblua.zebMonitorInfo'; require 'zeblua.zebTheme';"
               "require 'zeblua.OSLaunchUtils'; require 'zeblua.zebcontrols'");
    }
    void TearDown() override {
        LuaTest::TearDown();
        EventLoop::Get()->ClearUserAnswers();
    }
    // Closes this test's state and opens a fresh one, as the next script would get.
    void reopen() {
        TearDown();
        SetUp();
    }
    void answer(int code, const char* text = "") {
        zebui::ui::UserAnswer given;
        given.code = code;
        given.text = text;
        EventLoop::Get()->QueueUserAnswer(given);
    }
};

// --- What a closing state resets ---------------------------------------------------------

TEST_F(ServicesTest, ClosingTheStateResetsSilenceThemesMonitorsAndRecords) {
    SetAlertsAreSilent(true);
    runLua("Theme.SetColor(10000, {red = 1, green = 1, blue = 1, alpha = 1})"
           "Theme.RegisterTheme(Theme.NewTheme(), 'kept')"
           "zebhost.setMonitors({{0, 0, 10, 10}})"
           "OSLaunchUtils.OpenURLInDefaultBrowser('https://example.org')");
    EXPECT_TRUE(GetAlertsAreSilent());
    EXPECT_TRUE(Theme::FindTheme(u"kept"));
    EXPECT_EQ(os::OpenedURLs().size(), 1u);
    reopen();
    EXPECT_FALSE(GetAlertsAreSilent());
    EXPECT_FALSE(Theme::FindTheme(u"kept"));
    EXPECT_EQ(Theme::GetLiveCount(), 0) << "every theme let go; the current one comes anew";
    EXPECT_EQ(luaValue("Theme.HasColor(10000)"), "false");
    EXPECT_EQ(luaValue("zebMonitorInfo.NewMonitorInfo():GetMonitorCount()"), "2");
    EXPECT_TRUE(os::OpenedURLs().empty());
}

// --- Alerts --------------------------------------------------------------------------------

TEST_F(ServicesTest, ScriptThatRunsDuringABoxSeesItsOwnStackUntouched) {
    // A timer's function runs inside the box's modal run on the same state.
    answer(5);
    runLua("local w = zebhost.newNode('UI_SubView')\n"
           "local id\n"
           "id = w:UI_InstallTimer(0.001, function() seen = (seen or 0) + 1; w:UI_RemoveTimer(id) "
           "end)\n"
           "local a, b = 'before', Alert.Show(4, 2, 'q', 'r')\n"
           "result = a .. ' ' .. tostring(b)");
    // The answer is available at once, so the timer may or may not have fired; either way
    // the call's frame is whole.
    EXPECT_EQ(luaValue("result"), "before 5");
}

// --- Menus ---------------------------------------------------------------------------------

TEST_F(ServicesTest, MenuProxiesHoldOneReferenceEach) {
    const int before = zebui::utility::GetLiveOSMenuCount();
    runLua("m = OSMenu.CreateOSMenu(); sub = OSMenu.CreateOSMenu(); m:AppendItem('s', 1, sub)");
    EXPECT_EQ(zebui::utility::GetLiveOSMenuCount(), before + 2);
    OS_Menu* sub = *zeblua::utility::zeblua_checkOSMenu((lua_getglobal(L, "sub"), L), -1);
    lua_pop(L, 1);
    EXPECT_EQ(sub->GetReferenceCount(), 2) << "the proxy and the parent";
    runLua("again = m:GetItemSubMenu(0)");
    EXPECT_EQ(sub->GetReferenceCount(), 3) << "a new proxy, a new reference";
    runLua("sub:Release(); getmetatable(sub).__gc(sub); sub = nil; again = nil");
    collectGarbage();
    EXPECT_EQ(sub->GetReferenceCount(), 1) << "Release and __gc dropped once";
    runLua("m = nil");
    collectGarbage();
    EXPECT_EQ(zebui::utility::GetLiveOSMenuCount(), before);
}

TEST_F(ServicesTest, PushOSMenuToLuaGivesTheProxyItsOwnReference) {
    const boost::intrusive_ptr<OS_Menu> menu = zebui::utility::CreateOSMenu();
    menu->AppendItem(u"x", 3, nullptr);
    zeblua::utility::PushOSMenuToLua(L, menu);
    lua_setglobal(L, "pushed");
    EXPECT_EQ(menu->GetReferenceCount(), 2);
    EXPECT_EQ(luaValue("pushed:Size()"), "1");
    runLua("pushed:Release()");
    EXPECT_EQ(menu->GetReferenceCount(), 1);
    zeblua::utility::PushOSMenuToLua(L, nullptr);
    lua_setglobal(L, "empty");
    EXPECT_EQ(resultCount("empty:Size()"), 0) << "a proxy of no menu is an empty one";
}

TEST_F(ServicesTest, CheckedAndEnabledFlagsCountTheirValues) {
    runLua("m = OSMenu.CreateOSMenu(); m:AppendItem('a'); m:AppendItem('b', 5)");
    OS_Menu* menu = *zeblua::utility::zeblua_checkOSMenu((lua_getglobal(L, "m"), L), -1);
    lua_pop(L, 1);
    EXPECT_EQ(menu->GetItem(1)->text, u"b");
    runLua("m:SetItemChecked(1)");
    EXPECT_TRUE(menu->GetItem(1)->checked);
    runLua("m:SetItemChecked(1, false)");
    EXPECT_FALSE(menu->GetItem(1)->checked);
    runLua("m:SetItemIDChecked(5, nil, 'extra')");
    EXPECT_TRUE(menu->GetItem(1)->checked) << "four values: the flag is true";
    runLua("m:SetItemIDChecked(5, false)");
    EXPECT_FALSE(menu->GetItem(1)->checked);
    runLua("m:SetItemEnabled(0, 0)");
    EXPECT_TRUE(menu->GetItem(0)->enabled) << "0 is true in Lua";
}

TEST_F(ServicesTest, PopupWhoseMenuIsReleasedWhileItsRectangleIsReadAnswersNothing) {
    answer(5);
    runLua("m = OSMenu.CreateOSMenu(); m:AppendItem('x', 5); b = zebcontrols.NewTextButton()\n"
           "r = setmetatable({}, {__index = function(_, k) m:Release(); return 1 end})");
    EXPECT_EQ(resultCount("OSMenu.UI_DoPopupMenu(m, b, r)"), 0);
    EXPECT_EQ(EventLoop::Get()->GetPendingUserAnswerCount(), 1u) << "no menu ran";
    runLua("m = OSMenu.CreateOSMenu(); m:AppendItem('x', 5)\n"
           "r = setmetatable({}, {__index = function(_, k) b:Release(); return 1 end})");
    EXPECT_EQ(resultCount("OSMenu.UI_DoPopupMenu(m, b, r)"), 0) << "nor with its control gone";
}

TEST_F(ServicesTest, MenuChosenFromKeepsItsControlWhenTheScriptDropsIt) {
    // The answer arrives after a timer whose function drops every script reference.
    runLua("m = OSMenu.CreateOSMenu(); m:AppendItem('x', 9)\n"
           "local b = zebcontrols.NewTextButton()\n"
           "local id\n"
           "id = b:UI_InstallTimer(0.001, function() b:UI_RemoveTimer(id); b:Release(); "
           "collectgarbage(); collectgarbage() end)\n"
           "button = b");
    zebui::ui::UserAnswer late;
    late.code = 9;
    late.delayMs = 20;
    EventLoop::Get()->QueueUserAnswer(late);
    EXPECT_EQ(luaValue("OSMenu.UI_DoPopupMenu(m, button, {left = 0, top = 0, width = 1, "
                       "height = 1})"),
              "9");
}

// --- Monitors ------------------------------------------------------------------------------

TEST_F(ServicesTest, MonitorProxiesOwnTheirObject) {
    const int before = zebui::utility::OS_MonitorInfo::GetLiveCount();
    runLua("a = zebMonitorInfo.NewMonitorInfo(); b = zebMonitorInfo.NewMonitorInfo(true)");
    EXPECT_EQ(zebui::utility::OS_MonitorInfo::GetLiveCount(), before + 2);
    runLua("getmetatable(a).__gc(a)");
    EXPECT_EQ(zebui::utility::OS_MonitorInfo::GetLiveCount(), before + 1);
    runLua("a = nil; b = nil");
    collectGarbage();
    EXPECT_EQ(zebui::utility::OS_MonitorInfo::GetLiveCount(), before);
}

TEST_F(ServicesTest, MonitorCollectedWhileItsRectangleIsReadAnswersNothing) {
    runLua("info = zebMonitorInfo.NewMonitorInfo()\n"
           "r = setmetatable({}, {__index = function(_, k) getmetatable(info).__gc(info); "
           "return 1 end})");
    EXPECT_EQ(resultCount("info:GetMonitorRectFromRect(r)"), 0);
}

TEST_F(ServicesTest, MonitorFunctionsRefuseOtherUserdata) {
    runLua("m = OSMenu.CreateOSMenu()");
    for (const char* call :
         {"zebMonitorInfo.GetMonitorCount(m)", "zebMonitorInfo.GetMonitorRect(m, 1)",
          "zebMonitorInfo.GetMonitorRectFromRect(m, {})"})
        EXPECT_THAT(luaError(call), HasSubstr("zeblua.zebMonitorInfo expected")) << call;
    for (const char* call :
         {"zebMonitorInfo.GetMonitorCount('x')", "zebMonitorInfo.GetMonitorRect(nil, 1)",
          "zebMonitorInfo.GetMonitorRectFromRect(1, {})"})
        EXPECT_EQ(resultCount(call), 0) << call;
}

// --- Theme ---------------------------------------------------------------------------------

TEST_F(ServicesTest, ThemeValuesHoldOneReferenceAndRegistrationAnother) {
    const int before = Theme::GetLiveCount();
    runLua("t = Theme.NewTheme(); Theme.RegisterTheme(t, 'Named \xc3\xa9')");
    EXPECT_EQ(Theme::GetLiveCount(), before + 1);
    const boost::intrusive_ptr<Theme> found = Theme::FindTheme(u"Named \u00e9");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->GetReferenceCount(), 3) << "the proxy, the store and this test";
    EXPECT_EQ(found->GetColorCount(), Theme::kStandardColorCount);
    EXPECT_EQ(found->GetFontCount(), Theme::kStandardFontCount);
    runLua("t:SetThemeColor(10005, {red = 0.5, green = 0.25, blue = 0, alpha = 1})");
    EXPECT_TRUE(found->HasColor(10005));
    EXPECT_EQ(found->GetColor(10005), zebui::inkwell::ColorRGBA(0.5f, 0.25f, 0.0f, 1.0f));
    EXPECT_FALSE(Theme::Get()->HasColor(10005));
    runLua("t:Release(); t:Release(); t = nil");
    collectGarbage();
    EXPECT_EQ(found->GetReferenceCount(), 2) << "one drop for the proxy";
}

TEST_F(ServicesTest, ThemeReleasedWhileItsColourIsReadReportsAndAnswersNothing) {
    runLua("t = Theme.NewTheme()\n"
           "c = setmetatable({}, {__index = function(_, k) t:Release(); return 0 end})");
    zebcore::debug::ClearRecordedAssertReports();
    EXPECT_EQ(resultCount("t:SetThemeColor(10000, c)"), 0);
    ASSERT_EQ(zebcore::debug::RecordedAssertReports().size(), 1u);
    EXPECT_EQ(zebcore::debug::RecordedAssertReports()[0].message,
              "Attempting to use a released Theme");
}

}  // namespace

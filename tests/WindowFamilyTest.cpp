// The window family's wrappers and classes against the faults a script or the toolkit can
// make: every method through a released and an ended wrapper and on a wrapper of another
// class, the popup's callback forms and the stack they leave, runs ended out of order,
// windows that die while something points at them, and a state that closes while a popup
// is the current command handler.
#include <string>

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <gtest/gtest.h>
#include <lua.hpp>

#include "os/NSWindow.h"
#include "tests/LuaTestFixture.h"
#include "vex/app/App.h"
#include "vex/uisupport/CommandHandler.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/ui/src/LuaPopupWindow.h"
#include "zebui/ui/EventLoop.h"
#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/UI_Dialog.h"
#include "zebui/ui/UI_NodeManager.h"

namespace {

using vex::uisupport::CommandHandlerBase;
using zeblua::ui::LuaPopupWindow;
using zebui::ui::EventLoop;
using zebui::ui::OS_Window;
using zebui::ui::UI_Window;

class WindowFamilyTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        runLua(R"(
            C = require 'zeblua.zebcontrols'
            zebhost.canvas(1, 1, function(ink) supplier = ink:GetSupplier() end)
            point = zeblua_CreateNewPointF32
            function newDialog() return C.NewDialog(supplier, "D", point(0, 0), point(9, 9), nil) end
        )");
    }
    void TearDown() override {
        CommandHandlerBase::SetCurrentCommandHandler(nullptr);
        LuaTest::TearDown();
    }
};

const MethodRow kMethodRows[] = {
    {"C.NewPopupWindow(supplier)",
     "w:UI_SetGlobalStructureRect(zeblua_CreateNewRectF32(1, 2, 3, 4))"},
    {"C.NewPopupWindow(supplier)", "w:UI_GetGlobalStructureRect()"},
    {"C.NewPopupWindow(supplier)", "w:SetOwner(newDialog())"},
    {"C.NewPopupWindow(supplier)", "w:UI_Activate()"},
    {"newDialog()", "w:GetContainer()"},
    {"newDialog()", "w:SetButtons(C.NewTextButton(), C.NewTextButton())"},
    {"newDialog()", "w:SetInitialFocus(C.NewSubView())"},
    {"newDialog()", "w:PushModalWindow()"},
    {"newDialog()", "w:PopModalWindow()"},
    {"newDialog()", "w:RunModal()"},
    {"newDialog()", "w:GetResponse()"},
    {"newDialog()", "w:SetResponse(1)"},
    {"newDialog()", "w:DefaultCloseOk()"},
    {"newDialog()", "w:DefaultCloseCancel()"},
    {"C.NewPopupWindow(supplier)", "w:BindPopupWindowOperation('cmdHandler', print)"},
    {"C.NewPopupWindow(supplier)", "w:SetAsCommandHandler()"},
};

// A released wrapper and one a script ended through its __gc answer every method with no
// value, no error and no effect.
TEST_F(WindowFamilyTest, ReleasedAndEndedWrappersAnswerNothing) {
    for (const MethodRow& row : kMethodRows)
        expectEndedWrapperAnswersNothing(row);
    EXPECT_EQ(zebui::ui::UI_NodeManager::Get(false)->GetModalWindowCount(), 0u);
    EXPECT_EQ(CommandHandlerBase::GetCurrentCommandHandler(), nullptr);
    EXPECT_TRUE(zebcore::debug::RecordedAssertReports().empty());
}

// A wrapper of a plain view is the conversion error for every row, a table "Bad user data";
// a dialog's rows on a popup and the popup's rows on a dialog are conversion errors too.
TEST_F(WindowFamilyTest, EveryRowCastsItsNode) {
    runLua("view = C.NewSubView(); popup = C.NewPopupWindow(supplier); dialog = newDialog()");
    for (const MethodRow& row : kMethodRows) {
        SCOPED_TRACE(row.call);
        runLua(std::string("w = ") + row.maker);
        EXPECT_NE(luaError(MethodCallOn(row, "view")).find("Invalid type conversion."),
                  std::string::npos);
        EXPECT_NE(luaError(MethodCallOn(row, "{}")).find("Bad user data"), std::string::npos);
    }
    EXPECT_NE(luaError("dialog.RunModal(popup)").find("Invalid type conversion."),
              std::string::npos);
    EXPECT_NE(luaError("popup.SetAsCommandHandler(dialog)").find("Invalid type conversion."),
              std::string::npos);
    EXPECT_EQ(luaValue("select('#', popup.UI_Activate(dialog))"), "0") << "any window activates";
    zebcore::debug::ClearRecordedAssertReports();
}

// The popup's forms, called as the toolkit calls them, from a native frame that holds
// values of its own: each leaves that frame as it was. Close and commands take only the
// boolean true; the keyboard counts an error as taken; activation ignores errors.
TEST_F(WindowFamilyTest, PopupCallbacksKeepTheCallersStackAndTheirForms) {
    runLua(R"(
        popup = C.NewPopupWindow(supplier)
        answers = {}
        popup:BindPopupWindowOperation("OnCloseIfPopup", function() return answers.close end)
        popup:BindPopupWindowOperation("cmdHandler", function(id) return answers[id] end)
        popup:BindPopupWindowOperation("uiKeyboardEvent", function() return answers.key end)
        popup:BindPopupWindowOperation("UI_ActivationChanged", function(a) seen = a; error("x") end)
    )");
    LuaPopupWindow* popup = nodeOf<LuaPopupWindow>("popup").get();
    ASSERT_NE(popup, nullptr);
    const boost::intrusive_ptr<zebui::ui::UI_Node> held(popup);
    pushSentinels();

    runLua("answers.close = true");
    EXPECT_TRUE(popup->UI_CloseIfPopup());
    runLua("answers.close = 1");
    EXPECT_FALSE(popup->UI_CloseIfPopup());
    runLua("answers[5] = true; answers[6] = 1");
    EXPECT_TRUE(popup->HandleCommand(5));
    EXPECT_FALSE(popup->HandleCommand(6)) << "a truthy number is no true";
    EXPECT_FALSE(popup->HandleCommand(9)) << "nil";

    const zebui::ui::KeyboardEvent event(zebui::ui::kKeyboardAction_Down, u"a",
                                         zebui::ui::KeyboardCode(zebui::ui::kKeyCode_A), 0, false);
    runLua("answers.key = function() end");
    EXPECT_TRUE(popup->UI_DoKeyboardEvent(popup, event)) << "a function value is true";
    runLua("popup:BindPopupWindowOperation('uiKeyboardEvent', function() error('fails') end)");
    EXPECT_TRUE(popup->UI_DoKeyboardEvent(popup, event)) << "an error counts as taken";

    popup->UI_ActivationChanged(zebui::ui::kWindowActivation_CLICK_ACTIVATED);
    EXPECT_EQ(luaValue("seen"), "1");

    expectSentinels();
}

// A popup that is the current handler when its state closes: the chain calls nothing any
// more, and the window, still held natively, stops being the handler.
TEST_F(WindowFamilyTest, AClosedStateLeavesNoPopupInTheChain) {
    runLua(R"(
        popup = C.NewPopupWindow(supplier)
        popup:BindPopupWindowOperation("cmdHandler", function() return true end)
        popup:SetAsCommandHandler()
    )");
    const boost::intrusive_ptr<zebui::ui::UI_Node> held(nodeOf<LuaPopupWindow>("popup"));
    ASSERT_TRUE(held);
    EXPECT_TRUE(CommandHandlerBase::CallCommandChain(3));
    lua_close(L);
    L = nullptr;
    EXPECT_EQ(CommandHandlerBase::GetCurrentCommandHandler(), nullptr);
    EXPECT_FALSE(CommandHandlerBase::CallCommandChain(3)) << "nothing reached the closed state";
    auto* popup = dynamic_cast<LuaPopupWindow*>(held.get());
    EXPECT_TRUE(popup->UI_SupportsInkwell() && popup->UI_WantsKeyboardFocus());
    EXPECT_FALSE(popup->UI_CloseIfPopup());
    popup->UI_ActivationChanged(0);
    const zebui::ui::KeyboardEvent event(zebui::ui::kKeyboardAction_Down, u"a",
                                         zebui::ui::KeyboardCode(zebui::ui::kKeyCode_A), 0, false);
    EXPECT_FALSE(popup->UI_DoKeyboardEvent(popup, event));
}

// Owners, owned windows, child platform windows and the modal stack hold no window: each
// link is cleared when its window dies.
TEST_F(WindowFamilyTest, LinksToAWindowGoWithIt) {
    boost::intrusive_ptr<OS_Window> owner(new OS_Window());
    boost::intrusive_ptr<OS_Window> owned(new OS_Window());
    owned->SetOwner(owner.get());
    owner->GetPlatformWindow(true)->addChildWindow(owned->GetPlatformWindow(true), 1);
    zebui::ui::UI_NodeManager::Get(false)->PushModalWindow(owner.get());
    owner->UI_Activate();
    EXPECT_TRUE(owner->IsActive());
    owner.reset();
    EXPECT_EQ(owned->GetOwner(), nullptr);
    EXPECT_EQ(owned->GetPlatformWindow(false)->parentWindow(), nullptr);
    EXPECT_EQ(zebui::ui::UI_NodeManager::Get(false)->GetModalWindowCount(), 0u);
    EXPECT_EQ(UI_Window::GetActiveWindow(), nullptr);
    owned->SetOwner(owned.get());
    EXPECT_EQ(owned->GetOwner(), nullptr) << "a window can't own itself";
}

// A run ended at its own level: an outer run asked to end while an inner one runs returns
// only after it, with its own code; a level with no open run is left alone.
TEST_F(WindowFamilyTest, RunsEndAtTheirOwnLevel) {
    EventLoop* loop = EventLoop::Get();
    std::string log;
    int innerCode = 0;
    boost::intrusive_ptr<zebui::ui::UI_Node> timer(new zebui::ui::UI_Node());
    timer->UI_InstallTimerNotifyFunction(
        zebui::ui::TimerNotifyFunctionP(new zebui::ui::TimerNotifyFunction([&](int id) {
            timer->UI_RemoveTimer(id, true);
            loop->EndModalAt(1, 11);  // the outer one, from inside the inner one
            log += "asked;";
            loop->EndModalAt(5, 0);  // no such level
            loop->EndModalAt(2, 22);
            return true;
        })));
    loop->QueueUserAnswer({0, "", 1});
    const zebui::ui::ModalResult outer = loop->RunModal([&](const zebui::ui::UserAnswer&) {
        timer->UI_InstallTimer(0.001f, 1);
        innerCode = loop->RunModal().code;
        log += "inner;";
    });
    log += "outer;";
    EXPECT_EQ(log, "asked;inner;outer;");
    EXPECT_EQ(innerCode, 22);
    EXPECT_EQ(outer.code, 11);
    EXPECT_FALSE(outer.cancelled);
}

}  // namespace

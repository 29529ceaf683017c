// Operation binding from the native side: where the table lives, what survives a
// replaced user data, the draw call's state, and LuaZebNode's order of calls.
#include <string>
#include <vector>

#include <boost/any.hpp>
#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>
#include <gmock/gmock.h>
#include <lua.hpp>

#include "tests/DrawingTestFixture.h"
#include "zeblua/ui/src/LuaBindingTable.h"
#include "zeblua/ui/src/LuaZebNode.h"
#include "zeblua/ui/src/ZebBinder.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/UI_NodeManager.h"
#include "zebui/ui/UI_SubView.h"

namespace {

using namespace zebui::ui;
using testing::ElementsAre;
using zebcore::geom::PointT;
using zebcore::geom::RectT;
using zeblua::ui::LuaBindingTable;

MouseEvent downAt(float x, float y) {
    return MouseEvent(kMouseAction_Down, kMouseButton_Left, 1, PointT<float>(x, y), 0, OS_Event(),
                      0, 0, 0, 0, kSwipeDirection_None, 0);
}

class ZebBinderTest : public DrawingTest {
protected:
    // A registry reference to the value of a Lua expression.
    int referenceTo(const std::string& expression) {
        const std::string code = "return " + expression;
        EXPECT_EQ(luaL_dostring(L, code.c_str()), 0);
        return luaL_ref(L, LUA_REGISTRYINDEX);
    }
};

TEST_F(ZebBinderTest, TheTableIsMadeAtTheFirstBindingAndReplacesForeignUserData) {
    runLua(R"(node = zebhost.newNode("UI_SubView"))");
    UI_Node* node = wrappedNode("node");
    EXPECT_FALSE(LuaBindingTable::GetLuaBindingTable(node, false));
    EXPECT_TRUE(node->GetUserData().empty()) << "looking must not create";
    node->SetUserData(42);
    EXPECT_FALSE(LuaBindingTable::GetLuaBindingTable(node, false));
    runLua(R"(assert(node:BindZebOperation("noSuchOperation", function() end)))");
    const auto table = LuaBindingTable::GetLuaBindingTable(node, false);
    ASSERT_TRUE(table);
    EXPECT_TRUE(
        dynamic_cast<zeblua::ui::ZebBinder*>(table->slots[LuaBindingTable::kZebBinderSlot].get()));
    EXPECT_EQ(boost::any_cast<int>(&node->GetUserData()), nullptr) << "the 42 is gone";
    EXPECT_EQ(LuaBindingTable::GetLuaBindingTable(node, true), table) << "one table per node";
}

TEST_F(ZebBinderTest, HooksLeftByAReplacedTableAreInertAndANewBindingStartsAfresh) {
    runLua(R"(
        calls = {}
        node = zebhost.newNode("UI_SubView")
        for _, name in ipairs({"uiDraw", "uiMouseEvent", "uiSizeChanged", "uiFocusChange",
                               "uiKeyboardEvent", "uiDoCursor", "uiPreMouseEvent"}) do
            node:BindZebOperation(name, function() calls[#calls + 1] = name end)
        end
    )");
    const boost::intrusive_ptr<UI_Node> node(wrappedNode("node"));
    node->SetUserData(boost::any());  // the table and its binder die here
    collectGarbage();
    node->DeliverDraw(&mCanvas.inkwell);
    UI_NodeManager::Get(false)->DispatchMouseEvent(node.get(), downAt(1, 1));
    UI_NodeManager::Get(false)->DispatchCursor(node.get(), PointT<float>(1, 1), 0);
    node->UI_SetLocalRectF(RectT<float>(0, 0, 5, 5));
    node->UI_GainKeyboardFocus(kFocusChangeReason_Program);
    EXPECT_EQ(luaValue("#calls"), "0");

    // The listeners of the old binder stay on the node, inert: one call, not two.
    runLua(R"(node:BindZebOperation("uiSizeChanged", function() calls[#calls + 1] = "new" end))");
    node->UI_SetLocalRectF(RectT<float>(0, 0, 6, 6));
    EXPECT_EQ(luaValue("table.concat(calls, ' ')"), "new");
}

TEST_F(ZebBinderTest, DrawingRunsInAFreshStateAtMediumAntiAliasAndNeedsNoSurface) {
    runLua(R"(
        node = zebhost.newNode("UI_SubView")
        node:BindZebOperation("uiDraw", function(ink)
            local surface = ink:GetSurface()
            seen = surface and surface:GetAntiAliasPolicy() or "no surface"
            return true
        end)
    )");
    UI_Node* node = wrappedNode("node");
    mCanvas.surface->SetCallLogEnabled(true);
    node->UI_Draw(&mCanvas.inkwell);
    EXPECT_THAT(mCanvas.surface->CallLog(), ElementsAre("PushStateStack()", "SetAntiAliasPolicy(1)",
                                                        "GetAntiAliasPolicy()", "PopStateStack()"));
    EXPECT_EQ(luaValue("seen"), "1");

    zebui::inkwell::Inkwell withoutSurface(&mSupplier, nullptr);
    node->UI_Draw(&withoutSurface);
    EXPECT_EQ(luaValue("seen"), "no surface");
    node->UI_Draw(nullptr);
    EXPECT_EQ(luaValue("seen"), "no surface");
}

// A node class of the library: its own functions first, then the base with its hooks.
using ScriptedView = zeblua::ui::LuaZebNode<UI_SubView>;

TEST_F(ZebBinderTest, ALuaZebNodeCallsItsOwnFunctionThenItsBaseByTheAnswer) {
    const boost::intrusive_ptr<ScriptedView> view(new ScriptedView);
    view->UI_SetLocalRectF(RectT<float>(0, 0, 8, 8));
    std::vector<std::string> base;
    view->UI_SetCustomDrawFunction(boost::make_shared<CustomDrawFunction>(
        [&](const UI_Node*, zebui::inkwell::Inkwell*) { return base.push_back("draw"), false; }));
    view->UI_SetCustomMouseEventFunction(boost::make_shared<CustomMouseEventFunction>(
        [&](UI_Node*, const MouseEvent&, bool&) { return base.push_back("mouse"), false; }));
    view->UI_InstallSizeChangedNotifyFunction(
        boost::make_shared<SizeChangedNotifyFunction>([&] { base.push_back("size"); }));
    runLua(R"(
        answer = true
        log = {}
        function scripted(tag) return function(...)
            log[#log + 1] = tag .. select("#", ...)
            if answer == "raise" then error("failed") end
            return answer
        end end
    )");
    view->BindZEBOperation(L, "uiDraw", referenceTo("scripted('draw')"));
    view->BindZEBOperation(L, "uiMouseEvent", referenceTo("scripted('mouse')"));
    view->BindZEBOperation(L, "uiSizeChanged", referenceTo("scripted('size')"));

    // True: the drawing is done; the mouse answer and the resize still come from the base.
    view->UI_Draw(&mCanvas.inkwell);
    EXPECT_FALSE(view->UI_DoMouseEvent(view.get(), downAt(1, 1)));
    view->UI_SetLocalRectF(RectT<float>(0, 0, 9, 9));
    EXPECT_EQ(luaValue("table.concat(log, ' ')"), "draw1 mouse1 size1");
    EXPECT_THAT(base, ElementsAre("mouse", "size"));

    // An error: the draw counts as done, the event as taken, the resize stops there.
    base.clear();
    runLua("answer = 'raise'; log = {}");
    view->UI_Draw(&mCanvas.inkwell);
    EXPECT_TRUE(view->UI_DoMouseEvent(view.get(), downAt(1, 1)));
    view->UI_SetLocalRectF(RectT<float>(0, 0, 10, 10));
    EXPECT_EQ(luaValue("#log"), "3");
    EXPECT_TRUE(base.empty());

    // False: everything reaches the base.
    runLua("answer = false");
    view->UI_Draw(&mCanvas.inkwell);
    EXPECT_THAT(base, ElementsAre("draw"));
}

TEST_F(ZebBinderTest, ABindableNodeKeepsTheMainThreadAndReleasesWhatItReplaces) {
    const boost::intrusive_ptr<ScriptedView> view(new ScriptedView);
    lua_State* coroutine = lua_newthread(L);
    const int threadReference = luaL_ref(L, LUA_REGISTRYINDEX);
    const int first = referenceTo("function() return 1 end");
    ASSERT_TRUE(view->BindZEBOperation(coroutine, "uiDraw", first));
    EXPECT_EQ(view->GetZEBBoundLuaState("uiDraw"), L) << "the main thread, not the coroutine";
    EXPECT_EQ(view->GetZEBBoundFunctionIndex("uiDraw"), first);
    EXPECT_EQ(view->GetZEBBoundLuaState("uiMouseEvent"), nullptr);
    EXPECT_EQ(view->GetZEBBoundFunctionIndex("uiMouseEvent"), 0);
    luaL_unref(L, LUA_REGISTRYINDEX, threadReference);
    collectGarbage();  // the coroutine is gone; the binding runs on the main thread

    ASSERT_TRUE(view->BindZEBOperation(L, "uiDraw", referenceTo("function() return 2 end")));
    lua_rawgeti(L, LUA_REGISTRYINDEX, first);
    EXPECT_FALSE(lua_isfunction(L, -1)) << "the replaced function's reference is released";
    lua_pop(L, 1);
    view->UI_Draw(&mCanvas.inkwell);
    EXPECT_TRUE(zebcore::debug::RecordedAssertReports().empty());
}

}  // namespace

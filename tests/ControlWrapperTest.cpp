// Control wrappers: identity, the wrapper test, the typed cast, lifetimes, timers, the
// factory's choice and the controls module's opener.
#include <functional>
#include <new>
#include <string>
#include <vector>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zeblua/core/ZebTypes.h"
#include "zeblua/ui/controls/src/UI_HotTextTimecode.h"
#include "zeblua/ui/src/ControlNodeCast.h"
#include "zeblua/ui/src/LuaControlWrapperBase.h"
#include "zeblua/ui/src/LuaControlWrapperFactory.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaMultiColumnTreeRow.h"
#include "zeblua/ui/src/LuaMultiColumnTreeRowWrapper.h"
#include "zeblua/ui/src/LuaOverlaySubView.h"
#include "zeblua/ui/src/LuaPopupWindow.h"
#include "zeblua/ui/src/LuaUI_TabWell.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zebui/controls/UI_Button.h"
#include "zebui/controls/UI_Checkbox.h"
#include "zebui/controls/UI_DisclosureTriangleButton.h"
#include "zebui/controls/UI_Divider.h"
#include "zebui/controls/UI_HotTextButton.h"
#include "zebui/controls/UI_Knob.h"
#include "zebui/controls/UI_ListBox.h"
#include "zebui/controls/UI_ListBoxItem.h"
#include "zebui/controls/UI_PictureButton.h"
#include "zebui/controls/UI_Popup.h"
#include "zebui/controls/UI_RadioButton.h"
#include "zebui/controls/UI_RadioGroup.h"
#include "zebui/controls/UI_ScrollBar.h"
#include "zebui/controls/UI_ScrollView.h"
#include "zebui/controls/UI_SearchBox.h"
#include "zebui/controls/UI_SectionView.h"
#include "zebui/controls/UI_Slider.h"
#include "zebui/controls/UI_SplitterView.h"
#include "zebui/controls/UI_StaticImage.h"
#include "zebui/controls/UI_StaticText.h"
#include "zebui/controls/UI_TextButton.h"
#include "zebui/controls/UI_TextEdit.h"
#include "zebui/ui/EventLoop.h"
#include "zebui/ui/OS_PopupViewContainer.h"
#include "zebui/ui/UI_ArrangementView.h"
#include "zebui/ui/UI_Dialog.h"
#include "zebwebview/ZEBWebView.h"

namespace {

using namespace zeblua::ui;
using zebui::ui::EventLoop;
using zebui::ui::UI_Node;
using NodeP = boost::intrusive_ptr<UI_Node>;
namespace zc = zebui::controls;
namespace zu = zebui::ui;

// Sets a flag when it dies.
class ObservedView : public zu::UI_SubView {
public:
    explicit ObservedView(bool& died) : mDied(died) {}
    ~ObservedView() override { mDied = true; }

private:
    bool& mDied;
};

class ObservedRow : public LuaMultiColumnTreeRow {
public:
    explicit ObservedRow(bool& died) : mDied(died) {}
    ~ObservedRow() override { mDied = true; }

private:
    bool& mDied;
};

// knob:Probe(number): a typed method built with the idiom; names the knob by the number.
int knobProbe(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Integer number = luaL_checkinteger(L, 2);
    zc::UI_Knob* knob = CastControlNode<zc::UI_Knob>(L, 1);
    if (!knob) return 0;
    knob->UI_SetNodeID("knob " + std::to_string(number));
    lua_pushboolean(L, 1);
    return 1;
}

class ControlWrapperTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        runLua("controls = require 'zeblua.zebcontrols'");
    }

    LuaControlWrapperBase* wrapperOf(const char* name) {
        lua_getglobal(L, name);
        LuaControlWrapperBase* wrapper = GetControlUserData(L, -1);
        lua_pop(L, 1);
        return wrapper;
    }

    // Two full cycles: a reference released in __gc frees its value one cycle later.
    void collectTwice() {
        collectGarbage();
        collectGarbage();
    }
};

TEST_F(ControlWrapperTest, EachPushIsANewWrapperOfTheSameNode) {
    const NodeP node(new zu::UI_SubView);
    node->UI_SetNodeID("panel");
    setWrapper("a", node);
    setWrapper("b", node);
    EXPECT_EQ(node->GetReferenceCount(), 3);
    EXPECT_EQ(luaValue("a == b"), "false");
    EXPECT_EQ(luaValue("rawequal(a, b)"), "false");
    EXPECT_EQ(luaValue("a:UI_GetNodeID() == b:UI_GetNodeID() and b:UI_GetNodeID()"), "panel");

    // The bytes go through as they are, a zero byte too, and every wrapper sees them.
    runLua("a:UI_SetNodeID('x\\0y')");
    EXPECT_EQ(node->UI_GetNodeID(), std::string("x\0y", 3));
    EXPECT_EQ(luaValue("#b:UI_GetNodeID()"), "3");

    runLua("a, b = nil, nil");
    collectGarbage();
    EXPECT_EQ(node->GetReferenceCount(), 1);
}

TEST_F(ControlWrapperTest, NonWrappersAreBadUserData) {
    runLua("require 'zeblua.zebcore.zebTypes'");
    zeblua::utility::PushPointerProxy<void>(L, nullptr, "zeblua.core.zebTypes",
                                            luaopen_zeblua_zebcore_zebTypes);
    lua_setglobal(L, "otherModule");
    new (lua_newuserdata(L, sizeof(LuaMultiColumnTreeRowWrapper))) LuaMultiColumnTreeRowWrapper();
    luaL_getmetatable(L, LuaMultiColumnTreeRowWrapper::GetMetatableName());
    lua_setmetatable(L, -2);
    lua_setglobal(L, "row");

    runLua("nodeSet = debug.getregistry().zebUINode");
    for (const char* value : {"{}", "'text'", "42", "nil", "io.stdout", "newproxy(false)",
                              "newproxy(true)", "otherModule", "row"}) {
        for (const char* method : {"UI_GetNodeID", "Release", "__gc", "UI_InstallTimer"})
            EXPECT_EQ(luaError(std::string("nodeSet.") + method + "(" + value + ")"),
                      "test:1: Bad user data")
                << method << "(" << value << ")";
    }
}

TEST_F(ControlWrapperTest, TypedMethodRaisesTheConversionErrorForAnotherClass) {
    lua_getfield(L, LUA_REGISTRYINDEX, "zebKnob");
    lua_pushcfunction(L, knobProbe);
    lua_setfield(L, -2, "Probe");
    lua_pop(L, 1);
    const NodeP knob(new zc::UI_Knob);
    const NodeP button(new zc::UI_Button);
    setWrapper("knob", knob);
    setWrapper("button", button);
    runLua("probe = knob.Probe");

    EXPECT_EQ(luaValue("knob:Probe(7)"), "true");
    EXPECT_EQ(knob->UI_GetNodeID(), "knob 7");
    EXPECT_EQ(luaError("probe(button, 1)"), "test:1: Invalid type conversion.");
    EXPECT_EQ(button->UI_GetNodeID(), "");
    EXPECT_EQ(luaError("probe({}, 1)"), "test:1: Bad user data");
    // Arguments are read before the cast.
    EXPECT_NE(luaError("probe(button, 'x')").find("bad argument #2"), std::string::npos);
    // A released wrapper answers with nothing.
    runLua("knob:Release()");
    EXPECT_EQ(resultCount("knob:Probe(1)"), 0);
}

TEST_F(ControlWrapperTest, CollectedOrReleasedWrapperAndItsNode) {
    bool childDied = false;
    const NodeP parent(new zu::UI_SubView);
    NodeP child(new ObservedView(childDied));
    child->UI_SetNodeID("child");
    parent->ChildPushBack(child);
    setWrapper("w", child);
    EXPECT_EQ(child->GetReferenceCount(), 3);  // parent, wrapper, test

    // Collection drops the wrapper's reference only: the tree is as it was.
    runLua("w = nil");
    collectGarbage();
    ASSERT_EQ(parent->ChildSize(), 1u);
    EXPECT_EQ(parent->ChildGet(0), child);
    EXPECT_EQ(child->UI_GetParentNode(), parent.get());
    EXPECT_EQ(child->GetReferenceCount(), 2);

    // Out of the tree, a wrapper alone keeps the node; Release lets go at once.
    setWrapper("w", child);
    parent->ChildRemove(child);
    UI_Node* const raw = child.get();
    child.reset();
    EXPECT_FALSE(childDied);
    EXPECT_EQ(luaValue("w:UI_GetNodeID()"), "child");
    EXPECT_EQ(raw->GetReferenceCount(), 1);
    runLua("w:Release()");
    EXPECT_TRUE(childDied);

    EXPECT_EQ(resultCount("w:Release()"), 0);
    runLua("w = nil");
    collectGarbage();
}

TEST_F(ControlWrapperTest, ExplicitGcDeletesOnceAndLeavesADeadWrapper) {
    bool died = false;
    setWrapper("w", NodeP(new ObservedView(died)));
    runLua("local gc = getmetatable(w).__gc; gc(w); gc(w)");
    EXPECT_TRUE(died);
    EXPECT_EQ(resultCount("w:UI_GetNodeID()"), 0);
    runLua("w = nil");
    collectGarbage();
}

TEST_F(ControlWrapperTest, TimerCallsItsFunctionEachTickUntilRemoved) {
    const NodeP node(new zu::UI_SubView);
    setWrapper("w", node);
    runLua("ticks, argCount = 0, -1\n"
           "held = setmetatable({}, {__mode = 'k'})\n"
           "local fn = function(...) ticks = ticks + 1; argCount = select('#', ...) end\n"
           "held[fn] = true\n"
           "id = w:UI_InstallTimer(0.01, fn)");
    EXPECT_EQ(luaValue("type(id)"), "number");
    const int id = std::stoi(luaValue("id"));
    EXPECT_TRUE(EventLoop::Get()->HasTimer(node.get(), id));

    EventLoop::Get()->AdvanceTime(35);  // 0.01 s: ticks at 10, 20 and 30 ms
    EXPECT_EQ(luaValue("ticks"), "3");
    EXPECT_EQ(luaValue("argCount"), "0");
    collectTwice();
    EXPECT_EQ(luaValue("next(held) ~= nil"), "true");  // the registry holds the function

    runLua("w:UI_RemoveTimer(id)");
    EXPECT_FALSE(EventLoop::Get()->HasTimer(node.get(), id));
    EventLoop::Get()->AdvanceTime(50);
    EXPECT_EQ(luaValue("ticks"), "3");
    collectTwice();
    EXPECT_EQ(luaValue("next(held)"), "nil");  // and lets go of it once removed

    EXPECT_NE(luaError("w:UI_InstallTimer('soon', function() end)").find("bad argument #1"),
              std::string::npos);
    EXPECT_NE(luaError("w:UI_InstallTimer(1, 'fn')").find("bad argument #2"), std::string::npos);
}

// Ticks run on the main thread: the coroutine that pushed the wrapper may be collected
// (a freed thread in a Release build) or suspended (a tick run on it would corrupt it).
TEST_F(ControlWrapperTest, TimerOfAWrapperPushedInACoroutineRunsOnTheMainThread) {
    lua_pushcfunction(L, [](lua_State* co) {
        const NodeP node(new zu::UI_SubView);
        return LuaControlWrapperFactory(node, co) ? 1 : 0;
    });
    lua_setglobal(L, "newSubView");
    runLua("ticks, threads = 0, {}\n"
           "local co = coroutine.create(function()\n"
           "  kept = newSubView()\n"
           "  id = kept:UI_InstallTimer(0.01, function()\n"
           "    ticks = ticks + 1; threads[#threads + 1] = coroutine.running() or 'main'\n"
           "  end)\n"
           "end)\n"
           "assert(coroutine.resume(co))");
    collectTwice();  // the coroutine is unreachable from Lua now
    EventLoop::Get()->AdvanceTime(25);
    EXPECT_EQ(luaValue("ticks"), "2");
    EXPECT_EQ(luaValue("threads[1] .. threads[2]"), "mainmain");

    // A suspended coroutine may be resumed from a tick: it is not the tick's thread.
    runLua("kept:UI_RemoveTimer(id)\n"
           "waiter = coroutine.create(function()\n"
           "  local w = newSubView()\n"
           "  waitId = w:UI_InstallTimer(0.01, function() assert(coroutine.resume(waiter)) end)\n"
           "  coroutine.yield()\n"
           "  w:UI_RemoveTimer(waitId); resumed = true\n"
           "end)\n"
           "assert(coroutine.resume(waiter))");
    EventLoop::Get()->AdvanceTime(15);
    EXPECT_EQ(luaValue("resumed"), "true");
    EXPECT_EQ(luaValue("coroutine.status(waiter)"), "dead");
    EXPECT_EQ(luaValue("ticks"), "2");
}

// A timer keeps the wrapper it was installed through: a script that dropped the wrapper
// still gets its ticks, whatever the collector does, until the state closes.
TEST_F(ControlWrapperTest, TimersKeepTheirWrapperUntilRemovedOrReleased) {
    const NodeP node(new zu::UI_SubView);
    setWrapper("w", node);
    runLua("called = 0\n"
           "id = w:UI_InstallTimer(0.01, function() called = called + 1 end)\n"
           "w = nil");
    const int id = std::stoi(luaValue("id"));
    collectTwice();
    EXPECT_TRUE(EventLoop::Get()->HasTimer(node.get(), id));
    EXPECT_EQ(node->GetReferenceCount(), 2);
    EventLoop::Get()->AdvanceTime(25);
    EXPECT_EQ(luaValue("called"), "2");

    // A tick whose function ends its own wrapper by hand ends cleanly, and stops the timer;
    // so does one that releases it; removing the last timer lets the wrapper go.
    for (const char* end : {"getmetatable(v).__gc(v)", "v:Release()", "v:UI_RemoveTimer(vId)"}) {
        setWrapper("v", node);
        runLua(std::string("calls = 0; vId = v:UI_InstallTimer(0.01, function()"
                           " calls = calls + 1; ") +
               end + " end)");
        EventLoop::Get()->AdvanceTime(50);
        EXPECT_EQ(luaValue("calls"), "1") << end;
        runLua("v = nil");
        collectTwice();
        EXPECT_EQ(node->GetReferenceCount(), 2) << end;  // the test's and w's
    }
}

TEST_F(ControlWrapperTest, TickOfAnotherWrappersIdRunsNoLua) {
    const NodeP node(new zu::UI_SubView);
    setWrapper("a", node);
    setWrapper("b", node);
    runLua("calls = 0; id = a:UI_InstallTimer(1, function() calls = calls + 1 end)");
    const int id = std::stoi(luaValue("id"));
    EXPECT_FALSE(wrapperOf("b")->UI_DoTimerNotify(id));
    EXPECT_EQ(luaValue("calls"), "0");
    EXPECT_TRUE(wrapperOf("a")->UI_DoTimerNotify(id));
    EXPECT_EQ(luaValue("calls"), "1");
    EXPECT_FALSE(node->UI_DoTimerNotify(id + 1000));
    EXPECT_EQ(luaValue("calls"), "1");
}

TEST_F(ControlWrapperTest, ReleaseStopsItsTimersAndLeavesOthersAlone) {
    const NodeP node(new zu::UI_SubView);
    setWrapper("a", node);
    setWrapper("b", node);
    runLua("aTicks, bTicks = 0, 0\n"
           "held = setmetatable({}, {__mode = 'k'})\n"
           "local fn = function() aTicks = aTicks + 1 end\n"
           "held[fn] = true\n"
           "aId = a:UI_InstallTimer(0.01, fn)\n"
           "bId = b:UI_InstallTimer(0.01, function() bTicks = bTicks + 1 end)\n"
           "a:Release()");
    EXPECT_FALSE(EventLoop::Get()->HasTimer(node.get(), std::stoi(luaValue("aId"))));
    collectTwice();
    EXPECT_EQ(luaValue("next(held)"), "nil");

    // Without a node, UI_RemoveTimer can't reach b's timer by its id.
    runLua("a:UI_RemoveTimer(bId)");
    EventLoop::Get()->AdvanceTime(25);
    EXPECT_EQ(luaValue("aTicks"), "0");
    EXPECT_EQ(luaValue("bTicks"), "2");
    // nor does a refused install keep its function.
    runLua("local fn = function() end; held[fn] = true; assert(select('#', "
           "a:UI_InstallTimer(0.01, fn)) == 0)");
    collectTwice();
    EXPECT_EQ(luaValue("next(held)"), "nil");
}

// The row metatable: __gc, __index and the twelve row methods, unlike a control wrapper's.
TEST_F(ControlWrapperTest, TheRowMetatableIsNoWrappers) {
    runLua("rowMt = debug.getregistry()['Zeb.UI_MultiColumnTreeRow']; rowKeys = 0\n"
           "for _ in pairs(rowMt) do rowKeys = rowKeys + 1 end");
    EXPECT_EQ(luaValue("rowKeys"), "14");
    EXPECT_EQ(luaValue("rawequal(rowMt.__index, rowMt) and type(rowMt.__gc)"), "function");
    EXPECT_EQ(luaValue("rowMt.ControlWrapperIdentifier"), "nil");
}

TEST_F(ControlWrapperTest, RowWrapperDropsItsRowOnCollection) {
    bool died = false;
    const boost::intrusive_ptr<LuaMultiColumnTreeRow> row(new ObservedRow(died));
    new (lua_newuserdata(L, sizeof(LuaMultiColumnTreeRowWrapper)))
        LuaMultiColumnTreeRowWrapper(row);
    luaL_getmetatable(L, LuaMultiColumnTreeRowWrapper::GetMetatableName());
    lua_setmetatable(L, -2);
    lua_setglobal(L, "row");
    EXPECT_EQ(row->GetReferenceCount(), 2);
    runLua("getmetatable(row).__gc(row); getmetatable(row).__gc(row)");
    EXPECT_EQ(row->GetReferenceCount(), 1);
    EXPECT_NE(luaError("getmetatable(row).__gc({})").find("Zeb.UI_MultiColumnTreeRow"),
              std::string::npos);
    runLua("row = nil");
    collectGarbage();
    EXPECT_EQ(row->GetReferenceCount(), 1);
    EXPECT_FALSE(died);
}

TEST_F(ControlWrapperTest, FactoryPicksTheWrapperOfEachClass) {
    using Make = std::function<UI_Node*()>;
    const zebcore::geom::PointT<float> origin{0, 0};
    const std::vector<std::pair<Make, const char*>> cases = {
        {[] { return new zc::UI_StaticText; }, "zebStaticText"},
        {[&] {
             zu::UI_Node* const noOwner = nullptr;
             return new zu::UI_Dialog(nullptr, u"title", origin, origin, false, noOwner, true,
                                      false, true, true, 0, 1);
         },
         "zebLuaDialog"},
        {[this] { return new LuaPopupWindow(L, nullptr, false); }, "zebLuaPopupWindow"},
        {[] { return new zebwebview::ZEBWebView(0); }, "zebWebView"},
        {[] { return new zu::OS_Window; }, "zebOS_Window"},
        {[] { return new zu::OS_PopupViewContainer; }, "zebOS_Window"},
        {[] { return new zeblua::controls::UI_HotTextTimecode; }, "zebHotTextTimecode"},
        {[] { return new zc::UI_HotTextNumber; }, "zebHotTextNumber"},
        {[] { return new zc::UI_Knob; }, "zebKnob"},
        {[] { return new zc::UI_ScrollBar; }, "zebUI_ScrollBar"},
        {[] { return new zc::UI_Slider; }, "zebUI_Slider"},
        {[] { return new zc::UI_Popup(0, false); }, "zebUI_Popup"},
        {[] { return new LuaMultiColumnTree; }, "Zeb.MultiColumnTree"},
        {[] { return new zc::UI_Checkbox; }, "zebCheckbox"},
        {[] { return new zc::UI_RadioButton; }, "zebRadioButton"},
        {[] { return new zc::UI_RadioGroup; }, "zebRadioGroup"},
        {[] { return new zc::UI_SearchBox(false, false); }, "zebSearchBox"},
        {[] { return new zc::UI_StaticImage; }, "zebUI_StaticImage"},
        {[] { return new zc::UI_TextEdit(0, 0); }, "zebEditText"},
        {[] { return new zc::UI_PictureButton; }, "zebUI_PictureButton"},
        {[] { return new zc::UI_TextButton; }, "zebUI_TextButton"},
        {[] { return new zc::UI_Button; }, "zebButton"},
        {[] { return new zc::UI_ScrollView(0, nullptr); }, "zebScrollView"},
        {[] { return new zc::UI_InteractiveControlView; }, "zebInteractiveControlView"},
        {[] { return new zc::UI_ControlView; }, "zebControlView"},
        {[] { return new zc::UI_SplitterView(0, 0.5f, 6.0f); }, "zebSplitterView"},
        {[] { return new zu::UI_ArrangementView; }, "zebArrangementView"},
        {[] { return new zc::UI_SectionView(u"", true); }, "zebSectionView"},
        {[] { return new LuaOverlaySubView; }, "zebOverlaySubView"},
        {[] { return new zc::UI_Divider; }, "zebDivider"},
        {[] { return new zc::UI_HotTextButton; }, "zebHotTextButton"},
        {[] { return new zc::UI_ListBox(false, false, false, false); }, "zebListBox"},
        {[] { return new zc::UI_ListBoxItem; }, "zebUI_ListBoxItem"},
        {[] { return new zc::UI_DisclosureTriangleButton; }, "zebUI_DisclosureTriangleButton"},
        {[] { return new zc::UI_TabWell; }, "zebTabWell"},
        {[] { return new LuaUI_TabWell; }, "zebTabWell"},
        {[] { return new zu::UI_SubView; }, "zebSubView"},
        {[] { return new UI_Node; }, "zebUINode"},
    };
    for (const auto& [make, metatable] : cases) {
        const NodeP node(make());
        const int top = lua_gettop(L);
        ASSERT_NE(LuaControlWrapperFactory(node, L), nullptr) << metatable;
        ASSERT_EQ(lua_gettop(L), top + 1);
        ASSERT_TRUE(lua_getmetatable(L, -1)) << metatable;
        luaL_getmetatable(L, metatable);
        EXPECT_TRUE(lua_rawequal(L, -1, -2)) << metatable;
        // Every wrapper metatable is its own __index and carries the node set.
        lua_getfield(L, -1, "__index");
        EXPECT_TRUE(lua_rawequal(L, -1, -2)) << metatable;
        lua_getfield(L, -2, "ControlWrapperIdentifier");
        EXPECT_TRUE(lua_isfunction(L, -1)) << metatable;
        lua_settop(L, top);
        EXPECT_EQ(node->GetReferenceCount(), 2) << metatable;
    }

    const int top = lua_gettop(L);
    EXPECT_EQ(LuaControlWrapperFactory(NodeP(), L), nullptr);
    EXPECT_EQ(lua_gettop(L), top);
    collectGarbage();
}

}  // namespace

// Change notification binders from the native side: their slots, one listener however
// many functions, a listener left inert by a replaced table, the stack around a call, and
// the modifiers the testing module sends.
#include <vector>

#include <boost/any.hpp>
#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zeblua/ui/src/ControlChangedBinder.h"
#include "zeblua/ui/src/InteractiveControlChangedBinder.h"
#include "zeblua/ui/src/LuaBindingTable.h"
#include "zebui/controls/UI_Checkbox.h"
#include "zebui/controls/UI_InteractiveControlChangedMessage.h"
#include "zebui/ui/MessageT.h"

namespace {

using zeblua::ui::LuaBindingTable;
using zebui::controls::UI_Checkbox;
using zebui::controls::UI_ControlView;
using zebui::controls::UI_InteractiveControlView;

class ChangeBinderTest : public LuaTest {
protected:
    // The check box in the global box, made with two functions of each kind: only the first
    // of each adds to the global log.
    boost::intrusive_ptr<UI_Checkbox> makeBox() {
        runLua(R"(
            log = {}
            box = zebhost.newNode("UI_Checkbox")
            box:NotifyWhenChanged(function() log[#log + 1] = "changed" end)
            box:NotifyWhenChanged(function() log[#log + 1] = "second changed" end)
            box:NotifyWhenChangedInteractively(function(m) log[#log + 1] = m.changeMessage end)
            box:NotifyWhenChangedInteractively(function() log[#log + 1] = "second phase" end)
        )");
        return nodeOf<UI_Checkbox>("box");
    }
};

TEST_F(ChangeBinderTest, EachKindHasItsSlotAndOneListenerAndCallsOnlyItsFirstFunction) {
    const boost::intrusive_ptr<UI_Checkbox> box = makeBox();
    ASSERT_TRUE(box);
    const auto table = LuaBindingTable::GetLuaBindingTable(box.get(), false);
    ASSERT_TRUE(table);
    EXPECT_FALSE(table->slots[LuaBindingTable::kZebBinderSlot]);
    EXPECT_TRUE(dynamic_cast<zeblua::ui::ControlChangedBinder<UI_ControlView>*>(
        table->slots[LuaBindingTable::kControlChangedSlot].get()));
    EXPECT_TRUE(
        dynamic_cast<zeblua::ui::InteractiveControlChangedBinder<UI_InteractiveControlView>*>(
            table->slots[LuaBindingTable::kInteractiveControlChangedSlot].get()));

    box->SetChecked(true);
    box->BeginInteractiveChange();
    box->SetChecked(true);  // no change: nobody is told
    box->CancelInteractiveChange();
    EXPECT_EQ(luaValue("table.concat(log, ' ')"), "changed 0 3")
        << "one listener per binder, however many functions, and only the first runs";
}

TEST_F(ChangeBinderTest, AReplacedTableLeavesItsListenersInertAndNewFunctionsStartAfresh) {
    const boost::intrusive_ptr<UI_Checkbox> box = makeBox();
    ASSERT_TRUE(box);
    box->SetUserData(boost::any());  // the table and both binders die here
    collectGarbage();
    box->SetChecked(true);
    box->BeginInteractiveChange();
    box->FinishInteractiveChange();
    EXPECT_EQ(luaValue("#log"), "0") << "the toolkit's listeners outlived their binders";

    runLua(R"(box:NotifyWhenChanged(function() log[#log + 1] = "again" end))");
    box->SetChecked(false);
    EXPECT_EQ(luaValue("table.concat(log, ' ')"), "again");
}

TEST_F(ChangeBinderTest, AFailingFunctionLeavesTheStackOfTheNativeCallerAsItWas) {
    runLua(R"(
        calls = 0
        box = zebhost.newNode("UI_Checkbox")
        box:NotifyWhenChanged(function() calls = calls + 1; error("failed") end)
        box:NotifyWhenChangedInteractively(function() calls = calls + 1; error({}) end)
    )");
    const boost::intrusive_ptr<UI_Checkbox> box = nodeOf<UI_Checkbox>("box");
    ASSERT_TRUE(box);
    lua_pushstring(L, "below");
    const int top = lua_gettop(L);
    box->SetChecked(true);
    box->ContinueInteractiveChange(0);
    EXPECT_EQ(lua_gettop(L), top);
    EXPECT_STREQ(lua_tostring(L, -1), "below");
    EXPECT_EQ(luaValue("calls"), "2");
}

TEST_F(ChangeBinderTest, TheTestingModuleSendsModifiersAsTheMouseEventReaderReadsThem) {
    const boost::intrusive_ptr<UI_Checkbox> box = makeBox();
    ASSERT_TRUE(box);
    std::vector<int> modifiers;
    box->NotifyWhenChangedInteractively(boost::make_shared<zebui::ui::MessageFunction>(
        [&](zebui::ui::MessageT<zebui::ui::UI_Node>* message) {
            modifiers.push_back(
                static_cast<zebui::controls::UI_InteractiveControlChangedMessage*>(message)
                    ->GetModifiers()
                    .GetValue());
        }));
    runLua(R"(
        require "zeblua.luaTestingSupport"
        for _, n in ipairs({2.9, -1, 258, 0/0, 1/0, 2^40}) do
            luaTestingSupport.SimulateContinueInteractiveChange(box, n)
        end
    )");
    EXPECT_EQ(modifiers, (std::vector<int>{2, 0xFF, 2, 0, 0xFF, 0xFF}));
    EXPECT_EQ(luaValue("table.concat(log, ' ')"), "1 1 1 1 1 1");
}

}  // namespace

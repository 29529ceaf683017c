// The container family's callbacks seen from the native side: what the toolkit gets back
// from a script's validator or action function, and the Lua stack they leave behind.
#include <boost/intrusive_ptr.hpp>
#include <gtest/gtest.h>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zeblua/ui/src/LuaUI_TabWell.h"
#include "zebui/controls/UI_SplitterView.h"

namespace {

using zeblua::ui::LuaUI_TabWell;
using zebui::controls::UI_SplitterView;

class ContainerFamilyTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        runLua("require 'zeblua.zebcontrols'");
    }
};

// A validator's number is taken; a string, no answer, an error or a function that empties
// its own frame leaves the proposal, and the caller's stack is as it was every time.
TEST_F(ContainerFamilyTest, AValidatorAnswersANumberOrLeavesTheProposal) {
    runLua("splitter = zebcontrols.NewSplitterView()");
    const boost::intrusive_ptr<UI_SplitterView> splitter = nodeOf<UI_SplitterView>("splitter");
    const struct {
        const char* validator;
        float expected;
    } rows[] = {
        {"function(p) return p / 2 end", 0.25f},
        {"function(p) return '0.1' end", 0.5f},
        {"function(p) end", 0.5f},
        {"function(p) error('no') end", 0.5f},
        {"function(p) error({}) end", 0.5f},
        {"function(p) return 7 end", 1.0f},
        {"function(p) return 0/0 end", 0.0f},
    };
    for (const auto& row : rows) {
        runLua(std::string("splitter:SetSplitValidationFunction(") + row.validator + ")");
        pushSentinels();
        splitter->SetSplitPercentage(0.5f);
        expectSentinels();
        EXPECT_EQ(splitter->GetSplitPercentage(), row.expected) << row.validator;
    }
}

// The tab action function gets two arguments without a rect and three with one; an error
// goes nowhere and the stack stays as it was.
TEST_F(ContainerFamilyTest, TheActionFunctionGetsARectOnlyWhenThereIsOne) {
    runLua(R"(
        well = zebcontrols.NewTabWell()
        well:SetTabItemActionFunction(function(...)
            calls = (calls or "") .. select("#", ...) .. ":" .. table.concat({...}, ",", 1, 2)
            local r = select(3, ...)
            if r then calls = calls .. ":" .. r.left .. "," .. r.width end
            calls = calls .. " "
        end)
    )");
    const boost::intrusive_ptr<LuaUI_TabWell> well = nodeOf<LuaUI_TabWell>("well");
    const zebcore::geom::RectT<int> rect(3, 0, 40, 20);
    pushSentinels();
    well->TabItemActionHook(zebui::controls::kTabItemAction_Click, 4, nullptr);
    well->TabItemActionHook(zebui::controls::kTabItemAction_Close, 1, &rect);
    expectSentinels();
    EXPECT_EQ(luaValue("calls"), "2:0,4 3:3,1:3,40 ");
    runLua("well:SetTabItemActionFunction(function() error('no') end)");
    pushSentinels();
    well->TabItemActionHook(zebui::controls::kTabItemAction_ContextMenu, 0, &rect);
    expectSentinels();
}

// A plain well made by the toolkit has no Lua hook: its actions call nothing.
TEST_F(ContainerFamilyTest, AWellWithoutAFunctionCallsNothing) {
    const boost::intrusive_ptr<LuaUI_TabWell> well(new LuaUI_TabWell());
    well->AddTab(0, u"one", false, false, false);
    well->AddTab(1, u"two", false, true, false);
    EXPECT_EQ(well->GetFrontmost(), 1);
    EXPECT_EQ(lua_gettop(L), 0);
}

}  // namespace

// The multi-column tree family against the faults a script can make and the toolkit's
// side of its callbacks: every method through released, ended and foreign wrappers, rows
// ended while an argument is read, callbacks that fail or tear down what called them, and
// the row model that sorting and dropping will build on.
#include <string>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaMultiColumnTreeRow.h"
#include "zebui/controls/UI_MultiColumnTree.h"

namespace {

namespace zc = zebui::controls;
using zeblua::ui::LuaMultiColumnTree;
using zeblua::ui::LuaMultiColumnTreeRow;
using RowP = zc::UI_MultiColumnTree::RowPtr;

class MultiColumnTreeTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        runLua("C = require 'zeblua.zebcontrols'");
    }
};

// Every tree method once, with the arguments it takes; r is a row of the tree.
const char* const kTreeCalls[] = {
    "w:Init(3)",
    "w:CreateAndAppendRow(nil, false, 'x')",
    "w:CreateAndInsertRow(nil, nil, false, 'x')",
    "w:RemoveAllRows(false)",
    "w:RemoveRow(r)",
    "w:ScrollRowIntoView(r, true)",
    "w:LayoutAfterAppendRow()",
    "w:LayoutAfterInsertRow()",
    "w:LayoutAfterRemoveRow()",
    "w:SetSupportMultipleSelections(true)",
    "w:SelectRows({ r }, false, false)",
    "w:CountRows(false)",
    "w:GetRow(0)",
    "w:GetRowById('r')",
    "w:SetNumberOfColumns(2)",
    "w:SetRowHeight(20)",
    "w:GetRowHeight()",
    "w:SetResizableColumn(1)",
    "w:SetResizableColumns({ 1 })",
    "w:SetColumnWidth(1, 50)",
    "w:GetColumnWidth(1)",
    "w:IsRowOpen(r)",
    "w:IsRowVisible(r)",
    "w:GetSelectedRows()",
    "w:GetOpenedRows()",
    "w:GetVisibleRows()",
    "w:OpenRow(r)",
    "w:CloseRow(r)",
    "w:CloseAllTopLevelRows()",
    "w:OpenAllTopLevelRows()",
    "w:GetOpenedRowsFirstColumnMinWidth()",
    "w:SetAllowChildren(true)",
    "w:GetScrollView()",
    "w:SetRowHasCustomChild(r, true, 10)",
    "w:DrawCellString(ink, zeblua_CreateNewRectF32(0, 0, 10, 10), 't', zeblua_CreateNewRGBA(0, 0, "
    "0, 1))",
    "w:MeasureStringWidth(ink, 't')",
    "w:SetDrawSpinnerBeforeColumn(1)",
    "w:SetShowBorder(true)",
    "w:SetDrawGridLines(true, true)",
    "w:SetGridLineColors(zeblua_CreateNewRGBA(1, 0, 0, 1), zeblua_CreateNewRGBA(0, 1, 0, 1))",
    "w:SetCustomBackgroundColor(zeblua_CreateNewRGBA(1, 0, 0, 1))",
    "w:ClearCustomBackgroundColor()",
    "w:SetCustomSelectionColor(255)",
    "w:ClearCustomSelectionColor()",
};

// A wrapper "w" of a fresh tree with one row "r", and an Inkwell proxy "ink" of a canvas.
const char kFreshTree[] = R"(
    w = C.NewMultiColumnTree()
    r = w:CreateAndAppendRow(nil, true, 'r')
    zebhost.canvas(4, 4, function(i) ink = i end)
)";

// The faults of the tree's own argument: a released wrapper and one a script ended answer
// every method with no value and no error (binding answers false); another class's wrapper
// is the conversion error, a table "Bad user data".
TEST_F(MultiColumnTreeTest, EveryTreeMethodThroughItsFaults) {
    runLua("require 'zeblua.inkwell.zebInkwell'; knob = C.NewKnob()");
    for (const char* call : kTreeCalls) {
        SCOPED_TRACE(call);
        runLua(std::string(kFreshTree) + "w:Release()");
        EXPECT_EQ(resultCount(call), 0);
        runLua(std::string(kFreshTree) + "getmetatable(w).__gc(w)");
        EXPECT_EQ(resultCount(call), 0);
        runLua(kFreshTree);
        const std::string name = std::string(call).substr(2, std::string(call).find('(') - 2);
        const std::string args = std::string(call).substr(std::string(call).find('(') + 1);
        const std::string sep = args == ")" ? "" : ", ";
        if (name == "DrawCellString" || name == "MeasureStringWidth")
            runLua("w." + name + "(knob" + sep + args);  // the toolkit's text needs no tree
        else
            EXPECT_NE(luaError("w." + name + "(knob" + sep + args).find("Invalid type conversion."),
                      std::string::npos);
        EXPECT_NE(luaError("w." + name + "({}" + sep + args).find("Bad user data"),
                  std::string::npos);
    }
    runLua(std::string(kFreshTree) + "w:Release()");
    EXPECT_EQ(luaValue("w:BindZebOperation('mctDrawCell', print)"), "false");
    zebcore::debug::ClearRecordedAssertReports();
}

// Every row method once; an empty wrapper answers nothing, anything else as argument 1
// is the checkudata error naming the row metatable.
const char* const kRowCalls[] = {
    "r:GetCellView(1)",   "r:SetID('x')",
    "r:GetID()",          "r:SetCanHaveChildren(1)",
    "r:CountChildRows()", "r:GetChildRowIndex(r)",
    "r:GetChildRow(0)",   "r:GetParentRow()",
    "r:HasChild()",       "r:SetCustomBackgroundColor(zeblua_CreateNewRGBA(1, 0, 0, 1))",
    "r:HasCustomChild()", "r:GetCustomChild()",
};

TEST_F(MultiColumnTreeTest, EveryRowMethodThroughItsFaults) {
    for (const char* call : kRowCalls) {
        SCOPED_TRACE(call);
        runLua(std::string(kFreshTree) + "getmetatable(r).__gc(r)");
        EXPECT_EQ(resultCount(call), 0);
        runLua(kFreshTree);
        const std::string text(call);
        const std::string name = text.substr(2, text.find('(') - 2);
        const std::string args = text.substr(text.find('(') + 1);
        EXPECT_NE(luaError("r." + name + "(w" + (args == ")" ? "" : ", ") + args)
                      .find("Zeb.UI_MultiColumnTreeRow"),
                  std::string::npos);
    }
    runLua(kFreshTree);
    EXPECT_EQ(luaValue("getmetatable(r).__metatable"), "nil");
    EXPECT_NE(luaError("zebcontrols.NewTextButton():UI_GetNodeID.x"), "");
    EXPECT_EQ(luaValue("pcall(C.NewTextButton().UI_GetNodeID, r)"), "false");
}

// A colour whose field ends the row that reads it, and an id whose conversion ends the
// parent: nothing is touched through the ended wrapper.
TEST_F(MultiColumnTreeTest, RowsEndedWhileAnArgumentIsRead) {
    runLua(R"(
        w = C.NewMultiColumnTree()
        r = w:CreateAndAppendRow(nil, true, 'r')
        local colour = setmetatable({}, { __index = function(_, key)
          getmetatable(r).__gc(r)
          collectgarbage("collect")
          return 1
        end })
        n = select("#", r:SetCustomBackgroundColor(colour))
        p = w:CreateAndAppendRow(nil, true, 'p')
        local id = setmetatable({}, { __tostring = function() return "never" end })
        ok = pcall(w.CreateAndAppendRow, w, p, false, id)
    )");
    EXPECT_EQ(luaValue("n"), "0");
    EXPECT_EQ(luaValue("ok"), "false");  // a table is no id
    EXPECT_EQ(luaValue("w:CountRows(false)"), "2");
    EXPECT_EQ(luaValue("w:GetRowById('r'):GetID()"), "r");
}

// A row of the plain toolkit class gives nothing from GetRow, and stands as an empty
// wrapper in a list; GetRowById skips it with its children.
TEST_F(MultiColumnTreeTest, PlainToolkitRowsAreEmptyWrappers) {
    runLua("w = C.NewMultiColumnTree()");
    const auto node = nodeOf<LuaMultiColumnTree>("w");
    const RowP plain(new zc::UI_MultiColumnTreeRow(true));
    ASSERT_GE(node->AppendRow(plain, nullptr, true), 0);
    ASSERT_GE(node->AppendRow(RowP(new LuaMultiColumnTreeRow("hidden")), plain, true), 0);
    node->SelectRows(zc::UI_MultiColumnTree::RowList{plain}, false, false, false);
    EXPECT_EQ(resultCount("w:GetRow(0)"), 0);
    EXPECT_EQ(luaValue("#w:GetSelectedRows()"), "1");
    EXPECT_EQ(resultCount("w:GetSelectedRows()[1]:GetID()"), 0);
    EXPECT_EQ(resultCount("w:GetRowById('hidden')"), 0);
    node->OpenRow(plain);
    EXPECT_EQ(luaValue("w:GetVisibleRows()[2]:GetID()"), "hidden");
    EXPECT_EQ(resultCount("w:GetVisibleRows()[2]:GetParentRow()"), 0);  // a plain parent
}

// A custom child lies under its row, as tall as asked, and pushes the rows below it down;
// it is hidden while its row is.
TEST_F(MultiColumnTreeTest, CustomChildrenTakeTheirPlaceInTheLayout) {
    runLua(R"(
        w = C.NewMultiColumnTree()
        w:UI_SetLocalRectF(zeblua_CreateNewRectF32(0, 0, 100, 100))
        a = w:CreateAndAppendRow(nil, true, 'a')
        b = w:CreateAndAppendRow(nil, true, 'b')
        w:SetRowHasCustomChild(a, true, 30)
        c = w:CreateAndAppendRow(b, true, 'c')
        w:SetRowHasCustomChild(c, true, 12)
    )");
    const auto node = nodeOf<LuaMultiColumnTree>("w");
    const RowP a = node->GetRow(0), b = node->GetRow(1);
    const zebcore::geom::RectT<float> custom = a->GetCustomChild()->UI_GetLocalRectF(false);
    EXPECT_EQ(custom.top, 18.0f);
    EXPECT_EQ(custom.height, 30.0f);
    EXPECT_EQ(b->GetLayoutTop(), 48.0f);
    EXPECT_FALSE(b->GetChildRow(0)->GetCustomChild()->UI_IsShown());
    runLua("w:OpenRow(b)");
    EXPECT_TRUE(b->GetChildRow(0)->GetCustomChild()->UI_IsShown());
    EXPECT_EQ(luaValue("c:GetCustomChild():UI_GetLocalRectF().top"), "84");
    runLua("other = C.NewMultiColumnTree(); other:SetRowHasCustomChild(a, false)");
    EXPECT_TRUE(a->HasCustomChild());  // a row of another tree is that tree's
    EXPECT_NE(luaError("w:CreateAndAppendRow(newproxy(), false)").find("Zeb.UI_MultiColumnTreeRow"),
              std::string::npos);  // any userdata must be a row
}

// The list handed to the toolkit: columns less one, zero and below skipped, also empty.
TEST_F(MultiColumnTreeTest, ResizableColumnsAndFlagsReachTheToolkit) {
    runLua("w = C.NewMultiColumnTree()");
    const auto node = nodeOf<LuaMultiColumnTree>("w");
    runLua("w:SetResizableColumns({ 1, 0, 3, -2 })");
    EXPECT_EQ(node->GetAutoResizableColumns(), (std::vector<unsigned int>{0, 2}));
    runLua("w:SetResizableColumns({})");
    EXPECT_TRUE(node->GetAutoResizableColumns().empty());
    runLua("w:SetResizableColumn(2)");
    EXPECT_EQ(node->GetAutoResizableColumns(), (std::vector<unsigned int>{1}));
    runLua("w:SetResizableColumns({ 1, 1 }, 5)");  // position 3 is fixed: the extra one is read
    EXPECT_EQ(node->GetAutoResizableColumns(), (std::vector<unsigned int>{4, 4}));
    EXPECT_NE(luaError("w:SetResizableColumns({ 1 }, 'x')").find("number expected"),
              std::string::npos);
    runLua("w:Init(5)");
    EXPECT_EQ(node->GetInitFlags().GetValue(), 5u);
    runLua("w:Init()");
    EXPECT_EQ(node->GetInitFlags().GetValue(), 0u);
    runLua("w:SetShowBorder(1); w:SetDrawGridLines(1, nil)");
    EXPECT_TRUE(node->GetShowBorder());
    EXPECT_TRUE(node->GetDrawHorizontalGridLines());
    EXPECT_FALSE(node->GetDrawVerticalGridLines());
    runLua("w:SetDrawSpinnerBeforeColumn(2); w:SetDrawSpinnerBeforeColumn(0)");
    EXPECT_EQ(node->GetDrawSpinnerBeforeColumn(), 1u);
}

// Colours: the selection colour goes through the toolkit's callback until cleared; the
// background colour stays stored when its flag is cleared.
TEST_F(MultiColumnTreeTest, CustomColoursAndTheirFlags) {
    runLua("w = C.NewMultiColumnTree()");
    const auto node = nodeOf<LuaMultiColumnTree>("w");
    EXPECT_EQ(node->GetSelectionColor(), zc::UI_MultiColumnTree::kDefaultSelectionColor);
    runLua("w:SetCustomSelectionColor(0x11223344)");
    EXPECT_EQ(node->GetSelectionColor(), 0x11223344u);
    EXPECT_TRUE(node->HasCustomSelectionColor());
    runLua("w:ClearCustomSelectionColor()");
    EXPECT_EQ(node->GetSelectionColor(), zc::UI_MultiColumnTree::kDefaultSelectionColor);
    EXPECT_EQ(node->GetCustomBackgroundColor().alpha, 0.0f);  // all zeros at first
    runLua("w:SetCustomBackgroundColor(zeblua_CreateNewRGBA(0.5, 0, 0, 1))");
    EXPECT_TRUE(node->HasCustomBackgroundColor());
    runLua("w:ClearCustomBackgroundColor()");
    EXPECT_FALSE(node->HasCustomBackgroundColor());
    EXPECT_EQ(node->GetCustomBackgroundColor().red, 0.5f);
}

// The toolkit's side of the callbacks: the caller's stack is untouched whatever the script
// does, an error in the selection function still lets the toolkit's handling run, and the
// context menu answer is the script's true, an error's true, or the toolkit's own.
TEST_F(MultiColumnTreeTest, CallbacksLeaveTheStackAndAnswerInTheirForms) {
    runLua(R"(
        w = C.NewMultiColumnTree()
        r = w:CreateAndAppendRow(nil, true, 'r')
        calls = ""
        w:BindZebOperation("mctSelectionChanged", function(rows)
          calls = calls .. "sel" .. #rows .. " "
          error("no")
        end)
        w:BindZebOperation("mctRowContextMenu", function(row, point, node, column)
          calls = calls .. "ctx" .. column .. " "
          return answer
        end)
    )");
    const auto node = nodeOf<LuaMultiColumnTree>("w");
    const RowP row = node->GetRow(0);
    node->ClearRedrawRecord();
    pushSentinels();
    node->SelectRows(zc::UI_MultiColumnTree::RowList{row}, false, true, false);
    expectSentinels();
    EXPECT_GT(node->GetRedrawRecord().invalidateCount, 0u);  // the toolkit's own handling
    const zebcore::geom::PointT<float> point(3, 4);
    const struct {
        const char* answer;
        bool handled;
    } rows[] = {{"false", false}, {"true", true}, {"nil", false}, {"1", true}};
    for (const auto& each : rows) {
        runLua(std::string("answer = ") + each.answer);
        pushSentinels();
        EXPECT_EQ(node->NotifyOfRowContextMenu(row, point, *node, 0), each.handled) << each.answer;
        expectSentinels();
    }
    runLua("w:BindZebOperation('mctRowContextMenu', function() error('x') end)");
    EXPECT_TRUE(node->NotifyOfRowContextMenu(row, point, *node, 0));
    EXPECT_EQ(luaValue("calls"), "sel1 ctx1 ctx1 ctx1 ctx1 ");
}

// A second binding replaces the first without a second callback; the cell function gets
// the column plus 1 and a rect, and a failing one draws nothing more and leaves the stack.
TEST_F(MultiColumnTreeTest, BindingTwiceCallsOnlyTheSecond) {
    runLua(R"(
        require "zeblua.inkwell.zebSurfaceInterface"
        w = C.NewMultiColumnTree()
        w:UI_SetLocalRectF(zeblua_CreateNewRectF32(0, 0, 50, 40))
        w:CreateAndAppendRow(nil, true, 'r')
        calls = ""
        w:BindZebOperation("mctDrawCell", function() calls = calls .. "first " end)
        w:BindZebOperation("mctDrawCell", function(ink, row, column, r)
          calls = calls .. row:GetID() .. column .. ":" .. r.top .. " "
          error("after drawing")
        end)
    )");
    pushSentinels();
    runLua("zebhost.draw(w)");
    expectSentinels();
    EXPECT_EQ(luaValue("calls"), "r1:0 ");
}

// A cell function that removes every row and drops the tree mid-draw touches nothing freed.
TEST_F(MultiColumnTreeTest, ACellFunctionMayDismantleTheTree) {
    runLua(R"(
        w = C.NewMultiColumnTree()
        w:UI_SetLocalRectF(zeblua_CreateNewRectF32(0, 0, 50, 60))
        for i = 1, 3 do w:CreateAndAppendRow(nil, true, 'r' .. i) end
        calls = 0
        w:BindZebOperation("mctDrawCell", function(ink, row)
          calls = calls + 1
          victim:RemoveAllRows(true)
          victim:Release()
          collectgarbage("collect")
        end)
        victim, w = w, nil
        picture = zebhost.draw(victim)
        collectgarbage("collect")
    )");
    EXPECT_EQ(luaValue("calls"), "1");
}

// The row model a sort or a drop builds on: sibling lists and moving rows, refused under
// itself; and a removed row keeps its children but leaves the tree with them.
TEST_F(MultiColumnTreeTest, SiblingListsAndMovingRows) {
    const boost::intrusive_ptr<LuaMultiColumnTree> tree(new LuaMultiColumnTree());
    const RowP a(new LuaMultiColumnTreeRow("a")), b(new LuaMultiColumnTreeRow("b")),
        c(new LuaMultiColumnTreeRow("c"));
    ASSERT_EQ(tree->AppendRow(a, nullptr, false), 0);
    ASSERT_EQ(tree->AppendRow(b, nullptr, false), 1);
    ASSERT_EQ(tree->AppendRow(c, a, false), 0);
    EXPECT_EQ(tree->AppendRow(c, nullptr, false), -1);  // already in the tree
    EXPECT_EQ(tree->GetSiblingRows(nullptr).size(), 2u);
    EXPECT_TRUE(tree->MoveRow(b, a, 0, true));
    EXPECT_EQ(tree->GetSiblingRows(a).front(), b);
    EXPECT_EQ(b->GetParentRow(), a);
    EXPECT_FALSE(tree->MoveRow(a, b, 0, true));  // under its own child
    EXPECT_EQ(tree->CountRows(true), 3u);
    a->SetCanHaveChildren(false);
    EXPECT_EQ(tree->AppendRow(RowP(new LuaMultiColumnTreeRow("d")), a, true), -1);
    tree->SetAllowChildren(false);
    EXPECT_EQ(tree->AppendRow(RowP(new LuaMultiColumnTreeRow("e")), b, true), -1);
    tree->RemoveRow(a, true, false);
    EXPECT_EQ(tree->CountRows(true), 0u);
    EXPECT_EQ(a->CountChildRows(), 2u);
    EXPECT_EQ(c->GetTree(), nullptr);
    EXPECT_FALSE(tree->IsRowVisible(c));
}

}  // namespace

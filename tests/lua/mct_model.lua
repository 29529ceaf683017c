-- The tree's row model as a script fills and reads it: numbering bases, defaults, lookups
-- by id through closed branches, rows that outlive their removal, selection and columns.
require "zeblua.zebcontrols"
local check, checkEqual, count = zebhost.check, zebhost.checkEqual, zebhost.count
local rect = zeblua_CreateNewRectF32
local C = zebcontrols

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 300, 200))
local tree = C.NewMultiColumnTree()
tree:UI_SetLocalRectF(rect(0, 0, 300, 200))
root:ChildPushBack(tree)

-- Defaults: one column, rows 18 high, no rows.
checkEqual(tree:GetRowHeight(), 18, "row height")
checkEqual(tree:CountRows(false), 0, "no rows")
check(tree:GetColumnWidth(1) > 0, "column 1 exists")
checkEqual(tree:GetColumnWidth(2), 0, "no second column: the toolkit answers 0")
checkEqual(count(tree:GetColumnWidth(0)), 0, "column 0 answers nothing")
checkEqual(tree.mctDrawCell, "mctDrawCell", "operation names are fields")
checkEqual(tree.mctDropSupport, "mctDropSupport", "all nine")
checkEqual(tree.mctRowContextMenu, nil, "the context menu has no field")
checkEqual(tree.SetEnabled, nil, "no interactive control set")

-- Creating: top level, nested, ids empty by default.
local a = tree:CreateAndAppendRow(nil, false, "a")
local b = tree:CreateAndAppendRow(nil, false)
checkEqual(b:GetID(), "", "an empty id")
local a1 = tree:CreateAndAppendRow(a, false, "a1")
local a11 = tree:CreateAndAppendRow(a1, false, "a11")
local a111 = tree:CreateAndAppendRow(a11, true, "deep")
tree:CreateAndAppendRow(b, false, "dup")
tree:CreateAndAppendRow(a, false, "dup2")
checkEqual(tree:CountRows(false), 2, "two top-level rows")
checkEqual(tree:CountRows(true), 7, "seven in all")
checkEqual(tree:GetRow(0):GetID(), "a", "rows count from 0")
checkEqual(tree:GetRow(1):GetID(), "", "the second")
checkEqual(count(tree:GetRow(tree:CountRows(false))), 0, "beyond the last: nothing")
checkEqual(count(tree:GetRow(-1)), 0, "a negative index: nothing")
check(tree:GetRow(0) ~= tree:GetRow(0), "each push is a new wrapper")
checkEqual(tree:GetRow(0):GetID(), tree:GetRow(0):GetID(), "of the same row")
checkEqual(getmetatable(a).__index, getmetatable(a), "a row's metatable is its own __index")
checkEqual(a:CountChildRows(), 2, "children")
checkEqual(a:GetChildRow(1):GetID(), "dup2", "child rows from 0")
checkEqual(a:GetChildRowIndex(a1), 0, "child index from 0")
checkEqual(a:GetChildRowIndex(b), -1, "not a child: the toolkit's answer")
checkEqual(count(a:GetParentRow()), 0, "a top-level row has no parent")
checkEqual(a11:GetParentRow():GetID(), "a1", "the parent")
check(a:HasChild() and not a111:HasChild(), "HasChild")

-- Insertion before a reference row.
local first = tree:CreateAndInsertRow(nil, a, false, "first")
checkEqual(tree:GetRow(0):GetID(), "first", "inserted before the reference")
local last = tree:CreateAndInsertRow(nil, nil, false, "last")
checkEqual(tree:GetRow(3):GetID(), "last", "no reference: at the end")
tree:LayoutAfterInsertRow()

-- Lookup: depth first, through closed rows, the first of two ids.
check(not tree:IsRowOpen(a), "rows start closed")
checkEqual(tree:GetRowById("deep"):GetID(), "deep", "three levels under a closed row")
check(not tree:IsRowVisible(a111), "and not visible")
checkEqual(tree:GetRowById(""):GetParentRow(), nil, "the first empty id is a top-level row")
b:SetID("a1")
checkEqual(tree:GetRowById("a1"):GetParentRow():GetID(), "a", "duplicate ids: the first in order")
b:SetID("")
checkEqual(count(tree:GetRowById("A")), 0, "case-sensitive")
checkEqual(count(tree:GetRowById("nothing")), 0, "nothing found")

-- Argument faults.
local ok, message = pcall(tree.CreateAndAppendRow, tree, root, false)
check(not ok and message:find("Zeb.UI_MultiColumnTreeRow", 1, true), tostring(message))
checkEqual(tree:CreateAndAppendRow(42, false, "n"):GetParentRow(), nil, "a number means top level")
tree:RemoveRow(tree:GetRowById("n"))
ok, message = pcall(tree.GetRow, root, 0)
check(not ok, "another class's wrapper")
ok, message = pcall(a.GetID, tree)
check(not ok and message:find("Zeb.UI_MultiColumnTreeRow", 1, true), tostring(message))

-- Cells: columns from 1.
check(a:GetCellView(1) ~= nil, "the first column's view")
checkEqual(count(a:GetCellView(0)), 0, "column 0: nothing")
checkEqual(count(a:GetCellView(2)), 0, "beyond the columns: nothing")
tree:SetNumberOfColumns(3)
check(a:GetCellView(3) ~= nil, "three columns")
tree:SetNumberOfColumns(-1)
checkEqual(count(a:GetCellView(3)), 1, "a negative count changes nothing")
tree:SetColumnWidth(2, 40)
checkEqual(tree:GetColumnWidth(2), 40, "width of column 2")
tree:SetColumnWidth(0, 10)
checkEqual(tree:GetColumnWidth(1), 100, "column 0 is ignored")
ok = pcall(tree.SetColumnWidth, tree, 0)
check(not ok, "both arguments are checked before column 0 is ignored")

-- Removal: the held row still answers, lookups no longer find it.
tree:RemoveRow(a1)
checkEqual(a1:GetID(), "a1", "a removed row keeps its id")
check(a1:HasChild(), "and its children")
checkEqual(a1:GetChildRow(0):GetID(), "a11", "which still answer")
checkEqual(count(tree:GetRowById("a1")), 0, "not found")
checkEqual(count(tree:GetRowById("deep")), 0, "nor its children")
checkEqual(count(a1:GetParentRow()), 0, "detached")
check(not tree:IsRowVisible(a1), "not visible in the tree")
checkEqual(count(a1:GetCellView(1)), 0, "no cell out of a tree")
tree:RemoveAllRows(true)
checkEqual(tree:CountRows(false), 0, "all gone")
checkEqual(first:GetID(), "first", "still answers")
collectgarbage()
checkEqual(a111:GetID(), "deep", "a held row outlives its parents' wrappers")

-- A wrapper ended with its __gc answers nothing, and the second __gc releases nothing.
local doomed = tree:CreateAndAppendRow(nil, false, "doomed")
getmetatable(doomed).__gc(doomed)
getmetatable(doomed).__gc(doomed)
checkEqual(count(doomed:GetID()), 0, "an empty wrapper answers nothing")
checkEqual(tree:GetRowById("doomed"):GetID(), "doomed", "the row itself lives on in the tree")

-- Selection: SelectRows reads its two flags from the stack.
tree:RemoveAllRows(true)
local r0 = tree:CreateAndAppendRow(nil, true, "r0")
local r1 = tree:CreateAndAppendRow(nil, true, "r1")
ok, message = pcall(tree.SelectRows, tree, { r0 })
check(not ok and message:find("#5", 1, true), "without both flags: " .. tostring(message))
tree:SelectRows({ r0 }, nil, nil)
checkEqual(tree:GetSelectedRows()[1]:GetID(), "r0", "selected")
ok = pcall(tree.SelectRows, tree, { r0, "x" }, false, false)
check(not ok, "a bad element")
checkEqual(#tree:GetSelectedRows(), 1, "a bad element changes nothing")
tree:SelectRows({}, false, false)
checkEqual(#tree:GetSelectedRows(), 0, "an empty table deselects")
tree:SetSupportMultipleSelections(true)
tree:SelectRows({ r0, r1 }, false, false)
checkEqual(#tree:GetSelectedRows(), 2, "two rows")

-- Resizable columns: checked before the list is built.
ok = pcall(tree.SetResizableColumns, tree, { 1, "x" })
check(not ok, "a non-number element")

-- Open state and visibility.
local child = tree:CreateAndAppendRow(r0, true, "child")
check(not tree:IsRowVisible(child), "under a closed row")
tree:OpenRow(r0)
check(tree:IsRowVisible(child) and tree:IsRowOpen(r0), "opened")
checkEqual(#tree:GetOpenedRows(), 1, "one opened row")
checkEqual(#tree:GetVisibleRows(), 3, "three visible")
tree:CloseAllTopLevelRows()
checkEqual(#tree:GetVisibleRows(), 2, "closed again")
tree:OpenAllTopLevelRows()
checkEqual(tree:GetVisibleRows()[2]:GetID(), "child", "visible rows in order")
check(tree:GetOpenedRowsFirstColumnMinWidth() > 0, "room for a triangle")

-- Custom children.
tree:SetRowHasCustomChild("nope", true)
tree:SetRowHasCustomChild(r1, true, 30)
check(r1:HasCustomChild() and r1:GetCustomChild() ~= nil, "a custom child")
tree:SetRowHasCustomChild(r1, false)
check(not r1:HasCustomChild(), "taken away")
checkEqual(count(r1:GetCustomChild()), 0, "none")
check(tree:GetScrollView() ~= nil, "the scroll view")
print("mct_model: ok")

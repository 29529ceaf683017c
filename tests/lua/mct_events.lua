-- The tree as a user clicks it: selection, disclosure triangles, columns numbered from 1,
-- double and context clicks, arrows, and the forms and quirks of the bound operations.
require "zeblua.zebcontrols"
require "zeblua.inkwell.zebInkwell"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local mouse, buttons = zebhost.mouse, zebhost.buttons
local C = zebcontrols

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 300, 200))
local tree = C.NewMultiColumnTree()
tree:UI_SetLocalRectF(rect(0, 0, 300, 200))
root:ChildPushBack(tree)
tree:SetNumberOfColumns(2)
tree:SetColumnWidth(1, 120)
tree:SetColumnWidth(2, 100)
-- Rows lie 18 high from the top: parent at 0, then other at 18 while parent is closed; its
-- child takes 18 once it is opened.
local parent = tree:CreateAndAppendRow(nil, false, "parent")
local kid = tree:CreateAndAppendRow(parent, false, "kid")
local other = tree:CreateAndAppendRow(nil, false, "other")
tree:LayoutAfterAppendRow()

local log, taken = zebhost.recorder(" | ")
local function record(text) log[#log + 1] = text end

checkEqual(tree:BindZebOperation("mctSelectionChanged", function(rows)
  local ids = {}
  for i = 1, #rows do ids[i] = rows[i]:GetID() end
  record("sel " .. #rows .. " " .. table.concat(ids, ","))
end), true, "binding answers true")
tree:BindZebOperation("mctRowSingleClickDown", function(row, point, flags, column)
  record(string.format("down %s %d %d %d", row:GetID(), point.x, flags, column))
end)
tree:BindZebOperation("mctRowSingleClickUp", function(row, point, flags, column)
  record(string.format("up %s %d", row:GetID(), column))
end)
tree:BindZebOperation("mctRowDoubleClick", function(row, point, flags, column)
  record(string.format("double %s %d", row:GetID(), column))
end)
tree:BindZebOperation("mctRowDisclosureChanged", function(row, open)
  record("disclosure " .. row:GetID() .. " " .. tostring(open))
end)
tree:BindZebOperation("mctRowVisibilityChanged", function(row, ...)
  record("visible " .. row:GetID() .. " " .. tostring(tree:IsRowVisible(row)) .. select("#", ...))
end)

-- A click on a row selects it: a one-row table, then the click with column 1.
zebhost.click(root, 60, 27)
checkEqual(taken(), "sel 1 other | down other 60 0 1 | up other 1", "a click in column 1")
checkEqual(tree:GetSelectedRows()[1]:GetID(), "other", "selected")
zebhost.click(root, 150, 27, 1)
checkEqual(taken(), "sel 1 other | down other 150 1 2 | up other 2", "column 2, shift as flags")

-- The disclosure triangle opens the row: the disclosure, then the child becomes visible.
zebhost.click(root, 6, 9)
checkEqual(taken(), "disclosure parent true | visible kid true0", "opened by its triangle")
check(tree:IsRowOpen(parent) and tree:IsRowVisible(kid), "open")
-- The child now lies at 18, indented.
zebhost.click(root, 60, 27)
checkEqual(taken(), "sel 1 kid | down kid 60 0 1 | up kid 1", "the child row")
zebhost.click(root, 6, 9)
checkEqual(taken(), "disclosure parent false | visible kid false0", "closed again")

-- A double click arrives as such.
local function press(action, x, y, clicks, button)
  zebhost.sendMouse(root, zeblua_CreateNewZEBUIMouseEvent(action, button or buttons.kLeft,
    clicks, x, y, 0, 0, 0))
end
press(mouse.kDown, 60, 27, 1)
press(mouse.kUp, 60, 27, 1)
press(mouse.kDown, 60, 27, 2)
press(mouse.kUp, 60, 27, 2)
checkEqual(taken(), "sel 1 other | down other 60 0 1 | up other 1 | double other 1",
  "a double click, its up no single click")

-- Context clicks: false lets the toolkit handle it, true ends it, an error counts as true.
local answer
tree:BindZebOperation("mctRowContextMenu", function(row, point, node, column)
  record(string.format("context %s %d %s %d", row:GetID(), point.y, tostring(node ==
    nil), column))
  if answer == "error" then error("boom") end
  return answer
end)
answer = false
press(mouse.kDown, 150, 9, 1, buttons.kRight)
press(mouse.kUp, 150, 9, 1, buttons.kRight)
checkEqual(taken(), "context parent 9 false 2", "a right click, the node, column 2")
answer = "error"
press(mouse.kDown, 150, 9, 1, buttons.kRight)
checkEqual(taken(), "context parent 9 false 2", "an error is dropped")
press(mouse.kUp, 150, 9, 1, buttons.kRight)

-- Arrows move a single selection through the visible rows.
tree:SelectRows({ parent }, false, false)
zebhost.sendKey({ keyCode = zebhost.keys.kDownArrow }, tree)
checkEqual(taken(), "sel 1 other", "down to the next visible row")
zebhost.sendKey({ keyCode = zebhost.keys.kUpArrow }, tree)
checkEqual(taken(), "sel 1 parent", "and up")

-- Selection is heard first, and the toolkit's handling runs even when the script fails.
tree:BindZebOperation("mctSelectionChanged", function() record("failing"); error("x") end)
zebhost.click(root, 60, 27)
checkEqual(taken(), "failing | down other 60 0 1 | up other 1", "a second binding replaces")

-- Names: "mct" names without an operation answer true and are never called; others go
-- the node's way.
checkEqual(tree:BindZebOperation("mctFoo", function() record("foo") end), true, "mctFoo")
checkEqual(tree:BindZebOperation("mc", function() return true end), true, "mc: a node name")
zebhost.click(root, 60, 27)
checkEqual(taken(), "failing | down other 60 0 1 | up other 1", "mctFoo never called")
local ok = pcall(tree.BindZebOperation, tree, "mctDrawCell", 1)
check(not ok, "a non-function raises")
tree:BindZebOperation("uiMouseEvent", function(event)
  if event.action == mouse.kDown then record("node") end
  return true
end)
zebhost.click(root, 60, 27)
checkEqual(taken(), "node", "uiMouseEvent reaches the tree as on any node, before the rows")
tree:BindZebOperation("uiMouseEvent", function() return false end)
zebhost.click(root, 60, 27)
checkEqual(taken(), "failing | down other 60 0 1 | up other 1", "false leaves the rows the event")

-- Scrolling through the scroll view: the wheel moves by rows, clicks follow the rows, and
-- ScrollRowIntoView brings a row back.
local small = C.NewMultiColumnTree()
small:UI_SetLocalRectF(rect(0, 100, 100, 36))
root:ChildPushBack(small)
for i = 0, 3 do small:CreateAndAppendRow(nil, false, "r" .. i) end
small:LayoutAfterAppendRow()
local function clickedId(y)
  zebhost.click(root, 50, 100 + y)
  local selected = small:GetSelectedRows()[1]
  return selected and selected:GetID()
end
checkEqual(clickedId(9), "r0", "the first row at the top")
zebhost.sendMouse(root, zeblua_CreateNewZEBUIMouseEvent(mouse.kWheel, 0, 0, 50, 110, 0, -1, 0))
checkEqual(clickedId(9), "r1", "one row further after the wheel")
zebhost.sendMouse(root, zeblua_CreateNewZEBUIMouseEvent(mouse.kWheel, 0, 0, 50, 110, 0, -9, 0))
checkEqual(clickedId(27), "r3", "never beyond the last row")
local drawn = {}
small:BindZebOperation("mctDrawCell", function(ink, row) drawn[#drawn + 1] = row:GetID() end)
zebhost.draw(root)
checkEqual(table.concat(drawn, " "), "r2 r3", "only the rows in view are drawn")
small:ScrollRowIntoView(small:GetRow(0))
checkEqual(clickedId(9), "r0", "scrolled back to the first")

-- A resizable column's right edge follows a drag.
tree:SetResizableColumns({ 1 })
zebhost.drag(root, 120, 27, 150, 27)
checkEqual(tree:GetColumnWidth(1), 150, "dragged wider")
checkEqual(tree:GetColumnWidth(2), 100, "the other column keeps its width")
zebhost.drag(root, 220, 27, 260, 27)
checkEqual(tree:GetColumnWidth(2), 100, "a column that isn't resizable doesn't follow")

-- Cell text: the default size and font are the toolkit's, and a kept proxy draws nothing.
local keptInk
zebhost.canvas(40, 20, function(ink)
  keptInk = ink
  local plain = tree:MeasureStringWidth(ink, "abc")
  check(plain > 0, "a width")
  checkEqual(tree:MeasureStringWidth(ink, "abc", 11), plain, "the default size is 11")
  check(tree:MeasureStringWidth(ink, "abc", 22) > plain, "a larger size is wider")
  checkEqual(select("#", tree:DrawCellString(ink, rect(0, 0, 40, 20), "W",
    zeblua_CreateNewRGBA(0, 0, 0, 1))), 0, "four arguments draw with the defaults")
end)
zebhost.clearAssertReports()
checkEqual(select("#", tree:MeasureStringWidth(keptInk, "abc")), 0, "an ended proxy: nothing")
checkEqual(#zebhost.assertReports(), 1, "and its report")
zebhost.clearAssertReports()

ok = pcall(tree.SetGridLineColors, tree, 1, 2)
check(not ok, "colours must be tables")
print("mct_events: ok")

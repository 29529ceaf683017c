-- Rows dragged out of a tree and dropped onto it as a user does with the pointer: the
-- rows travel in the drag and come back as the tree's own rows, the drop function gets
-- its five arguments and its answers decide the drop, and its proxy is empty afterwards.
require "zeblua.zebcontrols"
require "zeblua.datatransfer.OSSendData"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local mouse, buttons, modifiers = zebhost.mouse, zebhost.buttons, zebhost.modifiers
local Copy, Move = OSSendData.DropEffectCopy, OSSendData.DropEffectMove

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 300, 200))
local tree = zebcontrols.NewMultiColumnTree()
tree:UI_SetLocalRectF(rect(0, 0, 300, 200))
root:ChildPushBack(tree)
tree:SetSupportMultipleSelections(true)
local ids = { "alpha", "beta", "gamma", "delta" }
for _, id in ipairs(ids) do tree:CreateAndAppendRow(nil, false, id) end
tree:LayoutAfterAppendRow()

-- Row i (from 0) lies from 18 * i; x = 40 is inside the first column, off the triangle.
local function rowY(index) return 18 * index + 9 end
local function send(action, x, y, modKey, clicks)
  return zebhost.sendMouse(root, zeblua_CreateNewZEBUIMouseEvent(action,
    action == mouse.kMove and 0 or buttons.kLeft, clicks or (action == mouse.kMove and 0 or 1),
    x, y, modKey or 0, 0, 0))
end

-- Without permission a press that moves is no drag.
local asked, drops = 0, {}
tree:BindZebOperation("mctSelectedRowsBeingDragged", function(event)
  asked = asked + 1
  check(event.action == mouse.kDrag, "the event that began the drag: " .. tostring(event.action))
  return true
end)
zebhost.drag(root, 40, rowY(0), 40, rowY(0) + 30, 3)
checkEqual(asked, 0, "row dragging is off by default")
checkEqual(zebhost.lastDrag(), nil, "no drag ran")

-- Alpha clicked, beta added with shift and dragged on from that press onto gamma.
tree:SetAllowRowDragging(true)
tree:SetAllowDropOverRows(true)
tree:SetSupportDragOverRow(true)
tree:ShowDragFeedback(true)
local kept, keptRows
tree:BindZebOperation("mctDropSupport", function(action, point, data, row, position)
  local entry = { action = action, n = select("#", action, point, data, row, position) }
  if data then
    entry.x, entry.y = point.x, point.y
    entry.row = row and row:GetID() or "nil"
    entry.position = position
    entry.flavor = tree:HasRowDragDataFlavor(data)
    kept = data
    if action == tree.kDropAction_Drop then
      keptRows = tree:GetRowsBeingDragged(data)
    end
  end
  drops[#drops + 1] = entry
  return true, { isDropValid = true, dropEffect = Move }
end)
zebhost.click(root, 40, rowY(0))
send(mouse.kMove, 40, rowY(1))
zebhost.dropOn(root, 60, rowY(2))
send(mouse.kDown, 40, rowY(1), modifiers.kShift)
send(mouse.kDrag, 40, rowY(1) + 2)
checkEqual(asked, 0, "a move below the threshold is no drag yet")
send(mouse.kDrag, 40, rowY(1) + 10)
send(mouse.kUp, 40, rowY(1) + 10)
checkEqual(asked, 1, "the drag asked the script once")
local drag = zebhost.lastDrag()
checkEqual(drag.effect, Move, "the drop function's effect ended the drag")
checkEqual(drag.allowed, Copy + Move, "a row drag offers copy and move")
checkEqual(drag.dropped, true, "the tree took the drop")
checkEqual(drag.types[1], "zebui.tree-rows", "rows travel as the tree's data type")

-- The drop function: enter, over, drop, each with the row under the point.
checkEqual(#drops, 3, "enter, over and drop")
checkEqual(drops[1].action, tree.kDropAction_DragEnter, "enter first")
checkEqual(drops[2].action, tree.kDropAction_DragOver, "then over")
checkEqual(drops[3].action, tree.kDropAction_Drop, "then the drop")
for _, entry in ipairs(drops) do
  checkEqual(entry.n, 5, "five arguments")
  checkEqual(entry.row, "gamma", "over the third row")
  checkEqual(entry.x, 60, "the point in the tree's coordinates")
  checkEqual(entry.y, rowY(2), "its y")
  checkEqual(entry.position, 0, "the middle of the row")
  checkEqual(entry.flavor, true, "the data has the rows flavour")
end
checkEqual(#keptRows, 2, "the two dragged rows")
checkEqual(keptRows[1]:GetID(), "alpha", "alpha")
checkEqual(keptRows[2]:GetID(), "beta", "and beta, as the tree's own rows")
checkEqual(select("#", kept:DataAvailable("zebui.tree-rows")), 0, "the kept proxy is empty")
checkEqual(tree:HasRowDragDataFlavor(kept), false, "so it has no flavour")
checkEqual(select("#", tree:GetRowsBeingDragged(kept)), 0, "and no rows")
local reports = zebhost.assertReports()
checkEqual(#reports, 2, "each use of the empty proxy is reported")
checkEqual(reports[1].expression, '0 && "out of scope OS_ReceiveData"', "with the toolkit's text")
zebhost.clearAssertReports()

-- A drop over empty space gives nil for the row; a table without dropEffect gives 0;
-- false with a valid table still sets the valid field (the drop takes effect 0: none).
drops = {}
tree:BindZebOperation("mctDropSupport", function(action, point, data, row, position)
  drops[#drops + 1] = tostring(row)
  return false, { isDropValid = true }
end)
zebhost.dropOn(root, 60, 150)
send(mouse.kDown, 40, rowY(0))
send(mouse.kDrag, 40, rowY(0) + 20)
send(mouse.kUp, 40, rowY(0) + 20)
checkEqual(drops[1], "nil", "no row under the drop")
checkEqual(zebhost.lastDrag().effect, 0, "no dropEffect: 0")

-- Only true: the valid field and the effect stay as the toolkit set them (invalid, none).
tree:BindZebOperation("mctDropSupport", function() return true end)
zebhost.dropOn(root, 60, rowY(3))
send(mouse.kDown, 40, rowY(0))
send(mouse.kDrag, 40, rowY(0) + 20)
send(mouse.kUp, 40, rowY(0) + 20)
checkEqual(zebhost.lastDrag().effect, 0, "an answer alone decides nothing")

-- A failing drop function changes nothing and its proxy is emptied all the same.
local actions = {}
tree:BindZebOperation("mctDropSupport", function(...)
  local action, point, data = ...
  actions[#actions + 1] = action .. ":" .. select("#", ...)
  kept = data or kept
  error("drop failed")
end)
zebhost.dropOn(root, 60, rowY(3))
send(mouse.kDown, 40, rowY(0))
send(mouse.kDrag, 40, rowY(0) + 20)
send(mouse.kUp, 40, rowY(0) + 20)
checkEqual(zebhost.lastDrag().effect, 0, "a failing function takes nothing")
checkEqual(select("#", kept:GetAsText()), 0, "its proxy is empty")
checkEqual(table.concat(actions, " "), "0:5 1:5 2:1", "refused over the tree, the drag leaves it: the action alone")

-- Refusing the drag: the selected rows stay put and no drag runs.
local before = zebhost.lastDrag().count
tree:BindZebOperation("mctSelectedRowsBeingDragged", function() return false end)
zebhost.drag(root, 40, rowY(0), 40, rowY(0) + 30, 3)
checkEqual(zebhost.lastDrag().count, before, "a false answer starts no drag")
-- A failing one answers true: its message is a true value.
tree:BindZebOperation("mctSelectedRowsBeingDragged", function() error("oops") end)
zebhost.answer(0)
zebhost.drag(root, 40, rowY(0), 40, rowY(0) + 30, 3)
checkEqual(zebhost.lastDrag().count, before + 1, "a failing function lets the drag start")

-- Rows of another tree's drag are not this tree's: a clipboard of that type reads none.
tree:SetRowsDraggedDataType("org.example.rows\0ignored")
zebhost.setClipboard({ ["org.example.rows"] = "\255\255\255\255\255\255\255\127\1\0\0\0\1\0\0\0\0\0\0\0" })
local foreign = OSReceiveData.NewClipboardReceiveData()
checkEqual(tree:HasRowDragDataFlavor(foreign), true, "the type ends at its zero byte")
checkEqual(#tree:GetRowsBeingDragged(foreign), 0, "bytes of no drag of this tree give no rows")

-- Fault rows.
local ok, message = pcall(function() tree:HasRowDragDataFlavor({}) end)
check(not ok and message:find("zeblua.datatransfer.OSReceiveData expected", 1, true), tostring(message))
ok, message = pcall(function() tree:GetRowsBeingDragged(5) end)
check(not ok and message:find("zeblua.datatransfer.OSReceiveData expected", 1, true), tostring(message))
ok, message = pcall(function() tree:SetRowsDraggedDataType() end)
check(not ok and message:find("bad argument #1 to 'SetRowsDraggedDataType'", 1, true), tostring(message))
ok, message = pcall(function() tree.HasRowDragDataFlavor({}, foreign) end)
check(not ok and message:find("Bad user data", 1, true), tostring(message))
local released = zebcontrols.NewMultiColumnTree()
released:Release()
checkEqual(released:HasRowDragDataFlavor(foreign), false, "a released tree: false")
checkEqual(select("#", released:GetRowsBeingDragged(foreign)), 0, "and no rows")

checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("mct_drag_drop: ok")

-- Sorting a tree by a script's comparison: every level, stability, only a boolean true
-- counts, and comparisons that fail, answer at random or change the tree keep every row.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 300, 400))
local tree = zebcontrols.NewMultiColumnTree()
tree:UI_SetLocalRectF(rect(0, 0, 300, 400))
root:ChildPushBack(tree)

checkEqual(tree.kDropAction_DragEnter, 0, "drop actions are fields of any tree")
checkEqual(tree.kDropAction_DragOver, 1, "over")
checkEqual(tree.kDropAction_DragLeave, 2, "leave")
checkEqual(tree.kDropAction_Drop, 3, "drop")

-- Ids are numbers as text, three levels, in a scrambled order.
local function fill()
  tree:RemoveAllRows(true)
  for _, top in ipairs({ 3, 11, 7, 1 }) do
    local row = tree:CreateAndAppendRow(nil, false, tostring(top))
    for _, child in ipairs({ 2, 9, 4 }) do
      local childRow = tree:CreateAndAppendRow(row, false, tostring(top * 100 + child))
      for _, grandchild in ipairs({ 5, 8, 6 }) do
        tree:CreateAndAppendRow(childRow, false, tostring(top * 10000 + child * 100 + grandchild))
      end
    end
  end

end

-- The ids of a level as one string, and every id in the tree with how often it appears.
local function level(parent)
  local ids = {}
  local count = parent and parent:CountChildRows() or tree:CountRows(false)
  for index = 0, count - 1 do
    local row = parent and parent:GetChildRow(index) or tree:GetRow(index)
    ids[#ids + 1] = row:GetID()
  end
  return table.concat(ids, " ")
end
local function census()
  local seen, total = {}, 0
  local function walk(parent)
    local count = parent and parent:CountChildRows() or tree:CountRows(false)
    for index = 0, count - 1 do
      local row = parent and parent:GetChildRow(index) or tree:GetRow(index)
      seen[row:GetID()] = (seen[row:GetID()] or 0) + 1
      total = total + 1
      walk(row)
    end
  end
  walk(nil)
  return seen, total
end
local function checkEveryRowOnce(what)
  local seen, total = census()
  checkEqual(total, 4 + 12 + 36, what .. ": every row is there")
  checkEqual(tree:CountRows(true), 52, what .. ": the tree counts them all")
  for id, times in pairs(seen) do
    checkEqual(times, 1, what .. ": row " .. id .. " once")
  end
end

-- No sorting function: SortTree leaves the rows alone.
fill()
tree:SortTree()
checkEqual(level(nil), "3 11 7 1", "no sorting function: no change")

-- Descending by id: the largest id first at every level.
local calls = 0
tree:SetRowSortingFunction(function(a, b)
  calls = calls + 1
  check(a ~= b, "each comparison gets two new wrappers")
  return tonumber(a:GetID()) > tonumber(b:GetID())
end)
tree:SortTree()
check(calls > 0, "the function was called")
checkEqual(level(nil), "11 7 3 1", "top level, descending")
local top = tree:GetRow(0)
checkEqual(level(top), "1109 1104 1102", "children, descending")
checkEqual(level(top:GetChildRow(0)), "110908 110906 110905", "grandchildren, descending")
local last = tree:GetRow(3)
checkEqual(level(last:GetChildRow(2)), "10208 10206 10205", "every branch")
checkEveryRowOnce("descending")

-- Only a boolean true puts the first row first: 1 is no answer, so nothing moves.
fill()
tree:SetRowSortingFunction(function() return 1 end)
tree:SortTree()
checkEqual(level(nil), "3 11 7 1", "a sorting function answering 1 moves nothing")
tree:SetRowSortingFunction(function(a, b) return tonumber(a:GetID()) < tonumber(b:GetID()) and "yes" end)
tree:SortTree()
checkEqual(level(nil), "3 11 7 1", "nor does a string")

-- Stable: rows that compare equal keep their order.
tree:SetRowSortingFunction(function(a, b) return (tonumber(a:GetID()) % 2) < (tonumber(b:GetID()) % 2) end)
tree:SortTree()
checkEqual(level(nil), "3 11 7 1", "all odd: equal, in their order")
checkEqual(level(tree:GetRow(0)), "302 304 309", "even before odd, evens in their order")

-- A comparison that raises answers false for that comparison and the sort goes on.
fill()
local raised = 0
tree:SetRowSortingFunction(function(a, b)
  if a:GetID() == "7" or b:GetID() == "7" then
    raised = raised + 1
    error("cannot compare 7")
  end
  return tonumber(a:GetID()) > tonumber(b:GetID())
end)
tree:SortTree()
check(raised > 0, "the comparison raised")
checkEveryRowOnce("raising")

-- Answers at random, inconsistent on purpose.
math.randomseed(42)
for round = 1, 5 do
  fill()
  tree:SetRowSortingFunction(function() return math.random() < 0.5 end)
  tree:SortTree()
  checkEveryRowOnce("random round " .. round)
end

-- A comparison that removes rows and adds one while the sort runs.
fill()
local changed = false
tree:SetRowSortingFunction(function(a, b)
  if not changed then
    changed = true
    tree:RemoveRow(tree:GetRow(1), true)
    tree:CreateAndAppendRow(nil, false, "new")
  end
  return a:GetID() > b:GetID()
end)
tree:SortTree()
local seen = census()
checkEqual(seen["11"], nil, "the removed row stays removed")
checkEqual(seen["new"], 1, "the added row is there once")
checkEqual(seen["3"], 1, "the others once")
checkEqual(tree:CountRows(false), 4, "four top-level rows")

-- A comparison that installs another function hands the rest of the sort to it.
fill()
local replacedCalls = 0
tree:SetRowSortingFunction(function()
  tree:SetRowSortingFunction(function(a, b)
    replacedCalls = replacedCalls + 1
    return tonumber(a:GetID()) > tonumber(b:GetID())
  end)
  return false
end)
tree:SortTree()
check(replacedCalls > 0, "the new function took over")
checkEveryRowOnce("replaced mid-sort")
checkEqual(level(tree:GetRow(0)), (function()
  local ids = {}
  for index = 0, 2 do ids[#ids + 1] = tree:GetRow(0):GetChildRow(index):GetID() end
  table.sort(ids, function(x, y) return tonumber(x) > tonumber(y) end)
  return table.concat(ids, " ")
end)(), "later levels sorted by the new function")

-- A tree that the comparison releases and drops is held for the sort.
fill()
local dropped = zebcontrols.NewMultiColumnTree()
dropped:CreateAndAppendRow(nil, false, "x")
dropped:CreateAndAppendRow(nil, false, "y")
dropped:SetRowSortingFunction(function(a, b)
  dropped:Release()
  collectgarbage()
  return a:GetID() > b:GetID()
end)
dropped:SortTree()
checkEqual(select("#", dropped:SortTree()), 0, "a released tree sorts nothing")

-- Fault rows.
local ok, message = pcall(function() tree:SetRowSortingFunction("not a function") end)
check(not ok and message:find("bad argument #1 to 'SetRowSortingFunction' (function expected, got string)", 1, true),
  tostring(message))
ok, message = pcall(function() tree.SortTree({}) end)
check(not ok and message:find("Bad user data", 1, true), tostring(message))
local button = zebcontrols.NewTextButton and zebcontrols.NewTextButton() or zebhost.newNode("UI_Button")
ok, message = pcall(function() tree.SortTree(button) end)
check(not ok and message:find("Invalid type conversion.", 1, true), tostring(message))
checkEqual(#zebhost.assertReports(), 1, "the toolkit's cast reports its failure")
zebhost.clearAssertReports()

checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("mct_drag_sort: ok")

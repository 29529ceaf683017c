-- A three-level tree drawn as a user sees it: cells drawn by a script, one row selected,
-- one branch closed, grid lines and a border.
-- ZEBHOST_UPDATE_GOLDEN=1 writes tests/golden/mct_tree.png afresh.
require "zeblua.zebcontrols"
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA
local goldenFolder = arg[0]:match("^(.*)/lua/[^/]*$") or "tests"
local C = zebcontrols

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 200, 140))
local tree = C.NewMultiColumnTree()
tree:UI_SetLocalRectF(rect(0, 0, 200, 140))
root:ChildPushBack(tree)
tree:SetNumberOfColumns(2)
tree:SetColumnWidth(1, 120)
tree:SetColumnWidth(2, 78)
tree:SetShowBorder(true)
tree:SetDrawGridLines(true, true)
tree:SetGridLineColors(rgba(0.8, 0.8, 0.8, 1), rgba(0.6, 0.6, 0.6, 1))
tree:SetCustomBackgroundColor(rgba(1, 1, 1, 1))
tree:SetCustomSelectionColor(0x3366CCFF)

-- Each cell a bar whose length tells its level and whose colour its column.
local shades = { rgba(0.9, 0.4, 0.2, 1), rgba(0.2, 0.6, 0.3, 1) }
local seen, kept = {}, nil
tree:BindZebOperation("mctDrawCell", function(ink, row, column, r)
  kept = ink
  seen[#seen + 1] = row:GetID() .. ":" .. column
  local level = #row:GetID()
  ink:GetSurface():PaintRect(rect(r.left + 2, r.top + 5, 10 * level, r.height - 10), shades[column])
  return true
end)

local a = tree:CreateAndAppendRow(nil, false, "a")
local ab = tree:CreateAndAppendRow(a, false, "ab")
tree:CreateAndAppendRow(ab, false, "abc")
tree:CreateAndAppendRow(ab, false, "abd")
tree:CreateAndAppendRow(a, false, "ae")
local f = tree:CreateAndAppendRow(nil, false, "f")
tree:CreateAndAppendRow(f, false, "fg")
tree:LayoutAfterAppendRow()
tree:OpenRow(a)
tree:OpenRow(ab)
tree:SelectRows({ ab }, false, false)

local picture = zebhost.draw(root)
checkEqual(table.concat(seen, " "), "a:1 a:2 ab:1 ab:2 abc:1 abc:2 abd:1 abd:2 ae:1 ae:2 f:1 f:2",
  "each visible cell once, columns from 1, the closed branch's child not drawn")
check(kept ~= nil and select("#", kept:GetSurface()) == 0, "a kept proxy is dead after the cell")
zebhost.checkImage(picture, goldenFolder .. "/golden/mct_tree.png", 8)
print("mct_golden: ok")

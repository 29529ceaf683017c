-- A splitter as a user drags it: the panes follow the bar, the validation function sees
-- each proposal and may veto it, and a resize lays the panes out again at the split.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local C = zebcontrols

local function frame(node) return zebhost.rectText(node:UI_GetLocalRectF()) end

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 200, 100))
local splitter = C.NewSplitterView()
splitter:UI_SetLocalRectF(rect(0, 0, 200, 100))
root:ChildPushBack(splitter)
local left, right = C.NewSubView(), C.NewSubView()
splitter:SetTopLeftView(left)
splitter:SetBottomRightView(right)
checkEqual(splitter:ChildSize(), 2, "the panes are the splitter's children")
checkEqual(frame(left) .. " | " .. frame(right), "0 0 97 100 | 103 0 97 100",
  "side by side at the half, a bar of 6 between")

-- A drag on the bar moves it, and the panes with it.
zebhost.drag(root, 100, 50, 150, 50, 2)
checkEqual(splitter:GetSplitPercentage(), 0.75, "the bar followed the pointer")
checkEqual(frame(left) .. " | " .. frame(right), "0 0 147 100 | 153 0 47 100", "panes moved")
checkEqual(zebhost.snapshot(splitter).state.split, 0.75, "the snapshot reports the split")
-- A drag that starts off the bar moves nothing.
zebhost.drag(root, 20, 50, 60, 50, 2)
checkEqual(splitter:GetSplitPercentage(), 0.75, "not on the bar")

-- The validator sees every proposal and its number is taken: here it vetoes anything
-- beyond 0.8 by keeping the split where it was.
local proposals = {}
splitter:SetSplitValidationFunction(function(proposed)
  proposals[#proposals + 1] = proposed
  if proposed > 0.8 then return splitter:GetSplitPercentage() end
  return proposed
end)
zebhost.drag(root, 150, 50, 175, 50, 1)
checkEqual(proposals[#proposals], 0.875, "the validator saw the proposal")
checkEqual(splitter:GetSplitPercentage(), 0.75, "and vetoed it")
checkEqual(frame(left), "0 0 147 100", "the panes did not move")
splitter:SetSplitPercentage(0.25)
checkEqual(proposals[#proposals], 0.25, "SetSplitPercentage asks it too")
checkEqual(frame(left), "0 0 47 100", "and the panes follow")

local ok, message = pcall(splitter.SetSplitValidationFunction, splitter, 5)
check(not ok and message:find("function expected", 1, true), "a function is needed")

-- Direction: any number but 0 (a NaN too) is 1; the panes stack one above the other.
splitter:SetSplitValidationFunction(function(p) return p end)
splitter:SetSplitDirection(0.5)
checkEqual(splitter:GetSplitDirection(), 1, "0.5 selects direction 1")
checkEqual(frame(left) .. " | " .. frame(right), "0 0 200 22 | 0 28 200 72", "one above the other")
splitter:SetSplitDirection(0 / 0)
checkEqual(splitter:GetSplitDirection(), 1, "NaN counts as other than 0")
splitter:SetSplitDirection(0)
checkEqual(zebhost.snapshot(splitter).state.direction, 0, "the snapshot reports the direction")

-- A resize lays the panes out again at the split.
splitter:UI_SetLocalRectF(rect(0, 0, 100, 50))
checkEqual(frame(left) .. " | " .. frame(right), "0 0 22 50 | 28 0 72 50", "laid out at the quarter")

-- A pane replaced leaves the splitter; a released wrapper as a pane does nothing.
local other = C.NewSubView()
splitter:SetTopLeftView(other)
checkEqual(left:UI_GetParentNode(), nil, "the old pane left")
checkEqual(frame(other), "0 0 22 50", "the new one is laid out")
local gone = C.NewSubView()
gone:Release()
splitter:SetBottomRightView(gone)
checkEqual(splitter:ChildSize(), 2, "nothing changed")
print("containers_splitter: ok")

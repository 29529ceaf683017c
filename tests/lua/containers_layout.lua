-- Layout as a script sees it: bound children follow a resized parent, a view that does not
-- lay out leaves them alone, the arrangement view stacks its children, and an overlay lets
-- a click through to what lies beneath it.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local C = zebcontrols

local function frame(node) return zebhost.rectText(node:UI_GetLocalRectF()) end

-- Bindings: 1 left, 2 top, 4 right, 8 bottom. Both edges of an axis stretch, the far edge
-- alone moves, the near edge alone (or none) stays.
local parent = zebhost.newNode("UI_SubView", "parent", rect(0, 0, 100, 100))
local function child(id, binding, r)
  local view = C.NewSubView()
  view:UI_SetNodeID(id)
  view:UI_SetLocalRectF(r)
  parent:ChildPushBack(view)
  if binding then view:SetLayoutBinding(binding) end
  return view
end
local stretched = child("stretched", 1 + 2 + 4 + 8, rect(10, 10, 80, 80))
local pinned = child("pinned", 4 + 8, rect(70, 70, 20, 20))
local fixed = child("fixed", nil, rect(10, 10, 20, 20))
checkEqual(fixed:GetLayoutBinding(), 3, "left and top until set")
checkEqual(parent:GetLayoutsChildren(), true, "a sub view lays out its children")
local heard
stretched:BindZebOperation("uiSizeChanged", function(r) heard = r.width end)
parent:UI_SetLocalRectF(rect(0, 0, 150, 130))
checkEqual(frame(stretched), "10 10 130 110", "bound to all edges: stretched")
checkEqual(frame(pinned), "120 100 20 20", "bound right and bottom: moved")
checkEqual(frame(fixed), "10 10 20 20", "bound left and top: left alone")
checkEqual(heard, 130, "the child's own size listener heard the new size")
parent:UI_SetLocalRectF(rect(5, 5, 150, 130))
checkEqual(frame(pinned), "120 100 20 20", "a move alone lays out nothing")
local snap = zebhost.snapshot(parent)
checkEqual(snap.children[2].state.layoutBinding, 12, "the snapshot reports the binding")
checkEqual(snap.state.layoutsChildren, true, "and whether the view lays out")

-- A view that does not lay out its children leaves them alone; nil is false, no argument true.
parent:SetLayoutsChildren(nil)
checkEqual(parent:GetLayoutsChildren(), false, "nil switches layout off")
parent:UI_SetLocalRectF(rect(0, 0, 100, 100))
checkEqual(frame(stretched), "10 10 130 110", "not laid out")
parent:SetLayoutsChildren()
checkEqual(parent:GetLayoutsChildren(), true, "no argument switches it on")

-- The binding keeps the low 8 bits of the truncated number.
fixed:SetLayoutBinding(256 + 5.9)
checkEqual(fixed:GetLayoutBinding(), 5, "low 8 bits of the truncated number")
fixed:SetLayoutBinding(-1)
checkEqual(fixed:GetLayoutBinding(), 255, "-1 is every bit")
local ok, message = pcall(fixed.SetLayoutBinding, fixed, "x")
check(not ok and message:find("bad argument #2", 1, true), "a number is needed: " .. tostring(message))

-- The arrangement view stacks its shown children from the top, as wide as itself, at its
-- own call and at every resize.
local column = C.NewArrangementView()
column:UI_SetLocalRectF(rect(0, 0, 60, 100))
local a, hidden, b = C.NewSubView(), C.NewSubView(), C.NewSubView()
a:UI_SetLocalRectF(rect(5, 50, 10, 12))
hidden:UI_SetLocalRectF(rect(0, 0, 10, 30))
hidden:UI_Show(false)
b:UI_SetLocalRectF(rect(0, 0, 10, 8))
column:ChildPushBack(a)
column:ChildPushBack(hidden)
column:ChildPushBack(b)
checkEqual(column:UI_LayoutChildren(), nil, "answers nothing")
checkEqual(frame(a) .. " | " .. frame(b), "0 0 60 12 | 0 12 60 8", "a column of the shown children")
column:UI_SetLocalRectF(rect(0, 0, 80, 100))
checkEqual(frame(b), "0 12 80 8", "laid out again when resized")

-- An overlay over a view: a click on the overlay reaches the view beneath it; the overlay's
-- own child is still hit.
local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 100, 100))
local below = zebhost.newNode("UI_SubView", "below", rect(0, 0, 100, 100), root)
local clicks = 0
below:BindZebOperation("uiMouseEvent", function(event)
  if event.action == zebhost.mouse.kDown then clicks = clicks + 1 end
  return true
end)
local overlay = C.NewOverlaySubView()
overlay:UI_SetNodeID("overlay")
overlay:UI_SetLocalRectF(rect(0, 0, 100, 100))
root:ChildPushBack(overlay)
local badge = zebhost.newNode("UI_SubView", "badge", rect(80, 80, 20, 20), overlay)
badge:BindZebOperation("uiMouseEvent", function() return true end)
checkEqual(zebhost.click(root, 20, 20):UI_GetNodeID(), "below", "the click went through the overlay")
checkEqual(clicks, 1, "and reached the view beneath")
checkEqual(zebhost.click(root, 90, 90):UI_GetNodeID(), "badge", "the overlay's child is hit")
checkEqual(clicks, 1, "the view beneath did not hear that one")

-- A check box beneath an overlay takes the click that lands on the overlay.
local panel = zebhost.newNode("UI_SubView", "panel", rect(0, 0, 100, 100))
local box = C.NewCheckbox()
box:UI_SetLocalRectF(rect(10, 10, 60, 16))
panel:ChildPushBack(box)
local cover = C.NewOverlaySubView()
cover:UI_SetLocalRectF(rect(0, 0, 100, 100))
panel:ChildPushBack(cover)
zebhost.click(panel, 15, 15)
checkEqual(zebhost.snapshot(box).state.checked, true, "the check box beneath the overlay toggled")

-- The overlay draws its children on demand from its own draw hook; an inkwell kept past its
-- scope is reported and draws nothing.
local kept
overlay:BindZebOperation("uiDraw", function(ink)
  kept = ink
  overlay:DispatchDrawToChildren(ink)
  return true
end)
local badgeDraws = 0
badge:BindZebOperation("uiDraw", function() badgeDraws = badgeDraws + 1 return true end)
zebhost.draw(overlay)
checkEqual(badgeDraws, 1, "the child drew once, through DispatchDrawToChildren")
zebhost.clearAssertReports()
checkEqual(select("#", overlay:DispatchDrawToChildren(kept)), 0, "an ended inkwell: nothing")
checkEqual(select("#", root:UI_DispatchDrawToChild(badge, kept)), 0, "the same for one child")
checkEqual(badgeDraws, 1, "nothing drawn with an ended inkwell")
check(#zebhost.assertReports() == 2, "each use of the ended inkwell was reported")
zebhost.clearAssertReports()
print("containers_layout: ok")

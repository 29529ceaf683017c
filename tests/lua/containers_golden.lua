-- A splitter holding a scroll view and a tab well, drawn as a user sees it: the bar, the
-- scrolled content with its bars, and the tabs with the front-most one raised.
-- ZEBHOST_UPDATE_GOLDEN=1 writes tests/golden/containers_splitter.png afresh.
require "zeblua.zebcontrols"
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"
local checkEqual = zebhost.checkEqual
local rect, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA
local goldenFolder = arg[0]:match("^(.*)/lua/[^/]*$") or "tests"
local C = zebcontrols

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 240, 120))
local splitter = C.NewSplitterView()
splitter:UI_SetLocalRectF(rect(0, 0, 240, 120))
root:ChildPushBack(splitter)

-- The left pane: a grid of squares scrolled so that square (3, 2) comes into view.
local content = C.NewSubView()
content:UI_SetLocalRectF(rect(0, 0, 300, 240))
content:BindZebOperation("uiDraw", function(ink)
  local surface = ink:GetSurface()
  for row = 0, 5 do
    for column = 0, 7 do
      local shade = (row + column) % 2 == 0 and 0.3 or 0.8
      surface:PaintRect(rect(column * 40 + 2, row * 40 + 2, 36, 36), rgba(shade, 0.5, 1 - shade, 1))
    end
  end
  return true
end)
local scroller = C.NewScrollView(3, content)
splitter:SetTopLeftView(scroller)
scroller:ScrollIntoView(rect(120, 80, 40, 40))

-- The right pane: a tab well of three tabs (no text, as golden images hold none), the
-- second front-most by a click, the last with a close box.
local well = C.NewTabWell()
splitter:SetBottomRightView(well)
well:AddTab(0, "", false, false)
well:AddTab(1, "", false, false)
well:AddTab(2, "", true, false)
splitter:SetSplitPercentage(0.375)
zebhost.click(root, 213, 10)
checkEqual(zebhost.snapshot(well).state.frontmost, 1, "the clicked tab is front-most")
zebhost.checkImage(zebhost.draw(root), goldenFolder .. "/golden/containers_splitter.png", 8)
print("containers_golden: ok")

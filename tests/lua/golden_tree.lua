-- A small tree of custom-drawn nodes against its golden image: each node draws in its own
-- coordinates, children on top of their parent in order, clipped to the parent's frame,
-- hidden nodes left out, and a true answer in place of the children.
-- ZEBHOST_UPDATE_GOLDEN=1 writes tests/golden/tree.png afresh.
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"
require "zeblua.inkwell.zebPathInterface"

local rect, point, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewPointF32, zeblua_CreateNewRGBA
local goldenFolder = arg[0]:match("^(.*)/lua/[^/]*$") or "tests"

local function newNode(frame, parent, draw)
  local node = zebhost.newNode("UI_SubView", nil, frame, parent)
  node:BindZebOperation("uiDraw", draw)
  return node
end

local function fill(colour)
  return function(ink)
    local size = ink:GetSurface():GetClipBounds()
    ink:GetSurface():PaintRect(rect(0, 0, size.width, size.height), colour)
  end
end

local function disc(colour)
  return function(ink)
    local surface = ink:GetSurface()
    local bounds = surface:GetClipBounds()
    local path = PathInterface.newPath(ink)
    path:AddArc(point(bounds.width / 2, bounds.height / 2), bounds.width / 2 - 1)
    surface:FillPath(path, colour)
    return true
  end
end

local root = newNode(rect(0, 0, 64, 48), nil, fill(rgba(0.15, 0.17, 0.22, 1)))
local card = newNode(rect(6, 6, 36, 28), root, function(ink)
  local surface = ink:GetSurface()
  surface:PaintRect(rect(0, 0, 36, 28), rgba(0.90, 0.90, 0.85, 1))
  surface:DrawOutline(rect(0, 0, 36, 28), rgba(0.35, 0.35, 0.45, 1))
end)
newNode(rect(4, 4, 12, 12), card, disc(rgba(0.20, 0.45, 0.90, 1)))
newNode(rect(22, 14, 24, 24), card, fill(rgba(0.95, 0.55, 0.10, 1)))  -- clipped by the card
newNode(rect(44, 28, 16, 16), root, disc(rgba(0.20, 0.70, 0.35, 1)))
local hidden = newNode(rect(0, 0, 64, 48), root, fill(rgba(1, 0, 1, 1)))
hidden:UI_Show(false)
-- Answers true, so its child never shows.
local cover = newNode(rect(48, 4, 12, 12), root, function(ink)
  fill(rgba(0.85, 0.20, 0.25, 1))(ink)
  return true
end)
newNode(rect(0, 0, 12, 12), cover, fill(rgba(1, 0, 1, 1)))

local picture = zebhost.draw(root)
zebhost.checkImage(picture, goldenFolder .. "/golden/tree.png", 8)
print("golden_tree: ok")

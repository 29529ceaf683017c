-- Drawing offscreen with zebhost.canvas: shapes, gradients, a dashed curve, an image from
-- the application's resources, an offscreen tile, and text measured to sit centred.
-- Writes a PNG: zebhost examples/drawing.lua [out.png]   (default build/examples/drawing.png)

-- Modules whose global tables the script uses; a proxy handed out (the supplier, the
-- image) brings its own module along.
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"
require "zeblua.inkwell.zebPathInterface"
require "zeblua.inkwell.PenInterface"
require "zeblua.inkwell.ShaderInterface"
require "zeblua.zebUIResources"

local output = arg[1] or "build/examples/drawing.png"
local W, H = 480, 300

local rect, point, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewPointF32, zeblua_CreateNewRGBA
local white = rgba(1, 1, 1, 1)
local dark = rgba(0.10, 0.12, 0.20, 1)
local Surface = zebSurfaceInterface

-- A path of a circle.
local function circle(ink, x, y, r)
  local p = PathInterface.newPath(ink)
  p:AddArc(point(x, y), r)
  return p
end

-- Text centred on x: measured first, then drawn left-aligned from the computed start.
local function centredText(s, text, x, y, colour, size)
  local width = s:MeasureStringWidth(text, size)
  s:DrawString(text, math.floor(x - width / 2), y, colour, Surface.kTextAlignment_Left, size)
  return width
end

-- A checkerboard tile drawn on a surface of its own, handed back as an image.
local function checkerTile(ink)
  local tile = ink:CreateOffscreenSurface(16, 16, false)
  local tileInk = zebInkwell.NewInkwell(tile)
  tile:PaintRect(rect(0, 0, 16, 16), rgba(1, 1, 1, 0.9))
  tile:PaintRect(rect(0, 0, 8, 8), rgba(0.2, 0.6, 0.9, 1))
  tile:PaintRect(rect(8, 8, 8, 8), rgba(0.2, 0.6, 0.9, 1))
  local image = tile:GetSurfaceImage()
  tileInk:Release()
  tile:Release()
  return image
end

local function draw(ink)
  local s = ink:GetSurface()
  s:SetAntiAliasPolicy(Surface.kAntiAliasPolicy_High)

  -- Background: a vertical gradient over the whole canvas.
  local background = PathInterface.newPath(ink)
  background:AddRect(rect(0, 0, W, H))
  s:ShadePath(background, Shader.newLinearShader(ink, point(0, 0), point(0, H),
    rgba(0.09, 0.13, 0.28, 1), rgba(0.05, 0.42, 0.47, 1)))

  -- Title, centred by measurement.
  centredText(s, "Drawing with zebhost.canvas", W / 2, 14, white, 24)

  -- A card with rounded corners and an outline.
  s:DrawRoundedFill(rect(20, 56, 210, 224), rgba(1, 1, 1, 0.92), 14)
  s:DrawOutline(rect(20, 56, 210, 224), rgba(0.95, 0.65, 0.15, 1), 14, 2)

  -- Three translucent circles.
  s:FillPath(circle(ink, 95, 125, 38), rgba(0.90, 0.20, 0.25, 0.75))
  s:FillPath(circle(ink, 145, 125, 38), rgba(0.15, 0.65, 0.30, 0.75))
  s:FillPath(circle(ink, 120, 165, 38), rgba(0.20, 0.40, 0.90, 0.75))

  -- A dashed curve with round caps under the circles.
  local wave = PathInterface.newPath(ink)
  wave:MoveTo(36, 240)
  wave:BezierTo(point(80, 200), point(120, 280), point(160, 240))
  wave:BezierTo(point(180, 222), point(200, 232), point(214, 246))
  local dashes = PenInterface.newPen(ink, dark, 4)
  dashes:SetLineCap(PenInterface.kLineCapType_Round)
  dashes:SetDashPattern(2, 9)
  s:StrokePath(wave, dashes)
  centredText(s, "paths, pens and dashes", 125, 256, dark, 13)

  -- A radial glow, clipped to a circle, with stripes painted through the clip.
  s:PushStateStack()
  local glow = circle(ink, 350, 130, 70)
  s:ShadePath(glow, Shader.newRadialShader(ink, point(330, 110), point(420, 200),
    rgba(1.0, 0.95, 0.6, 1), rgba(0.85, 0.30, 0.10, 1)))
  s:Clip(glow)
  for x = 280, 420, 16 do
    s:PaintRect(rect(x, 60, 6, 140), rgba(1, 1, 1, 0.18))
  end
  s:PopStateStack()

  -- The badge from the application's resources, at its size and scaled up.
  local resources = zebUIResources.getResources(zebUIResources.app_resources)
  local badge = resources:getImage(ink:GetSupplier(), "zeblua_badge")
  s:DrawImage(badge, point(326, 106))
  s:DrawImage2(badge, rect(408, 222, 64, 64))

  -- An offscreen tile drawn in a row, each copy fainter than the last.
  local tile = checkerTile(ink)
  for i = 0, 5 do
    s:DrawImage(tile, point(256 + i * 26, 236), 1 - i * 0.15)
  end
  tile:Release()

  -- A label sized to its text.
  local label = "image " .. badge:GetWidth() .. "x" .. badge:GetHeight() .. " from resources"
  local width = s:MeasureStringWidth(label, 12)
  s:DrawRoundedFill(rect(350 - width / 2 - 8, 210, width + 16, 20), rgba(0, 0, 0, 0.35), 10)
  centredText(s, label, 350, 213, white, 12)
end

zebhost.canvas(W, H, draw, output)
print("wrote " .. output)

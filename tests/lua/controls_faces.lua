-- What the controls that zebcontrols makes draw by themselves: the face under the children,
-- a draw hook's answer in front of it, pictures from the image provider.
-- ZEBHOST_UPDATE_GOLDEN=1 writes tests/golden/controls_faces.png afresh.
require "zeblua.zebcontrols"
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"
local check, checkEqual, pixel = zebhost.check, zebhost.checkEqual, zebhost.pixelText
local rect, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA
local goldenFolder = arg[0]:match("^(.*)/lua/[^/]*$") or "tests"
local C = zebcontrols

local function framed(control, width, height)
  control:UI_SetLocalRectF(rect(0, 0, width, height))
  return control
end

-- The button's own face; a hook that did the drawing leaves it out, one that did not is
-- drawn over by it, and children lie on top of it.
local face = "215,217,222,255"
local button = framed(C.NewTextButton(), 40, 20)
checkEqual(pixel(button, 20, 10), face, "a button draws its face")
checkEqual(pixel(button, 0, 0), "97,102,115,255", "edged in the theme's edge colour")
button:BindZebOperation("uiDraw", function(ink)
  ink:GetSurface():PaintRect(rect(0, 0, 40, 20), rgba(1, 0, 0, 1))
  return true
end)
checkEqual(pixel(button, 20, 10), "255,0,0,255", "a hook that drew replaces the face")
button:BindZebOperation("uiDraw", function(ink)
  ink:GetSurface():PaintRect(rect(0, 0, 40, 20), rgba(1, 0, 0, 1))
  return false
end)
checkEqual(pixel(button, 20, 10), face, "the face goes over a hook that left the drawing")
local child = zebhost.newNode("UI_SubView", "child", rect(10, 5, 10, 10), button)
child:BindZebOperation("uiDraw", function(ink)
  ink:GetSurface():PaintRect(rect(0, 0, 10, 10), rgba(0, 0, 1, 1))
end)
checkEqual(pixel(button, 15, 10), "0,0,255,255", "children lie on the face")

-- Pictures come from the application's resources through the image provider the
-- constructors install: the badge's orange middle, scaled to the control.
local function orange(r, g, b, a)
  return r > 200 and g > 100 and g < 200 and b < 80 and a == 255
end
local badge = framed(C.NewStaticImage("zeblua_badge"), 24, 24)
check(orange(zebhost.draw(badge):pixel(12, 4)), "the static image shows the badge")
local pictureButton = framed(C.NewPictureButton("zeblua_badge"), 96, 96)
check(orange(zebhost.draw(pictureButton):pixel(48, 10)), "the picture button too, scaled")
checkEqual(pixel(framed(C.NewStaticImage("no such image"), 8, 8), 4, 4), "0,0,0,0",
  "a missing image draws nothing")
checkEqual(pixel(framed(C.NewPictureButton(), 8, 8), 4, 4), "0,0,0,0",
  "no name, nothing to draw, and no plain button face either")

-- A panel of faces without text against its golden image.
local panel = zebhost.newNode("UI_SubView", "panel", rect(0, 0, 120, 80))
local function place(control, frame) control:UI_SetLocalRectF(frame); panel:ChildPushBack(control) end
place(C.NewCheckbox(), rect(4, 4, 40, 14))
place(C.NewRadioButton(), rect(4, 22, 40, 14))
place(C.NewKnob(), rect(50, 4, 32, 32))
place(C.NewDisclosureTriangleButton(), rect(90, 4, 16, 16))
place(C.NewPopup(), rect(4, 40, 60, 18))
place(C.NewDivider(), rect(4, 62, 112, 4))
place(C.NewSearchBox(), rect(70, 40, 46, 18))
local splitter = C.NewSplitterView()
place(splitter, rect(90, 22, 26, 14))
place(C.NewListBox(), rect(4, 68, 112, 10))
zebhost.checkImage(zebhost.draw(panel), goldenFolder .. "/golden/controls_faces.png", 8)
print("controls_faces: ok")

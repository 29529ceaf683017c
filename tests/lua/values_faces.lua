-- How the value controls draw their values: a knob's pointer, a slider's thumb, a scroll bar's
-- thumb over the part shown, a half transparent image; pinned by a golden image without text.
-- ZEBHOST_UPDATE_GOLDEN=1 writes tests/golden/values_faces.png afresh.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local goldenFolder = arg[0]:match("^(.*)/lua/[^/]*$") or "tests"
local C = zebcontrols

local panel = zebhost.newNode("UI_SubView", "panel", rect(0, 0, 160, 90))
local function place(control, frame)
  control:UI_SetLocalRectF(frame)
  panel:ChildPushBack(control)
  return control
end
local function pixel(x, y) return zebhost.pixelText(panel, x, y) end

local low = place(C.NewKnob(), rect(4, 4, 32, 32))
local high = place(C.NewKnob(), rect(40, 4, 32, 32))
high:SetNumericValue(1)
local accent = "51,115,217,255"
checkEqual(pixel(4 + 10, 4 + 22), accent, "at its minimum the dot is low at the left")
checkEqual(pixel(40 + 22, 4 + 22), accent, "at its maximum low at the right")
local slider = place(zebhost.newNode("UI_Slider"), rect(80, 8, 76, 12))
slider:SetNumericValue(0.5)
local vertical = place(zebhost.newNode("UI_Slider"), rect(140, 30, 12, 56))
vertical:SetNumericValue(0.25)
local bar = place(zebhost.newNode("UI_ScrollBar"), rect(4, 44, 120, 10))
bar:SetExtent(0, 100)
bar:SetNumericValuePair(50, 75)
local image = place(C.NewStaticImage("zeblua_badge"), rect(4, 58, 28, 28))
image:SetAlpha(0.5)
local _, _, _, alpha = zebhost.draw(panel):pixel(18, 62)
check(alpha > 100 and alpha < 160, "the image at half opacity: " .. alpha)
place(C.NewPopup(), rect(40, 60, 60, 18))
place(C.NewTextEdit(), rect(80, 24, 56, 16))
zebhost.checkImage(zebhost.draw(panel), goldenFolder .. "/golden/values_faces.png", 8)
print("values_faces: ok")

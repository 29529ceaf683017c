-- How the button family draws its state: the container and border a state shows or hides,
-- corners, stroke sizes and the inner bevel, on, pressed and mixed values, marks of check
-- boxes and radio buttons, the disclosure triangle's two ways. No labels: glyphs differ.
-- ZEBHOST_UPDATE_GOLDEN=1 writes tests/golden/buttons_faces.png afresh.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect, point = zeblua_CreateNewRectF32, zeblua_CreateNewPointF32
local goldenFolder = arg[0]:match("^(.*)/lua/[^/]*$") or "tests"
local C = zebcontrols

local panel = zebhost.newNode("UI_SubView", "panel", rect(0, 0, 200, 96))
local function place(control, frame)
  control:UI_SetLocalRectF(frame)
  panel:ChildPushBack(control)
  return control
end
local function pixel(x, y) return zebhost.pixelText(panel, x, y) end
local clear, face, edge = "0,0,0,0", "215,217,222,255", "97,102,115,255"
-- The field's near white, whose last level differs between a fill and a stroke.
local function light(x, y)
  local r, g, b, a = zebhost.draw(panel):pixel(x, y)
  return r >= 249 and g >= 249 and b >= 246 and a == 255
end
local accent = "51,115,217,255"

-- Row 1: plain, on, chromeless at rest, chromeless with its border always, no container.
local plain = place(C.NewTextButton(), rect(4, 4, 32, 20))
local on = place(C.NewTextButton(), rect(40, 4, 32, 20))
on:SetValue()
local chromeless = place(C.NewTextButton(), rect(76, 4, 32, 20))
chromeless:SetDisplayChromelessNormalState()
local bordered = place(C.NewTextButton(), rect(112, 4, 32, 20))
bordered:SetDisplayChromelessNormalState()
bordered:SetDisplayBorderAlways()
local hollow = place(C.NewTextButton(), rect(148, 4, 32, 20))
hollow:SetDisplayContainerNever()
hollow:SetDisplayContainerAlways()
checkEqual(pixel(20, 14) .. " " .. pixel(4, 4), face .. " " .. edge, "a plain button")
checkEqual(pixel(56, 14), accent, "on fills with the accent")
checkEqual(pixel(92, 14) .. " " .. pixel(76, 4), clear .. " " .. clear, "chromeless at rest")
checkEqual(pixel(128, 14) .. " " .. pixel(112, 4), clear .. " " .. edge, "its border only")
checkEqual(pixel(164, 14) .. " " .. pixel(148, 4), clear .. " " .. edge,
  "Never wins over Always")
chromeless:SetValue()
checkEqual(pixel(92, 14), accent, "on, a chromeless button shows its chrome")
chromeless:SetValue(false)

-- Row 2: round corners with a wide border and an inner bevel, no border, a mixed value,
-- a press in progress.
local round = place(C.NewTextButton(), rect(4, 30, 40, 24))
round:SetCornerRadius(8)
round:SetStrokeSizes(3, 2)
round:SetDrawInnerBevelOutline()
local borderless = place(C.NewTextButton(), rect(48, 30, 32, 24))
borderless:SetDisplayBorderNever()
local mixed = place(C.NewTextButton(), rect(84, 30, 32, 24))
mixed:SetValueUnknown()
place(C.NewTextButton(), rect(120, 30, 32, 24))  -- pressed below
checkEqual(pixel(4, 30), clear, "a round corner leaves the corner out")
checkEqual(pixel(6, 42), edge, "the border is three units wide")
check(light(7, 42), "the bevel lies inside it")
checkEqual(pixel(48, 30), face, "no border: the container to its edge")
checkEqual(pixel(100, 42), accent, "the mixed bar across the middle")
checkEqual(pixel(100, 34), face, "on the face")
-- Huge or NaN sizes draw what fits and nothing else.
local wild = place(C.NewTextButton(), rect(156, 30, 24, 24))
wild:SetCornerRadius(1e30)
wild:SetStrokeSizes(0 / 0, 1e30)
wild:SetDrawInnerBevelOutline()
wild:SetContentOffset(point(0 / 0, 1 / 0))
check(light(168, 42), "a NaN border draws none, a huge bevel all that fits")
checkEqual(#zebhost.assertReports(), 0, "and nothing the drawing refuses")

-- Row 3: check boxes off, checked and mixed; radio buttons off and on; a closed and an
-- open disclosure triangle.
place(C.NewCheckbox(), rect(4, 60, 16, 14))
place(C.NewCheckbox(), rect(24, 60, 16, 14)):SetChecked()
place(C.NewCheckbox(), rect(44, 60, 16, 14)):SetValueUnknown()
place(C.NewRadioButton(), rect(64, 60, 16, 14))
place(C.NewRadioButton(), rect(84, 60, 16, 14)):SetValue()
place(C.NewDisclosureTriangleButton(), rect(104, 60, 16, 16))
place(C.NewDisclosureTriangleButton(), rect(124, 60, 16, 16)):SetValue()
checkEqual(pixel(31, 67), accent, "a checked box")
check(light(51, 64) and pixel(51, 67) == accent, "a mixed box")
checkEqual(pixel(91, 67), accent, "a radio button that is on")
check(light(71, 67), "one that is off")

-- A press in progress darkens the face until the release.
zebhost.sendMouse(panel, zeblua_CreateNewZEBUIMouseEvent(zebhost.mouse.kDown,
  zebhost.buttons.kLeft, 1, 136, 42, 0, 0, 0))
checkEqual(pixel(136, 42), "179,184,194,255", "pressed")
zebhost.checkImage(zebhost.draw(panel), goldenFolder .. "/golden/buttons_faces.png", 8)
zebhost.sendMouse(panel, zeblua_CreateNewZEBUIMouseEvent(zebhost.mouse.kUp,
  zebhost.buttons.kLeft, 1, 136, 42, 0, 0, 0))
checkEqual(pixel(136, 42), accent, "released over it: on")
print("buttons_faces: ok")

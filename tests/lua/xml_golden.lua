-- A view built from XML draws as the same controls placed by a script would, and the
-- timecode's edit box, open in place, draws over the control; pinned by a golden image
-- without text. ZEBHOST_UPDATE_GOLDEN=1 writes tests/golden/xml_faces.png afresh.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local tests = arg[0]:match("^(.*)/lua/[^/]*$") or "tests"
zebhost.addResourceFolder(tests .. "/fixtures/views")

local view = zebcontrols.LoadControlsFromXml("faces")
local function pixel(x, y) return zebhost.pixelText(view, x, y) end

-- The same controls made by the script, at the same places, draw the same picture.
local byHand = zebhost.newNode("UI_SubView", "byHand", rect(0, 0, 160, 90))
local function place(parent, control, frame)
  control:UI_SetLocalRectF(frame)
  parent:ChildPushBack(control)
  return control
end
place(byHand, zebcontrols.NewKnob(), rect(4, 4, 32, 32))
place(byHand, zebcontrols.NewCheckbox(), rect(44, 10, 16, 16))
local inner = place(byHand, zebcontrols.NewSubView(), rect(70, 4, 86, 40))
place(inner, zebhost.newNode("UI_Slider"), rect(0, 4, 80, 12))
place(inner, zebhost.newNode("UI_ScrollBar"), rect(0, 24, 80, 10))
place(byHand, zebcontrols.NewDivider(), rect(4, 48, 152, 6))
local handTimecode = place(byHand, zebcontrols.NewHotTextTimecode(), rect(4, 60, 100, 22))
local function blank() return "" end
handTimecode:SetValueToStringFunction(blank)
local timecode = view:GetDescendentByID("timecode")
timecode:SetValueToStringFunction(blank)
local handPicture = os.tmpname() .. ".png"
zebhost.draw(byHand):write(handPicture)
check(zebhost.compareImage(zebhost.draw(view), handPicture), "the XML view draws as the script's")
os.remove(handPicture)

-- The hidden knob stays hidden: its place is the view's background.
local empty = pixel(135, 70)
checkEqual(empty, pixel(150, 5), "nothing drawn where the hidden knob is")

-- A click on the timecode opens its box: a sunken field over exactly the control.
local before = pixel(50, 71)
zebhost.click(view, 50, 71)
checkEqual(timecode:IsEditingInPlace(), true, "the edit is open")
check(pixel(50, 71) ~= before, "the box draws over the control")
checkEqual(pixel(3, 71), pixel(3, 50), "and not beyond its left edge")
zebhost.checkImage(zebhost.draw(view), tests .. "/golden/xml_faces.png")

-- Closed and gone a second later, the control draws as before.
zebhost.sendKey({ keyCode = zebhost.keys.kEscape, character = "\27" })
zebhost.advance(1000)
checkEqual(pixel(50, 71), before, "the control's own face again")
print("xml_golden: ok")

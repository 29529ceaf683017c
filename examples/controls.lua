-- A small panel of controls made with zebcontrols, drawn by the toolkit's own draw pass
-- and written as a PNG. Labels are static texts whose draw is bound to a Lua function;
-- every other control draws its own face, its value and its text. The value controls
-- are then driven as a user would: a drag on the knob, typing into the clip's name.
-- zebhost examples/controls.lua [out.png]   (default build/examples/controls.png)
require "zeblua.zebcontrols"
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"

local output = arg[1] or "build/examples/controls.png"
local rect, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA
local Surface = zebSurfaceInterface
local C = zebcontrols

-- Places control in parent at frame and gives it an id; answers the control.
local function place(parent, control, id, frame)
  control:UI_SetNodeID(id)
  control:UI_SetLocalRectF(frame)
  parent:ChildPushBack(control)
  return control
end

-- A static text that draws text in its frame; a true answer: nothing else to draw.
local function label(parent, text, frame, alignment)
  local textView = place(parent, C.NewStaticText(), "label: " .. text, frame)
  textView:BindZebOperation("uiDraw", function(ink)
    ink:GetSurface():DrawString(text, 0, math.floor((frame.height - 14) / 2),
      rgba(0.1, 0.1, 0.12, 1), alignment or Surface.kTextAlignment_Left, 12, frame.width)
    return true
  end)
  return textView
end

local panel = C.NewSubView()
panel:UI_SetNodeID("panel")
panel:UI_SetLocalRectF(rect(0, 0, 320, 260))
panel:BindZebOperation("uiDraw", function(ink)
  ink:GetSurface():PaintRect(rect(0, 0, 320, 260), rgba(0.93, 0.93, 0.91, 1))
  return false                                   -- the children still draw
end)

local ok = place(panel, C.NewTextButton(), "ok", rect(16, 14, 100, 24))
label(ok, "Render", rect(0, 0, 100, 24), Surface.kTextAlignment_Center)
label(place(panel, C.NewCheckbox(), "snap", rect(16, 48, 120, 16)), "Snap",
  rect(20, 0, 100, 16))
label(place(panel, C.NewRadioButton(), "ripple", rect(16, 70, 120, 16)), "Ripple",
  rect(20, 0, 100, 16))
local rate = place(panel, C.NewPopup(), "rate", rect(16, 94, 120, 22))
for _, item in ipairs({ "24 fps", "25 fps", "30 fps" }) do rate:AddItem(item) end
rate:SetValueString("25 fps")
local name = place(panel, C.NewTextEdit(), "name", rect(150, 14, 154, 24))
name:SetStringValue("Clip ")
place(panel, C.NewSearchBox(false, true), "search", rect(150, 46, 154, 22))
  :SetGhostText("Search bins")
local gain = place(panel, C.NewKnob(), "gain", rect(150, 78, 38, 38))
gain:SetMinValue(-12)
gain:SetMaxValue(12)
place(panel, C.NewStaticImage("zeblua_badge"), "badge", rect(200, 74, 44, 44))
place(panel, C.NewDisclosureTriangleButton(), "more", rect(258, 88, 16, 16))
place(panel, C.NewDivider(), "rule", rect(16, 126, 288, 6))
local list = place(panel, C.NewListBox(), "bins", rect(16, 140, 288, 48))
label(list, "Footage", rect(8, 4, 270, 18))
label(list, "Music", rect(8, 24, 270, 18))

-- The value row: a hot text number, a slider and a scroll bar (the last two reach scripts
-- through the wrapper factory only), and a static text that follows the knob.
local level = place(panel, C.NewHotTextNumber(), "level", rect(16, 200, 70, 20))
level:SetLabelText("Level")
level:SetDecimalPlaces(1)
level:SetNumericValue(0.5)
local pan = place(panel, zebhost.newNode("UI_Slider"), "pan", rect(96, 204, 110, 12))
pan:SetExtent(-1, 1)
pan:SetNumericValue(0.25)
local scroll = place(panel, zebhost.newNode("UI_ScrollBar"), "scroll", rect(16, 232, 288, 10))
scroll:SetExtent(0, 100)
scroll:SetNumericValuePair(20, 45)
local readout = place(panel, C.NewStaticText(), "readout", rect(216, 200, 88, 20))
readout:SetTextAlignment(Surface.kTextAlignment_Right)
gain:NotifyWhenChanged(function()
  readout:SetStringValue(string.format("%+.1f dB", gain:GetNumericValue()))
end)

-- A user's turn: the knob dragged up, a name typed into the clicked field.
zebhost.drag(panel, 169, 97, 169, 77, 4)
zebhost.click(panel, 300, 26)
zebhost.type("42")
print(string.format("gain %s, name %q", readout:GetStringValue(), name:GetStringValue()))

zebhost.draw(panel, output)
for _, child in ipairs(zebhost.snapshot(panel, 1).children) do
  print(string.format("  %-28s %-14s %3d,%3d %3dx%d", child.class, child.id, child.rect.left,
    child.rect.top, child.rect.width, child.rect.height))
end
print("drew the panel of " .. zebhost.snapshot(panel, 0).childCount .. " controls to " .. output)

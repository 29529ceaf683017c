-- A small form in a dialog, run modally. Nobody sits at a headless screen, so the
-- scripted user fills it in: they type a name into the focused field, tick the check box
-- and press OK, all from the event loop while RunModal waits.
--   zebhost examples/dialog.lua
require "zeblua.zebcontrols"
local C = zebcontrols
local rect, point = zeblua_CreateNewRectF32, zeblua_CreateNewPointF32

local supplier
zebhost.canvas(1, 1, function(ink) supplier = ink:GetSupplier() end)

-- The dialog belongs to the main window (nil owner); its frame is set once it exists.
local dialog = C.NewDialog(supplier, "New Clip", point(0, 0), point(0, 0), nil)
dialog:UI_SetGlobalStructureRect(rect(200, 150, 260, 130))
local form = dialog:GetContainer()

local function add(control, left, top, width, height)
  control:UI_SetLocalRectF(rect(left, top, width, height))
  form:ChildPushBack(control)
  return control
end

local label = add(C.NewStaticText(), 10, 12, 50, 20)
label:SetLabelText("Name")
local name = add(C.NewTextEdit(), 70, 10, 180, 24)
local loop = add(C.NewCheckbox(), 70, 40, 180, 20)
loop:SetLabelText("Loop playback")
local ok = add(C.NewTextButton(), 110, 75, 65, 24)
ok:SetLabelText("OK")
local cancel = add(C.NewTextButton(), 185, 75, 65, 24)
cancel:SetLabelText("Cancel")
dialog:SetButtons(ok, cancel)
dialog:SetInitialFocus(name)

-- What the user does once the dialog is up: type, click the check box, then answer OK
-- (the scripted user's 1) a little later.
local user = zebhost.newNode("UI_SubView")
local step
step = user:UI_InstallTimer(0.05, function()
  user:UI_RemoveTimer(step)
  zebhost.type("Clip 42")
  -- the check box lies at 70, 40 of the form, which lies below the title bar (20)
  zebhost.click(dialog, 75, 65)
end)
zebhost.answer(1, "", 200)

dialog:RunModal()

local answers = { [1] = "OK", [0] = "Cancel", [-1] = "nothing" }
print(string.format("the user pressed %s", answers[dialog:GetResponse()]))
print(string.format("name \"%s\", loop playback %s", name:GetStringValue(),
  loop:IsChecked() and "on" or "off"))

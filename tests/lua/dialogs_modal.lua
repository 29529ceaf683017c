-- Dialogs as a user meets them: built, run modally and ended by the scripted user, by a
-- click on their buttons, by a timer calling DefaultCloseOk, and nested in one another.
require "zeblua.zebcontrols"
local check, checkEqual, state = zebhost.check, zebhost.checkEqual, zebhost.stateOf
local point, rect = zeblua_CreateNewPointF32, zeblua_CreateNewRectF32
local C = zebcontrols

local supplier
zebhost.canvas(1, 1, function(ink) supplier = ink:GetSupplier() end)

-- A nil owner (the main window) leaves the points unread, so the frame is set after.
local function newDialog(title)
  local dialog = C.NewDialog(supplier, title, point(50, 40), point(200, 120), nil)
  dialog:UI_SetNodeID(title)
  dialog:UI_SetGlobalStructureRect(rect(50, 40, 200, 120))
  return dialog
end

-- The response: 1, 0, and -1 for every other value; -1 before any run.
local dialog = newDialog("Responses")
checkEqual(dialog:GetResponse(), -1, "a new dialog answers neither")
for _, row in ipairs({ { 1, 1 }, { 0, 0 }, { 7, -1 }, { -5, -1 }, { 2, -1 }, { 1.9, 1 } }) do
  dialog:SetResponse(row[1])
  checkEqual(dialog:GetResponse(), row[2], "SetResponse(" .. row[1] .. ")")
end
local ok, message = pcall(dialog.SetResponse, dialog, "yes")
check(not ok and message:find("number expected", 1, true), tostring(message))

-- The container: the dialog owns it, below the title bar; a new wrapper each time.
local container = dialog:GetContainer()
checkEqual(container:UI_GetNodeID(), "container", "the container")
check(container ~= dialog:GetContainer(), "a new wrapper each call")
checkEqual(zebhost.rectText(container:UI_GetLocalRectF()), "0 20 200 100",
  "below a title bar of 20")

-- Timers for the runs: each fires once, its node kept alive here.
local timerNodes = {}
local function after(ms, fn)
  local node = zebhost.newNode("UI_SubView")
  timerNodes[#timerNodes + 1] = node
  local id
  id = node:UI_InstallTimer(ms / 1000, function()
    node:UI_RemoveTimer(id)
    fn()
  end)
end

-- RunModal answered 1 by the scripted user ends with response 1: shown, active, running
-- and on top of the modal stack meanwhile, hidden and off the stack after. RunModal
-- itself answers nothing.
dialog = newDialog("Answered")
local during
after(1, function() during = state(dialog) ; during.shown = zebhost.snapshot(dialog, 0).shown end)
zebhost.answer(1, "", 5)
checkEqual(select("#", dialog:RunModal()), 0, "RunModal answers nothing")
checkEqual(dialog:GetResponse(), 1, "answered 1: OK")
check(during and during.shown and during.running and during.modal and during.active,
  "shown, running, modal and active during the run")
local after_ = zebhost.snapshot(dialog, 0)
check(not after_.shown and not after_.state.running and not after_.state.modal, "closed after")

-- The scripted user's other answers, and a run with nothing to wait for.
for _, row in ipairs({ { 0, 0 }, { 5, -1 }, { -1, -1 }, { 1, 1 } }) do
  zebhost.answer(row[1])
  dialog:RunModal()
  checkEqual(dialog:GetResponse(), row[2], "answered " .. row[1])
end
dialog:SetResponse(1)
zebhost.clearAssertReports()
dialog:RunModal()
checkEqual(dialog:GetResponse(), -1, "a cancelled run leaves -1")
check(#zebhost.assertReports() == 1, "and says why")
zebhost.clearAssertReports()

-- A timer calling DefaultCloseOk ends the run; DefaultCloseCancel gives 0.
local started = zebhost.now()
after(10, function() dialog:DefaultCloseOk() end)
dialog:RunModal()
checkEqual(dialog:GetResponse(), 1, "DefaultCloseOk from a timer")
checkEqual(zebhost.now() - started, 10, "ended when the timer fired")
after(3, function() dialog:DefaultCloseCancel() end)
dialog:RunModal()
checkEqual(dialog:GetResponse(), 0, "DefaultCloseCancel from a timer")
-- Outside a run they only set the response.
dialog:DefaultCloseOk()
checkEqual(dialog:GetResponse(), 1, "outside a run: the response only")

-- Buttons: a click on OK or cancel ends the run; the initial focus is given at the start.
local form = newDialog("Form")
local box = form:GetContainer()
local okButton, cancelButton, field = C.NewTextButton(), C.NewTextButton(), C.NewTextEdit()
okButton:UI_SetLocalRectF(rect(10, 60, 60, 24))
cancelButton:UI_SetLocalRectF(rect(100, 60, 60, 24))
field:UI_SetLocalRectF(rect(10, 10, 150, 24))
box:ChildPushBack(okButton)
box:ChildPushBack(cancelButton)
box:ChildPushBack(field)
form:SetButtons(okButton, cancelButton)
form:SetInitialFocus(field)
local focused
after(2, function()
  focused = zebhost.snapshot(field, 0).focus
  -- the OK button lies at 10, 60 in the container, which lies 20 below the title bar
  zebhost.click(form, 20, 85)
end)
form:RunModal()
checkEqual(form:GetResponse(), 1, "a click on OK")
check(focused, "the initial focus was given")
after(2, function() zebhost.click(form, 110, 85) end)
form:RunModal()
checkEqual(form:GetResponse(), 0, "a click on cancel")

-- SetButtons: wrappers only, buttons only; a released wrapper skips its button.
ok, message = pcall(form.SetButtons, form, {}, cancelButton)
check(not ok and message:find("Bad user data", 1, true), tostring(message))
ok, message = pcall(form.SetButtons, form, field, cancelButton)
check(not ok and message:find("Invalid type conversion.", 1, true), tostring(message))
ok, message = pcall(form.SetInitialFocus, form, "field")
check(not ok and message:find("Bad user data", 1, true), tostring(message))
local spare = C.NewTextButton()
spare:Release()
form:SetButtons(spare, spare)
after(2, function() zebhost.click(form, 20, 85) end)
form:RunModal()
checkEqual(form:GetResponse(), 1, "released wrappers left the buttons as they were")

-- While a dialog runs, other trees get no input; the dialog does.
local other = zebhost.newNode("UI_SubView", "other", rect(0, 0, 50, 50))
other:BindZebOperation("uiMouseEvent", function() return true end)
checkEqual(zebhost.click(other, 5, 5):UI_GetNodeID(), "other", "before the run")
local heldBack, inDialog
after(1, function()
  heldBack = zebhost.click(other, 5, 5)
  inDialog = zebhost.click(form, 20, 85)
end)
form:RunModal()
checkEqual(heldBack, nil, "a click elsewhere is held back while the dialog runs")
check(inDialog ~= nil, "a click in the dialog is delivered, and ended it")
check(zebhost.click(other, 5, 5) ~= nil, "after the run, input flows again")

-- Pushing and popping by script, and a dialog that dies on the stack leaves it.
form:PushModalWindow()
check(state(form).modal, "pushed")
checkEqual(zebhost.click(other, 5, 5), nil, "held back")
form:PopModalWindow()
check(not state(form).modal, "popped")
do
  local doomed = newDialog("Doomed")
  doomed:PushModalWindow()
  checkEqual(zebhost.click(other, 5, 5), nil, "held back by the doomed one")
end
collectgarbage("collect")
check(zebhost.click(other, 5, 5) ~= nil, "the dialog that died left the modal stack")

-- A dialog nested in a dialog: the outer one asked to close while the inner one runs ends
-- only after the inner one, each with its own response.
local outer, inner = newDialog("Outer"), newDialog("Inner")
local log = {}
after(5, function()
  after(5, function()
    outer:DefaultCloseOk()
    log[#log + 1] = "outer asked to close"
  end)
  after(10, function()
    log[#log + 1] = "inner top:" .. tostring(state(inner).modal)
    inner:DefaultCloseCancel()
  end)
  inner:RunModal()
  log[#log + 1] = "inner ended " .. inner:GetResponse()
end)
outer:RunModal()
log[#log + 1] = "outer ended " .. outer:GetResponse()
checkEqual(table.concat(log, ", "),
  "outer asked to close, inner top:true, inner ended 0, outer ended 1", "the right order")

-- The content of a dialog draws: the title bar, then the container's children.
local painted = newDialog("Painted")
local swatch = zebhost.newNode("UI_SubView")
swatch:UI_SetLocalRectF(rect(0, 0, 10, 10))
painted:GetContainer():ChildPushBack(swatch)
require "zeblua.inkwell.zebSurfaceInterface"
swatch:BindZebOperation("uiDraw", function(ink)
  ink:GetSurface():PaintRect(rect(0, 0, 10, 10), zeblua_CreateNewRGBA(1, 0, 0, 1))
  return true
end)
local picture = zebhost.draw(painted)
local w, h = picture:size()
checkEqual(w .. "x" .. h, "200x120", "the dialog's size")
local r, g, b = picture:pixel(5, 25)
check(r > 230 and g < 25 and b < 25, "the swatch at 0, 20 of the container: " .. r .. "," .. g .. "," .. b)
r, g, b = picture:pixel(5, 5)
check(not (r > 230 and g < 25), "the title bar above it is not red")

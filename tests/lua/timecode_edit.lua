-- The timecode hot text driven as a user would: a click opens the edit box in place,
-- typing and Return hand the text to the script's parser, Escape cancels, and the box goes
-- a second after it closes. Values typed are bounded by SetMinMax; others are not.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local keys = zebhost.keys

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 200, 100))
local tc = zebcontrols.NewHotTextTimecode()
tc:UI_SetNodeID("tc")
tc:UI_SetLocalRectF(rect(20, 10, 100, 20))
root:ChildPushBack(tc)
local function shot() return zebhost.snapshot(tc) end
local function box() return shot().children and shot().children[1] end

-- Defaults: value 0, the toolkit's lower bound 0, shown as a plain number.
checkEqual(getmetatable(tc), debug.getregistry().zebHotTextTimecode, "its wrapper")
checkEqual(tc:GetNumericValue(), 0, "starts at 0")
checkEqual(shot().state.minValue, 0, "the toolkit's lower bound is 0")
checkEqual(shot().state.text, "0", "without a formatter the number's own text")
checkEqual(tc:IsEditingInPlace(), false, "not editing")

-- Milliseconds as hours:minutes:seconds, and back; -1 for anything else.
local formatted = {}
local function format(ms)
  formatted[#formatted + 1] = ms
  local s = math.floor(ms / 1000)
  return string.format("%02d:%02d:%02d", math.floor(s / 3600), math.floor(s / 60) % 60, s % 60)
end
local function parse(text)
  local h, m, s = text:match("^(%d+):(%d%d):(%d%d)$")
  if h then return ((h * 60 + m) * 60 + s) * 1000 end
  return tonumber(text) or -1
end
checkEqual(select("#", tc:SetValueToStringFunction(format)), 0, "no result")
checkEqual(formatted[1], 0, "the formatter runs at once with the present value")
checkEqual(shot().state.text, "00:00:00", "and the display shows its text")
tc:SetStringToValueFunction(parse)

-- SetNumericValue is not bounded by the typed bounds.
tc:SetNumericValue(90000000)
checkEqual(tc:GetNumericValue(), 90000000, "above the maximum, stored as it is")
checkEqual(shot().state.text, "25:00:00", "and shown")
tc:SetNumericValue(3600000)

-- A click opens the edit box over the control, the value's text all selected.
local phases = {}
tc:NotifyWhenChangedInteractively(function(msg) phases[#phases + 1] = msg.changeMessage end)
local changes = 0
tc:NotifyWhenChanged(function() changes = changes + 1 end)
zebhost.click(root, 30, 15)
checkEqual(tc:IsEditingInPlace(), true, "a click opens the edit")
local edit = box()
checkEqual(edit.class, "TimecodeTextEdit", "the timecode's own box")
checkEqual(edit.state.stringValue, "01:00:00", "showing the formatted value")
checkEqual(edit.state.selectionStart .. "-" .. edit.state.selectionEnd, "0-8", "all selected")
checkEqual(edit.rect.left .. " " .. edit.rect.top .. " " .. edit.rect.width .. " " ..
  edit.rect.height, "0 0 100 20", "over the control: its size at its own origin")
checkEqual(edit.globalRect.left .. " " .. edit.globalRect.top, "20 10", "exactly where it is")
check(edit.focus, "the box has the focus")
checkEqual(table.concat(phases, " "), "0 2", "the click's own phases only")

-- Typing 90000000 and Return: the parser's answer is clamped to the default maximum.
zebhost.type("90000000")
checkEqual(box().state.stringValue, "90000000", "typed text replaced the selection")
checkEqual(tc:GetNumericValue(), 3600000, "nothing stored while typing")
zebhost.sendKey({ keyCode = keys.kReturn, character = "\r" })
checkEqual(tc:GetNumericValue(), 86340000, "clamped to the maximum")
checkEqual(shot().state.text, "23:59:00", "and shown through the formatter")
checkEqual(tc:IsEditingInPlace(), false, "Return closes the edit")
checkEqual(box().shown, false, "the box is only hidden while its message is delivered")
checkEqual(phases[#phases], 2, "the edit finishes the control's change")
checkEqual(changes, 1, "one change of value")
checkEqual(tc:UI_HasKeyboardFocus(), true, "the focus the box took is back on the control")

-- The box is gone a second after it closed, not before.
zebhost.advance(999)
check(box() ~= nil, "still there after 999 ms")
zebhost.advance(1)
checkEqual(box(), nil, "gone at one second")
checkEqual(shot().childCount, 0, "no child left")

-- Typing a value through the parser's bounds: SetMinMax(100, 50) is taken as given.
local function typeValue(text)
  zebhost.click(root, 30, 15)
  zebhost.type(text)
  zebhost.sendKey({ keyCode = keys.kReturn, character = "\r" })
end
tc:SetMinMax(100, 50)
checkEqual(tc:GetNumericValue(), 86340000, "SetMinMax clamps nothing now")
typeValue("70")
checkEqual(tc:GetNumericValue(), 50, "70 is above the maximum 50")
typeValue("20")
checkEqual(tc:GetNumericValue(), 100, "20 is within the maximum, below the minimum: the minimum")
tc:SetMinMax(0, 1000)
typeValue("0:00:01")
checkEqual(tc:GetNumericValue(), 1000, "the parser's form is the script's")
zebhost.advance(1000)

-- Text the parser rejects leaves value and display alone, whatever form the refusal takes.
local refusals = {
  { "answers -1", function() return -1 end },
  { "answers a word", function() return "soon" end },
  { "answers nothing", function() end },
  { "raises", function() error("no such time") end },
  { "answers a table", function() return {} end },
}
for _, row in ipairs(refusals) do
  tc:SetStringToValueFunction(row[2])
  changes = 0
  typeValue("123")
  checkEqual(tc:GetNumericValue(), 1000, "a parser that " .. row[1] .. ": value kept")
  checkEqual(shot().state.text, "00:00:01", "a parser that " .. row[1] .. ": display kept")
  checkEqual(changes, 0, "a parser that " .. row[1] .. ": no change")
  checkEqual(tc:IsEditingInPlace(), false, "a parser that " .. row[1] .. ": closed")
end
tc:SetStringToValueFunction(function() return "250" end)
typeValue("x")
checkEqual(tc:GetNumericValue(), 250, "a numeric string counts as a number")
tc:SetStringToValueFunction(parse)

-- Escape cancels: the value stays, the box closes and goes.
phases = {}
zebhost.click(root, 30, 15)
zebhost.type("999")
zebhost.sendKey({ keyCode = keys.kEscape, character = "\27" })
checkEqual(tc:GetNumericValue(), 250, "cancelled")
checkEqual(tc:IsEditingInPlace(), false, "closed")
checkEqual(phases[#phases], 3, "the control's change is cancelled")
zebhost.advance(1000)
checkEqual(box(), nil, "gone after its second")

-- A printable key on the focused control opens the edit with that text, caret behind it.
tc:UI_GainKeyboardFocus(zebhost.focus.kProgram)
zebhost.type("7")
checkEqual(tc:IsEditingInPlace(), true, "a key opens the edit")
checkEqual(box().state.stringValue, "7", "starting from the key")
checkEqual(box().state.selectionStart .. "-" .. box().state.selectionEnd, "1-1", "caret behind")
zebhost.type("000")
zebhost.sendKey({ keyCode = keys.kReturn, character = "\r" })
checkEqual(tc:GetNumericValue(), 1000, "7000 is above the maximum 1000")

-- A second edit inside the closing second replaces the hidden box at once, and the old
-- timer never fires.
zebhost.advance(500)
zebhost.click(root, 30, 15)
checkEqual(shot().childCount, 1, "one box: the hidden one went at once")
checkEqual(box().shown, true, "the new one is shown")
zebhost.advance(2000)
checkEqual(tc:IsEditingInPlace(), true, "the old timer did not close the new box")

-- A wheel turn over the open box selects its text and changes nothing.
zebhost.type("5")
checkEqual(box().state.selectionStart .. "-" .. box().state.selectionEnd, "1-1", "caret only")
local wheel = zeblua_CreateNewZEBUIMouseEvent(zebhost.mouse.kWheel, zebhost.buttons.kNone, 0,
  30, 15, 0, 3, zebhost.wheelAxis.kVertical)
zebhost.sendMouse(root, wheel)
checkEqual(box().state.selectionStart .. "-" .. box().state.selectionEnd, "0-1", "all selected")
checkEqual(tc:GetNumericValue(), 1000, "the value did not move")
zebhost.sendKey({ keyCode = keys.kEscape, character = "\27" })
zebhost.advance(1000)

-- Dragging is the toolkit's: its steps pass the typed maximum, and stop at 0 below.
tc:SetNumericValue(999)
zebhost.drag(root, 30, 15, 38, 15, 2)
checkEqual(tc:GetNumericValue(), 1001, "two steps right, past the typed maximum")
checkEqual(tc:IsEditingInPlace(), false, "a drag opens no edit")
tc:SetNumericValue(1)
zebhost.drag(root, 30, 15, 10, 15, 2)
checkEqual(tc:GetNumericValue(), 0, "held at the toolkit's lower bound")

-- A script's own timer on the control still fires beside the box's timer.
local ticks = 0
local id = tc:UI_InstallTimer(0.25, function() ticks = ticks + 1 end)
check(type(id) == "number", "a timer id")
zebhost.click(root, 30, 15)
zebhost.sendKey({ keyCode = keys.kEscape, character = "\27" })
zebhost.advance(1000)
checkEqual(ticks, 4, "four ticks of a quarter second")
checkEqual(box(), nil, "and the box went at its own tick")
tc:UI_RemoveTimer(id)

-- A disabled control opens no edit.
tc:UI_SetEnabled(false)
zebhost.click(root, 30, 15)
checkEqual(tc:IsEditingInPlace(), false, "disabled: no edit")
tc:UI_SetEnabled(true)
print("timecode_edit: ok")

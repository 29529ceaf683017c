-- The value and text controls driven as a user would: drags on a knob, a hot text number, a
-- slider and a scroll bar; typing into a text edit and a search box; a popup's menu chosen
-- by a click. Each change reaches the script through the change notification.
require "zeblua.zebcontrols"
local check, checkEqual, state = zebhost.check, zebhost.checkEqual, zebhost.stateOf
local rect = zeblua_CreateNewRectF32
local keys = zebhost.keys
local C = zebcontrols

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 300, 200))
local function place(control, id, frame)
  control:UI_SetNodeID(id)
  control:UI_SetLocalRectF(frame)
  root:ChildPushBack(control)
  return control
end
-- Records plain changes as "changed" and phases as their numbers, in order.
local function journal(control)
  local log = {}
  control:NotifyWhenChanged(function() log[#log + 1] = "changed" end)
  control:NotifyWhenChangedInteractively(function(msg) log[#log + 1] = msg.changeMessage end)
  return log
end

-- A knob dragged up far past its range: the value goes to the maximum and stays there,
-- and the change ends with a finish.
local knob = place(C.NewKnob(), "knob", rect(0, 0, 40, 40))
knob:SetMinValue(-1)
knob:SetMaxValue(1)
local knobLog = journal(knob)
zebhost.drag(root, 20, 20, 20, 15, 1)
checkEqual(knob:GetNumericValue(), 0.1, "5 units up is a twentieth of the range")
zebhost.drag(root, 20, 20, 20, -400, 4)
checkEqual(knob:GetNumericValue(), 1, "held at the maximum")
zebhost.drag(root, 20, 20, 20, 400, 2)
checkEqual(knob:GetNumericValue(), -1, "and at the minimum")
checkEqual(knobLog[#knobLog], 2, "the last drag ends with a finish")
local phases = table.concat(knobLog, " ")
checkEqual(phases:sub(1, 13), "0 changed 1 2", "begin, the value's change, continue, finish")

-- A hot text number steps by its increment, one step each 4 units right or up.
local number = place(C.NewHotTextNumber(), "number", rect(50, 0, 60, 20))
number:SetIncrement(0.5)
number:SetDecimalPlaces(2)
number:SetMinValue(0)
number:SetMaxValue(3)
local numberLog = journal(number)
zebhost.drag(root, 60, 10, 70, 10, 2)
checkEqual(number:GetNumericValue(), 1, "10 units right: two steps of 0.5")
checkEqual(state(number).text, "1.00", "shown with its decimal places")
zebhost.drag(root, 60, 10, 160, 10, 5)
checkEqual(number:GetNumericValue(), 3, "held at the maximum")
checkEqual(numberLog[#numberLog], 2, "ended with a finish")
local changed = 0
for _, entry in ipairs(numberLog) do if entry == "changed" then changed = changed + 1 end end
check(changed >= 3, "each new value notified: " .. table.concat(numberLog, " "))

-- A slider puts its value where the pointer is, within the extent.
local slider = place(zebhost.newNode("UI_Slider"), "slider", rect(0, 50, 100, 10))
slider:SetExtent(0, 50)
local sliderLog = journal(slider)
zebhost.drag(root, 10, 55, 60, 55, 1)
checkEqual(slider:GetNumericValue(), 30, "60 of 100 units")
zebhost.drag(root, 60, 55, 299, 55, 1)
checkEqual(slider:GetNumericValue(), 50, "within the extent past the end")
checkEqual(sliderLog[#sliderLog], 2, "finished")

-- A scroll bar's pair moves with the drag and keeps its length at the end.
local bar = place(zebhost.newNode("UI_ScrollBar"), "bar", rect(0, 70, 100, 10))
bar:SetExtent(0, 200)
bar:SetNumericValuePair(0, 50)
zebhost.drag(root, 10, 75, 30, 75, 2)
checkEqual(table.concat({ bar:GetNumericValuePair() }, " "), "40 90", "20 units of 100: 40")
zebhost.drag(root, 10, 75, 290, 75, 2)
checkEqual(table.concat({ bar:GetNumericValuePair() }, " "), "150 200", "kept its length")

-- Typing into a text edit after a click on it: each character is a change; backspace takes
-- a surrogate pair at once; arrows move the caret; typed text replaces a selection.
local edit = place(C.NewTextEdit(), "edit", rect(0, 90, 120, 22))
local editLog = {}
edit:NotifyWhenChanged(function() editLog[#editLog + 1] = edit:GetStringValue() end)
zebhost.click(root, 10, 100)
checkEqual(zebhost.snapshot(edit).focus, true, "the click gave it the focus")
zebhost.type("héllo𝄞")
checkEqual(edit:GetStringValue(), "héllo𝄞", "typed")
checkEqual(#editLog, 6, "one change per character")
checkEqual(editLog[2], "hé", "told with the text so far")
zebhost.sendKey({ keyCode = keys.kBackspace })
checkEqual(edit:GetStringValue(), "héllo", "the pair went at once")
zebhost.sendKey({ keyCode = keys.kLeftArrow })
zebhost.sendKey({ keyCode = keys.kBackspace })
checkEqual(edit:GetStringValue(), "hélo", "deleted before the caret")
checkEqual(state(edit).selectionStart, 3, "caret")
edit:SelectAll()
zebhost.type("X")
checkEqual(edit:GetStringValue(), "X", "typing replaced the selection")
checkEqual(#editLog, 9, "every edit notified")

-- A search box is a text edit that records a search on return.
local box = place(C.NewSearchBox(false, true), "box", rect(130, 90, 120, 22))
box:SetSearchHistoryMaxSize(2)
zebhost.click(root, 200, 100)
for _, search in ipairs({ "one", "two", "three" }) do
  box:SetStringValue("")
  zebhost.type(search)
  zebhost.sendKey({ keyCode = keys.kReturn, character = 13 })
end
checkEqual(table.concat(state(box).recentSearches, ","), "three,two", "newest first, two kept")
checkEqual(zebhost.snapshot(box).toolTip, "three\ntwo", "listed in the tool tip")

-- A popup: a click opens the menu; the answer chooses the second item.
local popup = place(C.NewPopup(), "popup", rect(0, 130, 100, 22))
for _, item in ipairs({ "24 fps", "25 fps", "30 fps" }) do popup:AddItem(item) end
local chosen = {}
popup:NotifyWhenChanged(function() chosen[#chosen + 1] = popup:GetValueString() end)
zebhost.answer(2)
zebhost.click(root, 50, 140)
checkEqual(popup:GetValueString(), "25 fps", "the chosen item")
checkEqual(table.concat(chosen, ","), "25 fps", "notified once")
zebhost.answer(0)
zebhost.click(root, 50, 140)
checkEqual(popup:GetValueString(), "25 fps", "an answer that is no item chooses nothing")
checkEqual(#chosen, 1, "and tells nothing")
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("values_input: ok")

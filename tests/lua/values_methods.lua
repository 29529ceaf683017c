-- The value and text control sets as scripts call them: the quirks of their answers (setters
-- that answer their last argument, sizes that truncate), bounds and clamping, texts in and
-- out as UTF-8, and the errors of a wrong self.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local state, count, errorOf = zebhost.stateOf, zebhost.count, zebhost.errorOf
local rect, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA
local C = zebcontrols

-- Counts the change notifications of control into the returned table's n.
local function changes(control)
  local seen = { n = 0 }
  control:NotifyWhenChanged(function() seen.n = seen.n + 1 end)
  return seen
end

-- The search box's three sizes: each setter answers its argument as given, the getter the
-- truncated value kept.
local box = C.NewSearchBox(false, true)
for _, size in ipairs({ "SearchHistoryMaxSize", "SavedSearchMaxSize", "SearchHistoryDisplayMaxSize" }) do
  checkEqual(box["Set" .. size](box, 7.9), 7.9, "Set" .. size .. " answers the raw argument")
  checkEqual(box["Get" .. size](box), 7, "Get" .. size .. " the truncated value")
  checkEqual(box["Set" .. size](box, -2.5), -2.5, "a negative size is answered too")
  checkEqual(box["Get" .. size](box), -2, "and kept truncated toward zero")
end
checkEqual(box:SetSearchHistoryMaxSize(1e300), 1e300, "beyond int's range")
checkEqual(box:GetSearchHistoryMaxSize(), 2147483647, "stops at int's end")
check(errorOf(box.SetSearchHistoryMaxSize, box):find("number expected", 1, true), "size checked")
box:SetGhostText("Find clips")
checkEqual(state(box).ghostText, "Find clips", "ghost text")

-- A search box is a text edit: the text edit's own methods take it.
local edit = C.NewTextEdit()
getmetatable(edit).SetStringValue(box, "from the edit's table")
checkEqual(box:GetStringValue(), "from the edit's table", "a text edit method on a search box")

-- Slider: the extent setter answers its last argument, the value setter nothing; the value
-- stays within the extent, also when the extent moves, and an extent given upside down is
-- put in order.
local slider = zebhost.newNode("UI_Slider")
local sliderChanges = changes(slider)
checkEqual(slider:SetExtent(0, 10), 10, "SetExtent(0, 10) answers 10")
checkEqual(count(slider:SetNumericValue(5)), 0, "SetNumericValue answers nothing")
checkEqual(slider:GetNumericValue(), 5, "value")
slider:SetNumericValue(12)
checkEqual(slider:GetNumericValue(), 10, "clamped to the extent")
slider:SetExtent(8, 2)
checkEqual(table.concat({ slider:GetExtent() }, " "), "2 8", "extent put in order")
checkEqual(slider:GetNumericValue(), 8, "the value follows a shrinking extent")
checkEqual(sliderChanges.n, 3, "5, 10 and 8: one notification each")
slider:SetNumericValue(0 / 0)
checkEqual(slider:GetNumericValue(), 8, "NaN is refused")

-- Scroll bar: a pair of floats that keeps its length while clamped.
local bar = zebhost.newNode("UI_ScrollBar")
checkEqual(bar:SetExtent(0, 100), 100, "the extent setter answers its top")
checkEqual(bar:SetNumericValuePair(95, 105), 105, "the pair setter too")
checkEqual(table.concat({ bar:GetNumericValuePair() }, " "), "90 100", "slid back, same length")
checkEqual(table.concat({ bar:GetValueRange() }, " "), "0 90", "the starts the pair can take")
bar:DoScroll(false, false, 3)
checkEqual(table.concat({ bar:GetNumericValuePair() }, " "), "87 97", "three units back")
bar:DoScroll(false, true, 2)
checkEqual(table.concat({ bar:GetNumericValuePair() }, " "), "67 77", "two pages back")
bar:DoScroll(true, false, 3.9)
checkEqual((bar:GetNumericValuePair()), 70, "the amount is an integer")
check(errorOf(bar.DoScroll, bar, true, false):find("bad argument #4", 1, true),
  "DoScroll(true, false) is an argument error")
bar:SetNumericValuePair(0.1, 0.35)
local first, second = bar:GetNumericValuePair()
check(math.abs(first - 0.1) < 1e-6 and first ~= 0.1, "floats: " .. first)
check(second > first, "in order")

-- Knob: bounds clamp, and a moved bound takes the value along; only real changes notify.
local knob = C.NewKnob()
local knobChanges = changes(knob)
knob:SetMaxValue(10)
knob:SetNumericValue(7)
knob:SetNumericValue(7)
checkEqual(knobChanges.n, 1, "setting the same value again reports nothing")
knob:SetMaxValue(5)
checkEqual(knob:GetNumericValue(), 5, "re-clamped when the maximum moves below")
knob:SetMinValue(6)
checkEqual(knob:GetNumericValue(), 6, "and when the minimum moves above")
checkEqual(state(knob).maxValue, 6, "a minimum past the maximum takes it along")
checkEqual(knobChanges.n, 3, "7, 5, 6")

-- Hot text number: decimal places truncate, the text shows them, alignment words.
local number = C.NewHotTextNumber()
number:SetDecimalPlaces(2.9)
number:SetNumericValue(1.5)
checkEqual(state(number).decimalPlaces, 2, "SetDecimalPlaces(2.9) sets 2")
checkEqual(state(number).text, "1.50", "shown with two places")
number:SetMinValue(2)
checkEqual(number:GetNumericValue(), 2, "clamped by the new minimum")
number:SetIncrement(0.25)
checkEqual(number:GetIncrement(), 0.25, "increment")
for word, alignment in pairs({ right = 2, center = 1, left = 0, anything = 0, Right = 0,
  ["right\0"] = 0 }) do
  number:SetAlignment(word)
  checkEqual(state(number).alignment, alignment, "SetAlignment(" .. word .. ")")
end
number:SetNumericInput(nil)
checkEqual(number:GetNumericInput(), false, "nil switches numeric input off")
number:SetNumericInput()
checkEqual(number:GetNumericInput(), true, "no argument switches it on")
checkEqual(number:IsEditingInPlace(), false, "no editor opens here")
number:SetCustomFontSize(15.5)
checkEqual(state(number).customFontSize, 15.5, "custom font size")

-- The text control set on every control that shows a text, UTF-8 both ways.
local label = "Grüße 𝄞"
for _, control in ipairs({ C.NewHotTextButton(), number, C.NewPopup(), C.NewStaticText(), edit,
  box }) do
  control:SetLabelText(label)
  checkEqual(control:GetLabelText(), label, "label of " .. zebhost.snapshot(control).class)
end
local text = C.NewStaticText()
text:UI_SetLocalRectF(rect(0, 0, 80, 20))
local area = text:GetLabelTextRect()
checkEqual(tostring(area), "{left=0, top=0, width=80, height=20}", "the label's rect")
text:SetTextAlignment(2)
text:SetFontSizeId(1)
checkEqual(state(text).textAlignment .. " " .. state(text).fontSizeId, "2 1", "kept as given")
local textChanges = changes(text)
text:SetStringValue("Bin 1")
text:SetStringValue("Bin 1")
checkEqual(text:GetStringValue(), "Bin 1", "static text value")
checkEqual(textChanges.n, 1, "one change")
text:SetCustomTextColor(rgba(1, 0, 0, 1))
checkEqual(state(text).hasCustomTextColor, true, "custom text colour")

-- Hot text button, text edit, popup, static image.
local hot = C.NewHotTextButton()
hot:SetText("00:01")
checkEqual(state(hot).text, "00:01", "hot text")
edit:SetStringValue("Clip 1")
edit:SelectAll()
checkEqual(state(edit).selectionStart .. "-" .. state(edit).selectionEnd, "0-6", "SelectAll")
edit:SetCustomFontSize(9)
checkEqual(state(edit).customFontSize, 9, "text edit font size")
local popup = C.NewPopup()
local popupChanges = changes(popup)
popup:AddItem("24 fps")
popup:AddItem("25 fps")
popup:SetValueString("25 fps")
checkEqual(popup:GetValueString(), "25 fps", "value string")
popup:DeleteAllItems()
checkEqual(#state(popup).items, 0, "items gone")
checkEqual(popup:GetValueString(), "25 fps", "the value string stays")
checkEqual(popupChanges.n, 1, "one change")
popup:SetTightMargins()
checkEqual(popup:GetTightMargins(), true, "tight margins")
local image = C.NewStaticImage("zeblua_badge")
image:SetAlpha(0.3)
check(math.abs(image:GetAlpha() - 0.3) < 1e-6, "alpha within float precision")
image:SetImageName("other")
checkEqual(state(image).imageName, "other", "image name")

checkEqual(#zebhost.assertReports(), 0, "no assertion reports")

-- Wrong selves: a knob for a text control method, a table, a released wrapper.
check(errorOf(edit.SetLabelText, knob, "x"):find("Invalid type conversion.", 1, true),
  "the text control set casts")
check(errorOf(edit.GetStringValue, knob):find("Invalid type conversion.", 1, true),
  "a text edit method casts")
check(errorOf(knob.SetNumericValue, {}, 1):find("Bad user data", 1, true), "a table")
check(errorOf(slider.SetExtent, slider, 1):find("number expected", 1, true), "pair checked")
local released = C.NewKnob()
released:Release()
checkEqual(count(released:GetNumericValue()), 0, "a released wrapper answers nothing")
checkEqual(count(released:SetNumericValue(1)), 0, "nor does its setter")
local releasedBar = zebhost.newNode("UI_ScrollBar")
releasedBar:Release()
checkEqual(count(releasedBar:SetExtent(0, 1)), 0, "no top value from a released wrapper")
checkEqual(#zebhost.assertReports(), 2, "the toolkit reported each failed cast")
zebhost.clearAssertReports()

-- Every method of each family's own rows, run through the fault rows: a released wrapper
-- answers nothing, a sub view is the conversion error.
local makers = {
  HotTextButton = C.NewHotTextButton, HotTextNumber = C.NewHotTextNumber, Knob = C.NewKnob,
  Popup = C.NewPopup, StaticImage = C.NewStaticImage, StaticText = C.NewStaticText,
  TextEdit = C.NewTextEdit, SearchBox = C.NewSearchBox,
  Slider = function() return zebhost.newNode("UI_Slider") end,
  ScrollBar = function() return zebhost.newNode("UI_ScrollBar") end,
}
local shared = getmetatable(zebhost.newNode("UI_InteractiveControlView"))
local buttonSet = getmetatable(zebhost.newNode("UI_Button"))  -- the popup's, tested elsewhere
local subView = zebhost.newNode("UI_SubView")
local rowsRun = 0
for family, make in pairs(makers) do
  local methods = getmetatable(make())
  for name, method in pairs(methods) do
    local own = shared[name] == nil and not (family == "Popup" and buttonSet[name])
    if type(method) == "function" and own and not name:find("^__") then
      local args = name == "SetCustomTextColor" and { rgba(0, 0, 0, 1) } or { 1, 2, 3 }
      local gone = make()
      gone:Release()
      checkEqual(count(method(gone, unpack(args))), 0, family .. ":" .. name .. " released")
      local ok, why = pcall(method, subView, unpack(args))
      check(not ok and tostring(why):find("Invalid type conversion.", 1, true),
        family .. ":" .. name .. " on a sub view: " .. tostring(why))
      rowsRun = rowsRun + 1
    end
  end
end
check(rowsRun >= 70, "every own row ran: " .. rowsRun)
zebhost.clearAssertReports()

-- A colour whose reading ends the wrapper: the method answers nothing, the node lives on.
local victim = C.NewStaticText()
local colour = setmetatable({}, { __index = function(_, key)
  getmetatable(victim).__gc(victim)
  return ({ red = 1, green = 0, blue = 0, alpha = 1 })[key]
end })
checkEqual(count(victim:SetCustomTextColor(colour)), 0, "ended during the read")
checkEqual(count(victim:GetStringValue()), 0, "and answers nothing after")
print("values_methods: ok")

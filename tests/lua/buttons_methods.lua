-- The button family's method tables as scripts have always met them: flag defaults, the
-- setters that answer their last argument, floats kept as floats, which class has which
-- rows, and the errors of a wrong argument.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local failure, raises = zebhost.errorOf, zebhost.checkRaises
local point = zeblua_CreateNewPointF32
local C = zebcontrols

-- Flag setters: no argument means true, nil false; each getter reads its own flag.
local button = C.NewTextButton()
local flags = { "DisplayContainerNever", "DisplayContainerAlways", "DisplayBorderNever",
  "DisplayBorderAlways", "DisplayChromelessNormalState", "InsetUndrawnSpace",
  "DrawInnerBevelOutline" }
for _, name in ipairs(flags) do
  local set, get = button["Set" .. name], button["Should" .. name]
  checkEqual(get(button), false, name .. " starts off")
  checkEqual(select("#", set(button)), 0, "Set" .. name .. " answers nothing")
  checkEqual(get(button), true, name .. " on with no argument")
  for _, other in ipairs(flags) do
    if other ~= name then checkEqual(button["Should" .. other](button), false, other) end
  end
  set(button, nil)
  checkEqual(get(button), false, name .. " off with nil")
end
checkEqual(button:GetChangeFocusOnClick(), true, "a click takes the focus at first")
checkEqual(button:GetNotificationOnMouseDown(), false, "and notifies at the release")
checkEqual(select("#", button:SetSpringLoaded(true)), 0, "SetSpringLoaded answers nothing")
checkEqual(zebhost.snapshot(button).state.springLoaded, true, "though it has no getter")
checkEqual(button.IsSpringLoaded, nil, "none at all")
button:SetValue()
checkEqual(button:GetValue(), true, "SetValue() switches on")
button:SetValue(nil)
checkEqual(button:GetValue(), false, "SetValue(nil) off")

-- Three setters push nothing and still report one result: the stack's top value.
checkEqual(button:SetCornerRadius(4), 4, "SetCornerRadius(4) answers 4")
checkEqual(button:GetCornerRadius(), 4, "and keeps it")
checkEqual(button:SetCornerRadius(4, "extra"), "extra", "the top, whatever it is")
button:SetCornerRadius(0.1)
checkEqual(button:GetCornerRadius(), 0.10000000149011612, "kept as a float")
checkEqual(button:SetStrokeSizes(1, 2), 2, "SetStrokeSizes(1, 2) answers 2")
local border, bevel = button:GetStrokeSizes()
checkEqual(border .. "," .. bevel, "1,2", "GetStrokeSizes answers 1, 2")
local offset = point(3, 4)
checkEqual(button:SetContentOffset(offset), offset, "SetContentOffset answers its point")
raises("number expected", button.SetCornerRadius, button, "wide")
raises("number expected", button.SetStrokeSizes, button, 1)
raises("table expected", button.SetContentOffset, button, 7)
checkEqual(button:GetCornerRadius(), 0.10000000149011612, "a failed call changes nothing")

-- The text button adds its indent, the disclosure triangle its twirl, the picture button
-- its image name; the check box and radio button have the text control set but none of
-- the button table.
button:SetTextIndent(6.5)
checkEqual(zebhost.snapshot(button).state.textIndent, 6.5, "the indent")
raises("number expected", button.SetTextIndent, button, {})
-- The label lies in the content rect: inside the border where one is drawn, or where the
-- undrawn space is inset, moved by the content offset, the indent further in.
local function labelRect(control)
  local r = control:GetLabelTextRect()
  return table.concat({ r.left, r.top, r.width, r.height }, ",")
end
local labelled = C.NewTextButton()
labelled:UI_SetLocalRectF(zeblua_CreateNewRectF32(0, 0, 40, 20))
labelled:SetTextIndent(6)
checkEqual(labelRect(labelled), "7,1,32,18", "inside the one-unit border, indented")
labelled:SetDisplayChromelessNormalState()
checkEqual(labelRect(labelled), "6,0,34,20", "no border drawn at rest: the whole button")
labelled:SetInsetUndrawnSpace()
checkEqual(labelRect(labelled), "7,1,32,18", "unless the undrawn space is inset")
labelled:SetStrokeSizes(3, 0)
labelled:SetContentOffset(point(2, -1))
checkEqual(labelRect(labelled), "11,2,28,14", "the border's width, moved by the offset")
local boxed = C.NewCheckbox()
boxed:UI_SetLocalRectF(zeblua_CreateNewRectF32(0, 0, 60, 20))
checkEqual(labelRect(boxed), "18,0,42,20", "a check box's label right of its box")
local triangle = C.NewDisclosureTriangleButton()
triangle:SetValue()
triangle:SetTextIndent(2)
triangle:SetTwirlDuration(0.25)
checkEqual(zebhost.snapshot(triangle).state.twirlDuration, 0.25, "a double, kept")
checkEqual(triangle:GetValue(), true, "a triangle answers the button set")
local picture = C.NewPictureButton()
picture:SetImageBaseName("zeblua_badge")
checkEqual(zebhost.snapshot(picture).state.imageName, "zeblua_badge", "the name")
picture:SetValue()
checkEqual(picture:GetValue(), true, "a picture button answers the button set")
raises("string expected", picture.SetImageBaseName, picture, nil)
checkEqual(picture.SetTextIndent, nil, "but not the text button's")
local box, radio = C.NewCheckbox(), C.NewRadioButton()
for _, control in ipairs({ box, radio }) do
  checkEqual(control.SetDisplayBorderNever, nil, "no display flags")
  checkEqual(control.SetCornerRadius, nil, "no sizes")
  check(control.SetLabelText and control.NotifyWhenChangedInteractively, "text and phases")
end
checkEqual(box.GetValue, nil, "a check box has IsChecked instead")
local divider = C.NewDivider()
check(divider.SetEnabled and divider.NotifyWhenChanged, "a divider has the control view set")
checkEqual(divider.NotifyWhenChangedInteractively, nil, "and nothing more")

-- A method of one class on another's wrapper is the toolkit's conversion error, with the
-- toolkit's own report.
local knob = C.NewKnob()
raises("Invalid type conversion.", box.SetChecked, knob, true)
raises("Invalid type conversion.", radio.SetValue, box)
checkEqual(#zebhost.assertReports(), 2, "one report per failed conversion")
zebhost.clearAssertReports()
print("buttons_methods: ok")

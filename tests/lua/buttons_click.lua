-- The button family as a user drives it: clicks and drags through the harness, each value
-- change reported through the same change functions as a script's own change.
require "zeblua.zebcontrols"
local check, checkEqual, stateOf = zebhost.check, zebhost.checkEqual, zebhost.stateOf
local rect = zeblua_CreateNewRectF32
local C = zebcontrols

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 200, 100))
local function place(control, id, frame, parent)
  control:UI_SetNodeID(id)
  control:UI_SetLocalRectF(frame)
  ;(parent or root):ChildPushBack(control)
  return control
end
-- Records the change functions' calls in one log: "id" for a plain change, "id:phase" for
-- an interactive one. Only a control's first function ever runs, so this is the one place
-- a test adds its own look at a change (also).
local log, logged = zebhost.recorder(" ")
local function listen(control, also)
  local id = control:UI_GetNodeID()
  control:NotifyWhenChanged(function()
    log[#log + 1] = id
    if also then also() end
  end)
  if not control.NotifyWhenChangedInteractively then return end
  control:NotifyWhenChangedInteractively(function(msg)
    log[#log + 1] = id .. ":" .. msg.changeMessage
  end)
end
local function mouse(action, x, y, button)
  zebhost.sendMouse(root, zeblua_CreateNewZEBUIMouseEvent(action, button or zebhost.buttons.kLeft,
    1, x, y, 0, 0, 0))
end

-- A check box toggles on a click and reports it once, between begin and finish; a press
-- released outside the box changes nothing; a mixed box becomes checked.
local box = place(C.NewCheckbox(), "box", rect(10, 10, 60, 14))
listen(box)
zebhost.click(root, 15, 15)
checkEqual(box:IsChecked(), true, "a click checks the box")
checkEqual(logged(), "box:0 box box:2", "one change, before the finish")
zebhost.click(root, 15, 15)
checkEqual(box:IsChecked(), false, "a second click clears it")
checkEqual(logged(), "box:0 box box:2", "and reports once more")
zebhost.drag(root, 15, 15, 150, 90, 2)
checkEqual(box:IsChecked(), false, "released outside: unchanged")
checkEqual(logged(), "box:0 box:1 box:1 box:2", "phases but no change")
-- Only a left press aimed at the box itself begins: not the right button, not a press that
-- reached a child of the box first, not a drag or a release without a press.
mouse(zebhost.mouse.kDown, 15, 15, zebhost.buttons.kRight)
mouse(zebhost.mouse.kUp, 15, 15, zebhost.buttons.kRight)
mouse(zebhost.mouse.kDrag, 15, 15)
mouse(zebhost.mouse.kUp, 15, 15)
place(zebhost.newNode("UI_SubView"), "inside", rect(40, 0, 20, 14), box)
zebhost.click(root, 55, 15)
checkEqual(logged(), "", "nothing began")
checkEqual(box:IsChecked(), false, "nor changed")
box:SetValueUnknown()
box:SetValueUnknown()
checkEqual(logged(), "box", "becoming mixed is one change")
checkEqual(stateOf(box).valueUnknown, true, "mixed")
zebhost.click(root, 15, 15)
checkEqual(box:IsChecked(), true, "a click on a mixed box checks it")
checkEqual(stateOf(box).valueUnknown, false, "and the value is known again")
checkEqual(logged(), "box:0 box box:2", "once")
box:SetChecked()
checkEqual(logged(), "", "SetChecked() on a checked box: no change, no report")
box:SetChecked(nil)
checkEqual(box:IsChecked(), false, "nil clears")
checkEqual(logged(), "box", "a script's change takes the same path")
box:SetValueUnknown()
box:SetChecked(false)
checkEqual(logged(), "box box", "known again is a change, though the stored value is the same")

-- Space on the focused box presses it as a click in its middle would: the same phases and
-- one change. Another key is left to others and changes nothing.
checkEqual(box:UI_GainKeyboardFocus(zebhost.focus.kProgram), true, "the box takes the focus")
checkEqual(zebhost.sendKey({ keyCode = zebhost.keys.kSpace }):UI_GetNodeID(), "box", "Space")
checkEqual(box:IsChecked(), true, "Space checks the box")
checkEqual(logged(), "box:0 box box:2", "reported as a click is")
checkEqual(zebhost.sendKey({ keyCode = zebhost.keys.kX }), nil, "another key is not taken")
checkEqual(box:IsChecked(), true, "and changes nothing")
checkEqual(logged(), "", "nor reports")

-- Radio buttons in a group are exclusive at every report: the others go off before the
-- chosen one comes on, then the group reports its new selection. A button deeper in the
-- group's tree belongs to it; one under a nested group does not.
local group = place(zebhost.newNode("UI_RadioGroup"), "group", rect(80, 0, 120, 100))
local first = place(C.NewRadioButton(), "first", rect(0, 0, 50, 14), group)
local holder = place(zebhost.newNode("UI_SubView"), "holder", rect(0, 20, 120, 40), group)
local second = place(C.NewRadioButton(), "second", rect(0, 0, 50, 14), holder)
local inner = place(zebhost.newNode("UI_RadioGroup"), "inner", rect(0, 60, 120, 40), group)
local other = place(C.NewRadioButton(), "other", rect(0, 0, 50, 14), inner)
local seen = {}
listen(first, function()
  seen[#seen + 1] = tostring(first:GetValue()) .. "," .. tostring(second:GetValue())
end)
for _, control in ipairs({ group, second, other }) do listen(control) end
checkEqual(group:GetSelectedRadioButton(), nil, "none on yet")
checkEqual(select("#", group:GetSelectedRadioButton()), 0, "and no value at all")
other:SetValue()
checkEqual(logged(), "other", "the nested group's button is not the outer group's")
checkEqual(group:GetSelectedRadioButton(), nil, "still none in the outer group")
zebhost.click(root, 85, 5)
checkEqual(logged(), "first:0 first group first:2", "a click switches the first on")
zebhost.click(root, 85, 25)
checkEqual(logged(), "second:0 first second group second:2",
  "the second: the first goes off before the second comes on")
checkEqual(first:GetValue(), false, "first off")
checkEqual(second:GetValue(), true, "second on")
checkEqual(other:GetValue(), true, "the nested group is left alone")
zebhost.click(root, 85, 25)
checkEqual(logged(), "second:0 second:2", "a click on the button that is on changes nothing")
local selected = group:GetSelectedRadioButton()
checkEqual(selected:UI_GetNodeID(), "second", "the group answers the second")
check(selected ~= group:GetSelectedRadioButton(), "a new wrapper at each call")
checkEqual(getmetatable(selected), debug.getregistry().zebRadioButton, "a radio button's")
selected:SetValue()
checkEqual(logged(), "", "on already: nothing")
first:SetValue(true)
checkEqual(logged(), "second first group", "a script's change keeps the group exclusive")
first:SetValue(false)
checkEqual(logged(), "first group", "switching the selected one off empties the selection")
checkEqual(table.concat(seen, " "), "true,false false,false true,false false,false",
  "never two on together")
checkEqual(stateOf(group).selected, nil, "the snapshot has no selection")
second:SetValue()
checkEqual(stateOf(group).selected, "second", "then the second")
checkEqual(stateOf(second).value, 1, "on")
logged()

-- A button toggles on a click: at the release over it, or at the press with notification
-- on mouse down. A spring-loaded button is on while pressed and over it, off at the end.
local push = place(C.NewTextButton(), "push", rect(10, 40, 40, 20))
listen(push)
zebhost.click(root, 20, 50)
checkEqual(logged(), "push:0 push push:2", "toggled at the release")
checkEqual(push:GetValue(), true, "on")
zebhost.drag(root, 20, 50, 150, 95, 1)
checkEqual(logged(), "push:0 push:1 push:2", "released elsewhere: no change")
checkEqual(push:GetValue(), true, "still on")
push:SetNotificationOnMouseDown()
checkEqual(push:GetNotificationOnMouseDown(), true, "the flag reads back")
zebhost.drag(root, 20, 50, 150, 95, 1)
checkEqual(logged(), "push push:0 push:1 push:2",
  "toggled at the press (the class moves its value before each phase), wherever released")
checkEqual(push:GetValue(), false, "off")
push:SetNotificationOnMouseDown(false)
push:SetSpringLoaded()
mouse(zebhost.mouse.kDown, 20, 50)
checkEqual(push:GetValue(), true, "spring-loaded: on while pressed")
checkEqual(stateOf(push).pressed, true, "and drawn pressed")
mouse(zebhost.mouse.kDrag, 150, 95)
checkEqual(push:GetValue(), false, "off while the pointer is elsewhere")
checkEqual(stateOf(push).pressed, false, "and not drawn pressed")
mouse(zebhost.mouse.kDrag, 21, 51)
mouse(zebhost.mouse.kUp, 21, 51)
checkEqual(logged(), "push push:0 push push:1 push push:1 push push:2",
  "on, off, on again, and off at the release")
checkEqual(push:GetValue(), false, "sprung back")
checkEqual(stateOf(push).pressed, false, "no press")

-- Clicking a button takes the keyboard focus unless the button says not to.
local field = place(zebhost.newNode("UI_InteractiveControlView"), "field", rect(10, 70, 30, 20))
zebhost.click(root, 15, 75)
checkEqual(zebhost.snapshot(field).focus, true, "the field has the focus")
push:SetSpringLoaded(false)
push:SetChangeFocusOnClick(false)
checkEqual(push:GetChangeFocusOnClick(), false, "the flag reads back")
zebhost.click(root, 20, 50)
checkEqual(zebhost.snapshot(field).focus, true, "a click on the button left it there")
checkEqual(push:GetValue(), true, "and still toggled the button")
push:SetChangeFocusOnClick()
zebhost.click(root, 20, 50)
checkEqual(zebhost.snapshot(push).focus, true, "now the button takes it")

-- A disclosure triangle toggles as a button does: on is open.
local triangle = place(C.NewDisclosureTriangleButton(), "triangle", rect(60, 40, 16, 16))
zebhost.click(root, 65, 45)
checkEqual(triangle:GetValue(), true, "opened by a click")
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("buttons_click: ok")

-- Value change notification as a script sees it: a click on a check box and the testing
-- module run only the first function, with no arguments, on a binding that outlives its
-- wrapper; errors go nowhere; a function that sets the value again ends the exchange.
require "zeblua.luaTestingSupport"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local send = luaTestingSupport.SendControlValueChangeMessage

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 60, 30))

-- Two functions on one check box: the first runs at each change, with no arguments; the
-- second is kept and never called.
local firstArgs, secondCalls = {}, 0
do
  local box = zebhost.newNode("UI_Checkbox", "box", rect(5, 5, 20, 20), root)
  checkEqual(box:NotifyWhenChanged(function(...)
    firstArgs[#firstArgs + 1] = select("#", ...)
  end), true, "registered")
  checkEqual(box:NotifyWhenChanged(function() secondCalls = secondCalls + 1 end), true,
    "a second function is accepted too")
end
collectgarbage("collect") -- the wrapper that registered both is gone

local box = zebhost.click(root, 10, 10)
checkEqual(box:UI_GetNodeID(), "box", "the click went to the box")
checkEqual(#firstArgs, 1, "a click toggles the box: one change")
checkEqual(zebhost.snapshot(box).state.checked, true, "checked")
checkEqual(firstArgs[1], 0, "a change function gets no arguments")
zebhost.click(root, 10, 10)
checkEqual(#firstArgs, 2, "toggled back: another change")
checkEqual(zebhost.snapshot(box).state.checked, false, "cleared")
zebhost.drag(root, 10, 10, 40, 10)
checkEqual(#firstArgs, 2, "a press released outside the box changes nothing")
checkEqual(zebhost.snapshot(box).state.checked, false, "still cleared")
send(box)
checkEqual(#firstArgs, 3, "the testing module sends a change as well")
checkEqual(secondCalls, 0, "the second function never runs")

-- A function that sets the value it already has does not loop: becoming unknown is one
-- change, and setting unknown again inside its own notification is none.
local view = zebhost.newNode("UI_InteractiveControlView", "view", rect(0, 0, 10, 10))
local calls = 0
view:NotifyWhenChanged(function()
  calls = calls + 1
  view:SetValueUnknown()
end)
send(view)
checkEqual(calls, 2, "the sent change, then the one to unknown, then nothing")
checkEqual(view:IsValueUnknown(), true, "unknown")
view:SetValueUnknown()
checkEqual(calls, 2, "no change, no notification")

-- Registered in a coroutine that is then collected, and sent from another: the function
-- runs on the main thread, where coroutine.running() is nil.
local threaded = zebhost.newNode("UI_ControlView")
local ranOnMain = {}
do
  local maker = coroutine.create(function()
    threaded:NotifyWhenChanged(function() ranOnMain[#ranOnMain + 1] = coroutine.running() == nil end)
    coroutine.yield()
  end)
  coroutine.resume(maker)
end
collectgarbage("collect")
send(threaded)
coroutine.wrap(function() send(threaded) end)()
checkEqual(table.concat({ tostring(ranOnMain[1]), tostring(ranOnMain[2]) }, " "), "true true",
  "on the main thread, sent from it and from a coroutine")

-- An error in the function goes nowhere; the caller's values and later changes are intact.
local plain = zebhost.newNode("UI_ControlView")
local raised = 0
plain:NotifyWhenChanged(function()
  raised = raised + 1
  error("change function failed")
end)
local before, after = "kept", nil
local results = select("#", send(plain))
after = "kept"
checkEqual(results, 0, "the sender answers nothing")
checkEqual(before .. after, "keptkept", "locals around the call are untouched")
send(plain)
checkEqual(raised, 2, "the function runs again at the next change")
local ok = pcall(send, plain)
check(ok, "the error never reaches the caller")

-- Arguments: wrappers only, functions only, controls only; a released wrapper answers false.
local okType, message = pcall(plain.NotifyWhenChanged, plain, nil)
check(not okType and message:find("function expected", 1, true), tostring(message))
okType, message = pcall(plain.NotifyWhenChanged, {}, function() end)
check(not okType and message:find("Bad user data", 1, true), tostring(message))
local sub = zebhost.newNode("UI_SubView")
okType, message = pcall(plain.NotifyWhenChanged, sub, function() end)
check(not okType and message:find("Invalid type conversion.", 1, true), tostring(message))
okType, message = pcall(send, sub)
check(not okType and message:find("Invalid type conversion.", 1, true), tostring(message))
checkEqual(#zebhost.assertReports(), 2, "the toolkit reports each failed conversion")
zebhost.clearAssertReports()
local released = zebhost.newNode("UI_ControlView")
released:Release()
checkEqual(released:NotifyWhenChanged(function() end), false, "false after Release")
checkEqual(select("#", send(released)), 0, "a released wrapper sends nothing")

-- The rest of the control view set: enabling, the unknown value, and focus drawing, whose
-- getter reads back the opposite of what was set.
local knob = zebhost.newNode("UI_Knob")
checkEqual(knob:GetEnabled(), true, "enabled at first")
knob:SetEnabled(nil)
checkEqual(knob:GetEnabled(), false, "a present nil disables")
checkEqual(zebhost.snapshot(knob).enabled, false, "the node is disabled")
knob:SetEnabled()
checkEqual(knob:GetEnabled(), true, "no argument enables")
checkEqual(knob:IsValueUnknown(), false, "a value is known at first")
checkEqual(knob:GetSuppressFocusDrawing(), true, "the flag is clear, the getter says true")
knob:SetSuppressFocusDrawing()
checkEqual(zebhost.snapshot(knob).state.suppressFocusDrawing, true, "set on the control")
checkEqual(knob:GetSuppressFocusDrawing(), false, "read back inverted")
knob:SetSuppressFocusDrawing(false)
checkEqual(knob:GetSuppressFocusDrawing(), true, "cleared, read back inverted")
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("notify_changes: ok")

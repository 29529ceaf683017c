-- Interactive change notification as a script sees it: drags and clicks driven through the
-- harness, and the phases sent by the testing module, each delivered as one message table
-- with a new wrapper of the control and the phase.
require "zeblua.luaTestingSupport"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local testing = luaTestingSupport

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 100, 40))

-- Records each call: the number of arguments and the message.
local function recorder(log)
  return function(...)
    log[#log + 1] = { n = select("#", ...), msg = (...) }
  end
end

local function phasesOf(log)
  local phases = {}
  for i, call in ipairs(log) do phases[i] = call.msg.changeMessage end
  return table.concat(phases, " ")
end

-- A drag on a knob: begin, one continue per step, finish. Registered through a wrapper that
-- is collected before the drag; the second function is never called.
local knobLog, secondCalls = {}, 0
do
  local knob = zebhost.newNode("UI_Knob", "knob", rect(0, 0, 30, 30), root)
  checkEqual(knob:NotifyWhenChangedInteractively(recorder(knobLog)), true, "registered")
  knob:NotifyWhenChangedInteractively(function() secondCalls = secondCalls + 1 end)
end
collectgarbage("collect")
local taker = zebhost.drag(root, 15, 15, 15, 35, 3)
checkEqual(taker:UI_GetNodeID(), "knob", "the knob took the press")
checkEqual(phasesOf(knobLog), "0 1 1 1 2", "begin, three continues, finish")
checkEqual(secondCalls, 0, "only the first function runs")
local message = getmetatable(knobLog[1].msg)
checkEqual(message, debug.getregistry().interactiveChangeMessage, "the message metatable")
for i, call in ipairs(knobLog) do
  checkEqual(call.n, 1, "one argument")
  checkEqual(call.msg.control:UI_GetNodeID(), "knob", "the control of call " .. i)
  if i > 1 then check(call.msg.control ~= knobLog[i - 1].msg.control, "a new wrapper each time") end
end
local last = knobLog[#knobLog].msg
checkEqual(last.changeMessage, last.finishChange, "the last call of a finished change")
checkEqual(last.beginChange .. last.continueChange .. last.cancelChange, "013",
  "the phase names answer through the metatable")
checkEqual(zebhost.snapshot(taker).state.inInteractiveChange, false, "the change is over")

-- A slider reports the same way; a press on a control already taken by a bound mouse
-- function begins nothing.
local slider = zebhost.newNode("UI_Slider", "slider", rect(40, 0, 50, 10), root)
local sliderLog = {}
slider:NotifyWhenChangedInteractively(recorder(sliderLog))
zebhost.drag(root, 45, 5, 85, 5, 2)
checkEqual(phasesOf(sliderLog), "0 1 1 2", "a slider drag")
slider:BindZebOperation("uiMouseEvent", function() return true end)
zebhost.drag(root, 45, 5, 85, 5, 2)
checkEqual(#sliderLog, 4, "the bound function took the press")

-- A click on a check box: begin, the value's change, finish.
local order = {}
local box = zebhost.newNode("UI_Checkbox", "box", rect(40, 20, 15, 15), root)
box:NotifyWhenChangedInteractively(function(msg) order[#order + 1] = msg.changeMessage end)
box:NotifyWhenChanged(function() order[#order + 1] = "changed" end)
zebhost.click(root, 45, 25)
checkEqual(table.concat(order, " "), "0 changed 2", "the value changes before the finish")

-- The testing module drives the phases in order; continue takes a number.
local sentLog = {}
local view = zebhost.newNode("UI_InteractiveControlView", "view")
view:NotifyWhenChangedInteractively(recorder(sentLog))
testing.SimulateBeginInteractiveChange(view)
testing.SimulateContinueInteractiveChange(view, 2.9)
testing.SimulateFinishInteractiveChange(view)
checkEqual(phasesOf(sentLog), "0 1 2", "sent phases")
checkEqual(sentLog[2].msg.control:UI_GetNodeID(), "view", "the sender's wrapper")
local ok, why = pcall(testing.SimulateContinueInteractiveChange, view)
check(not ok and why:find("number expected", 1, true), tostring(why))
ok, why = pcall(testing.SimulateBeginInteractiveChange, zebhost.newNode("UI_ControlView"))
check(not ok and why:find("Invalid type conversion.", 1, true), tostring(why))
ok, why = pcall(view.NotifyWhenChangedInteractively, zebhost.newNode("UI_ControlView"), print)
check(not ok and why:find("Invalid type conversion.", 1, true), tostring(why))
checkEqual(#zebhost.assertReports(), 2, "the toolkit reports each failed conversion")
zebhost.clearAssertReports()

-- A function that raises, or drops every reference to the control it can reach, harms
-- nobody: the tree holds the control through its own notification, and the error goes
-- nowhere.
local doomedCalls = 0
local held = zebhost.newNode("UI_SubView", "held", rect(0, 0, 20, 20))
local doomed = zebhost.newNode("UI_InteractiveControlView", "doomed", rect(0, 0, 10, 10), held)
doomed:NotifyWhenChangedInteractively(function(msg)
  doomedCalls = doomedCalls + 1
  msg.control:Release()
  doomed:Release()
  doomed = nil
  collectgarbage("collect")
  error("interactive function failed")
end)
testing.SimulateBeginInteractiveChange(doomed)
checkEqual(doomedCalls, 1, "ran once")
checkEqual(doomed, nil, "every wrapper of the script is gone")
local again = zebhost.click(held, 5, 5)
checkEqual(again:UI_GetNodeID(), "doomed", "the tree still holds the control")
checkEqual(doomedCalls, 3, "and it still notifies: the click's begin and finish")
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("notify_interactive: ok")

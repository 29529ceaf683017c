-- Script tables in the application's command chain, as the user's menu commands reach
-- them: attachments in the order registered, the first that handles a command ends the
-- walk, an unhandled one reaches the application, an error passes the command on.
require "zeblua.zebCmdAttachment"
local check, checkEqual = zebhost.check, zebhost.checkEqual

local SAVE, PRINT, BROKEN, MENU = 9101, 9102, 9103, 9104
local seen, taken = zebhost.recorder(" ")
local function saw(who, id) seen[#seen + 1] = who .. ":" .. id end

-- A handler that raises, registered first: every command passes through it and on.
local broken = {}
function broken:doCmdHandle(id)
  saw("broken", id)
  error("a script handler that fails")
end
function broken:doCmdEnable(id)
  saw("brokenEnable", id)
  error("an enable query that fails")
end
checkEqual(select("#", zebCmdAttachment.registerCmdAttachment(broken)), 0, "answers nothing")

local first = { name = "first" }
function first:doCmdHandle(id)
  saw(self.name, id)
  return { isHandled = id == SAVE }
end
function first:doCmdEnable(id)
  saw(self.name .. "Enable", id)
  if id == SAVE then return { isHandled = true, isEnabled = true, isChecked = false } end
  if id == MENU then return { isHandled = true, isEnabled = false, isChecked = true, newDisplayString = 5 } end
  if id == PRINT then return { isHandled = false, isEnabled = true, isChecked = true } end
  return nil
end
zebCmdAttachment.registerCmdAttachment(first)

local second = { name = "second" }
function second:doCmdHandle(id)
  saw(self.name, id)
  return { isHandled = id == PRINT and 1 or nil } -- any true value counts
end
zebCmdAttachment.registerCmdAttachment(second)

-- Handled by the first attachment: the chain stops there.
local handled, reachedApp = zebhost.postCommand(SAVE)
check(handled == true and reachedApp == false, "SAVE handled, the application not reached")
checkEqual(taken(), "broken:9101 first:9101", "the erroring one passed it on, the second never asked")

-- Handled by the second, with the colon form's self.
handled, reachedApp = zebhost.postCommand(PRINT)
check(handled and not reachedApp, "PRINT handled by the second")
checkEqual(taken(), "broken:9102 first:9102 second:9102", "in the order registered")

-- Nobody knows it: it goes all the way to the application.
handled, reachedApp = zebhost.postCommand(BROKEN)
check(handled == false and reachedApp == true, "unhandled, reached the application")
checkEqual(taken(), "broken:9103 first:9103 second:9103", "every attachment asked")

-- The enable query: the answers, the display string through tostring of a number, and a
-- table without doCmdEnable (second) never asked and never raising.
local state = zebhost.commandState(SAVE, "Save")
check(state.isHandled and state.isEnabled and not state.isChecked, "SAVE enabled, unchecked")
checkEqual(state.displayString, "Save", "no newDisplayString leaves the text")
checkEqual(taken(), "brokenEnable:9101 firstEnable:9101", "the erroring query passed it on")
state = zebhost.commandState(MENU, "Menu")
check(state.isHandled and not state.isEnabled and state.isChecked, "MENU disabled, checked")
checkEqual(state.displayString, "5", "newDisplayString 5 gives the text \"5\"")
taken()
state = zebhost.commandState(PRINT, "Print")
check(not state.isHandled and not state.isEnabled and not state.isChecked,
  "isHandled false leaves enabled and checked alone and passes it on")
checkEqual(state.displayString, "Print", "and the text")
checkEqual(taken(), "brokenEnable:9102 firstEnable:9102", "a result that is no table: not handled")

-- Wrong calls: no argument or two do nothing and answer nothing; a non-table raises.
checkEqual(select("#", zebCmdAttachment.registerCmdAttachment()), 0, "no argument: nothing")
local extra = { doCmdHandle = function() saw("extra", 0) return { isHandled = true } end }
checkEqual(select("#", zebCmdAttachment.registerCmdAttachment(extra, 1)), 0, "two: nothing")
zebhost.postCommand(BROKEN)
checkEqual(taken(), "broken:9103 first:9103 second:9103", "the table of the two-argument call was never attached")
local ok, message = pcall(zebCmdAttachment.registerCmdAttachment, 42)
check(not ok and message:find("table expected, got number", 1, true), tostring(message))

-- The same table twice is two attachments, and a handler's frame is its own: a command
-- posted from inside a handler leaves the outer handler's locals and stack alone.
local twice = { count = 0 }
function twice:doCmdHandle(id)
  if id ~= 9200 then return nil end
  self.count = self.count + 1
  return { isHandled = false }
end
zebCmdAttachment.registerCmdAttachment(twice)
zebCmdAttachment.registerCmdAttachment(twice)
zebhost.postCommand(9200)
checkEqual(twice.count, 2, "registered twice, asked twice")
taken()
local nested = {}
function nested:doCmdHandle(id)
  if id ~= 9300 then return nil end
  local a, b = "kept", 7
  local innerHandled = zebhost.postCommand(SAVE)
  return { isHandled = innerHandled and a == "kept" and b == 7 }
end
zebCmdAttachment.registerCmdAttachment(nested)
checkEqual(select("#", zebhost.postCommand(9300)), 2, "postCommand answers two values")
check((zebhost.postCommand(9300)), "the nested post kept the outer handler's frame")

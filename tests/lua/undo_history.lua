-- Undo and redo of steps whose work is a script's table: the table is self, a missing
-- method does nothing, a disabled restorer is never called, and ten steps undone and
-- redone leave the script's state as it was.
local check, checkEqual = zebhost.check, zebhost.checkEqual

checkEqual(type(zebUndoAction), "table", "the host opened zebUndoAction")
checkEqual(next(zebUndoAction), nil, "an empty table")
checkEqual(type(zebLuaStateRestorer), "table", "and zebLuaStateRestorer")
checkEqual(next(zebLuaStateRestorer), nil, "empty too")

local log, taken = zebhost.recorder(" ")

-- The table is the only argument: a colon method sees self.
local step = { name = "step" }
function step:handleActionUndo(...)
  log[#log + 1] = "undo:" .. self.name .. ":" .. select("#", ...) .. ":" .. tostring(self == step)
end
function step:handleActionRedo(...)
  log[#log + 1] = "redo:" .. self.name .. ":" .. select("#", ...)
end
zebhost.addUndoAction(step, "Step")
checkEqual(zebhost.undo(), true, "a step was undone")
checkEqual(taken(), "undo:step:0:true", "handleActionUndo(self), no further arguments")
checkEqual(zebhost.undo(), false, "nothing left to undo")
checkEqual(zebhost.redo(), true, "redone")
checkEqual(taken(), "redo:step:0", "handleActionRedo(self)")
checkEqual(zebhost.redo(), false, "nothing left to redo")

-- Only handleActionUndo: redo does nothing visible and raises nothing.
local undoOnly = {}
function undoOnly:handleActionUndo() log[#log + 1] = "undoOnly" end
zebhost.addUndoAction(undoOnly)
check(zebhost.undo() and taken() == "undoOnly", "undo calls it")
check(zebhost.redo(), "redo still moves the step")
checkEqual(taken(), "", "with no method, nothing ran")

-- A method that raises: the error is dropped and the history moves on.
zebhost.addUndoAction({ handleActionUndo = function() error("fails") end })
checkEqual(zebhost.undo(), true, "an erroring undo still counts as a step taken")
local undoCount, redoCount = zebhost.undoCounts()
check(undoCount >= 1 and redoCount == 1, "the failed step went to the redo side")

-- A new action drops what could be redone.
zebhost.addUndoAction({})
undoCount, redoCount = zebhost.undoCounts()
checkEqual(redoCount, 0, "a new step clears the redo side")

-- Restorers: after the step's action, on undo and redo; a disabled one is never called.
zebhost.clearUndo()
checkEqual(select(1, zebhost.undoCounts()), 0, "cleared")
local action = { handleActionUndo = function() log[#log + 1] = "A-undo" end,
  handleActionRedo = function() log[#log + 1] = "A-redo" end }
local restorer = { restoreState = function(self) log[#log + 1] = "restore:" .. tostring(self.tag) end, tag = "r" }
local disabled = { restoreState = function() log[#log + 1] = "DISABLED CALLED" end }
zebhost.addUndoAction(action, "with restorers")
zebhost.addStateRestorer(restorer)
zebhost.addStateRestorer(disabled, true)
zebhost.undo()
checkEqual(taken(), "A-undo restore:r", "undo, then the restorer with self; the disabled one silent")
zebhost.redo()
checkEqual(taken(), "A-redo restore:r", "redo, then the restorer again")

-- A callback that undoes from inside an undo does nothing, and keeps its own frame.
zebhost.clearUndo()
local reentrant = {}
function reentrant:handleActionUndo()
  local a, b = 1, 2
  local inner = zebhost.undo()
  log[#log + 1] = tostring(inner) .. ":" .. (a + b)
end
zebhost.addUndoAction(reentrant)
zebhost.undo()
checkEqual(taken(), "false:3", "no nested undo; the frame kept")

-- Ten actions in a row, each adding its number to a script total.
zebhost.clearUndo()
local total, history = 0, {}
for i = 1, 10 do
  total = total + i
  history[#history + 1] = total
  zebhost.addUndoAction({
    handleActionUndo = function() total = total - i end,
    handleActionRedo = function() total = total + i end,
  }, "add " .. i)
end
checkEqual(total, 55, "all ten done")
for i = 10, 1, -1 do
  check(zebhost.undo(), "undo " .. i)
  checkEqual(total, history[i - 1] or 0, "after undoing step " .. i)
end
checkEqual(total, 0, "everything undone")
for i = 1, 10 do
  check(zebhost.redo(), "redo " .. i)
  checkEqual(total, history[i], "after redoing step " .. i)
end
checkEqual(total, 55, "and back as it was")
undoCount, redoCount = zebhost.undoCounts()
check(undoCount == 10 and redoCount == 0, "ten to undo, none to redo")

-- Trimming drops the oldest steps, and their tables with them.
local weak = setmetatable({}, { __mode = "v" })
zebhost.clearUndo()
for i = 1, 4 do
  local t = { handleActionUndo = function() log[#log + 1] = "u" .. i end }
  weak[i] = t
  zebhost.addUndoAction(t)
end
zebhost.trimUndo(2)
checkEqual(select(1, zebhost.undoCounts()), 2, "two steps kept")
collectgarbage("collect")
check(weak[1] == nil and weak[2] == nil, "the trimmed steps' tables were released")
check(weak[3] ~= nil and weak[4] ~= nil, "the kept ones live")
zebhost.undo(); zebhost.undo()
checkEqual(zebhost.undo(), false, "only two to undo")
checkEqual(taken(), "u4 u3", "newest first")
zebhost.clearUndo()
collectgarbage("collect")
check(weak[3] == nil and weak[4] == nil, "clearing released the rest")

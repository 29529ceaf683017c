-- Bound input operations driven as a user would: what each function receives, how its
-- answer stops or lets an event bubble, resizing, focus reasons and the cursor.
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local keys, focus, mouse = zebhost.keys, zebhost.focus, zebhost.mouse

local newNode = zebhost.newNode

-- root 60 x 40 > parent (whole root) > child at (10, 10), 20 x 20
local root = newNode("UI_SubView", "root", rect(0, 0, 60, 40))
local parent = newNode("UI_SubView", "parent", rect(0, 0, 60, 40), root)
local child = newNode("UI_Button", "child", rect(10, 10, 20, 20), parent)

-- Keys: nil from the child lets the key bubble to the parent; true or an error stops it.
local childAnswer, parentSaw
child:BindZebOperation("uiKeyboardEvent", function(target, event)
  if childAnswer == "raise" then error("key handler failed") end
  return childAnswer
end)
parent:BindZebOperation("uiKeyboardEvent", function(target, event)
  parentSaw = target:UI_GetNodeID() .. ":" .. string.char(event.character)
  return true
end)
child:UI_GainKeyboardFocus(focus.kProgram)
for _, case in ipairs({ { nil, "parent", "child:a" }, { true, "child" }, { "raise", "child" } }) do
  childAnswer, parentSaw = case[1], nil
  local taker = zebhost.sendKey({ keyCode = keys.kA, character = "a" })
  checkEqual(taker and taker:UI_GetNodeID(), case[2], "taker for " .. tostring(case[1]))
  checkEqual(parentSaw, case[3], "parent's view for " .. tostring(case[1]))
end
childAnswer = nil
checkEqual(zebhost.type("b"):UI_GetNodeID(), "parent", "typed keys bubble the same way")
checkEqual(parentSaw, "child:b", "typed character")

-- "uiMouseEvent" gets the event alone, "uiPreMouseEvent" the target first; positions are
-- the node's own.
local mouseArgs, preArgs = {}, {}
child:BindZebOperation("uiMouseEvent", function(...)
  mouseArgs[#mouseArgs + 1] = { n = select("#", ...), event = (...) }
  return true
end)
child:BindZebOperation("uiPreMouseEvent", function(...)
  local target, event = ...
  preArgs[#preArgs + 1] = { n = select("#", ...), target = target:UI_GetNodeID(), event = event }
end)
local taker = zebhost.click(root, 15, 17)
checkEqual(taker:UI_GetNodeID(), "child", "the click's taker")
local down
for _, call in ipairs(mouseArgs) do
  checkEqual(call.n, 1, "uiMouseEvent arguments")
  if call.event.action == mouse.kDown then down = call.event end
end
check(down, "the child got the down")
checkEqual(tostring(down.position), "{x=5, y=7}", "the down in the child's coordinates")
check(#preArgs > 0, "uiPreMouseEvent ran")
for _, call in ipairs(preArgs) do
  checkEqual(call.n, 2, "uiPreMouseEvent arguments")
  checkEqual(call.target, "child", "uiPreMouseEvent target")
end

-- A script's own UI_DoMouseEvent reaches the bound function.
mouseArgs = {}
child:UI_DoMouseEvent(child, zeblua_CreateNewZEBUIMouseEvent(mouse.kDown, 1, 2, 3, 4, 0, 0, 0))
checkEqual(#mouseArgs, 1, "UI_DoMouseEvent reaches uiMouseEvent")
checkEqual(mouseArgs[1].event.clickCount, 2, "the script's event")

-- Drags go to the node that took the down even outside it (implicit capture), and the
-- node under the pointer sees enter and exit.
mouseArgs = {}
local enters = {}
parent:BindZebOperation("uiMouseEvent", function(event)
  if event.action == mouse.kEnter or event.action == mouse.kExit then
    enters[#enters + 1] = event.action
  end
end)
zebhost.drag(root, 15, 15, 55, 35, 4)
local last = mouseArgs[#mouseArgs].event
checkEqual(last.action, mouse.kUp, "the up goes to the capturing child")
checkEqual(tostring(last.position), "{x=45, y=25}", "outside the child, in its coordinates")
enters = {}
zebhost.sendMouse(root, zeblua_CreateNewZEBUIMouseEvent(mouse.kMove, 0, 0, 50, 35, 0, 0, 0))
zebhost.sendMouse(root, zeblua_CreateNewZEBUIMouseEvent(mouse.kMove, 0, 0, 15, 15, 0, 0, 0))
checkEqual(table.concat(enters, ","), mouse.kEnter .. "," .. mouse.kExit,
  "the parent is entered, then left for the child")

-- The cursor: asked on moves, with the point in the node's coordinates and the modifiers.
local cursorAt
child:BindZebOperation("uiDoCursor", function(point, modifiers)
  cursorAt = tostring(point) .. " " .. modifiers
  return true
end)
zebhost.sendMouse(root, zeblua_CreateNewZEBUIMouseEvent(mouse.kMove, 0, 0, 12, 13, 9, 0, 0))
checkEqual(cursorAt, "{x=2, y=3} 9", "uiDoCursor")

-- Resizing fires "uiSizeChanged" with the new frame; a move alone does not.
local sizes = {}
child:BindZebOperation("uiSizeChanged", function(...)
  sizes[#sizes + 1] = tostring(select(1, ...)) .. "/" .. select("#", ...)
end)
child:UI_SetLocalRectF(rect(10, 10, 25, 20))
child:UI_SetLocalRectF(rect(12, 12, 25, 20))
checkEqual(table.concat(sizes, " "), "{left=10, top=10, width=25, height=20}/1", "size changes")

-- Focus moves report their reasons: a program, a click, the tab key and back.
local reasons = {}
local function recordFocus(node)
  node:BindZebOperation("uiFocusChange", function(reason)
    reasons[#reasons + 1] = node:UI_GetNodeID() .. reason
  end)
end
recordFocus(child)
recordFocus(parent)
child:UI_GainKeyboardFocus(focus.kProgram)
reasons = {}
parent:BindZebOperation("uiMouseEvent", function() return true end)
zebhost.click(root, 50, 35)
child:BindZebOperation("uiKeyboardEvent", function() end)
parent:BindZebOperation("uiKeyboardEvent", function() end)
zebhost.sendKey({ keyCode = keys.kTab })
zebhost.sendKey({ keyCode = keys.kTab, modKey = zebhost.modifiers.kShift })
checkEqual(table.concat(reasons, " "),
  string.format("child%d parent%d parent%d child%d child%d parent%d", focus.kMouse, focus.kMouse,
    focus.kTabForward, focus.kTabForward, focus.kTabBackward, focus.kTabBackward),
  "focus reasons")
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("bind_input: ok")

-- Popup windows as a user meets them: where they appear, their owner and child window,
-- activation, keys, the close request and the command chain, each through the functions
-- a script binds.
require "zeblua.zebcontrols"
require "zeblua.inkwell.zebSurfaceInterface"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local state, raises = zebhost.stateOf, zebhost.checkRaises
local point, rect = zeblua_CreateNewPointF32, zeblua_CreateNewRectF32
local C = zebcontrols

local supplier
zebhost.canvas(1, 1, function(ink) supplier = ink:GetSupplier() end)

-- A new popup: {0, 0, 100, 100}, a shadowed panel that works while a dialog runs, at the
-- pop-up menu level, or the floating level when asked.
local popup = C.NewPopupWindow(supplier)
popup:UI_SetNodeID("popup")
local r = popup:UI_GetGlobalStructureRect()
checkEqual(zebhost.rectText(r), "0 0 100 100", "a new popup's rect")
local s = state(popup)
checkEqual(s.platformClass, "ZEBMacPanelWindow", "a panel")
check(s.hasShadow and s.worksWhenModal, "with a shadow, working when modal")
checkEqual(s.level, 101, "the pop-up menu level")
checkEqual(state(C.NewPopupWindow(supplier, true)).level, 3, "the floating level")
popup:UI_SetGlobalStructureRect(rect(10.7, 20, 30, 40.9))
r = popup:UI_GetGlobalStructureRect()
checkEqual(zebhost.rectText(r), "10 20 30 40", "whole numbers")

-- The constants are fields of every popup.
checkEqual(table.concat({ popup.kUIKeyboardEvent, popup.kUI_ActivationChanged,
  popup.kOnCloseIfPopup, popup.kDuringClose }, " "),
  "uiKeyboardEvent UI_ActivationChanged OnCloseIfPopup duringClose", "operation names")
checkEqual(popup.kWindowActivation_ACTIVATED .. popup.kWindowActivation_CLICK_ACTIVATED ..
  popup.kWindowActivation_DEACTIVATED, "012", "activation numbers")

-- Owners: a window's wrapper owns; nothing, nil or a released wrapper detach; a table is
-- "Bad user data", a node that is no window the conversion error.
local owner = C.NewDialog(supplier, "Owner", point(0, 0), point(1, 1), nil)
owner:UI_SetNodeID("owner")
popup:SetOwner(owner)
checkEqual(state(popup).ownerWindow, "owner", "owned")
checkEqual(state(owner).ownedCount, 1, "the owner knows it")
popup:SetOwner()
checkEqual(state(popup).ownerWindow, nil, "SetOwner() clears")
checkEqual(state(owner).ownedCount, 0, "on both sides")
popup:SetOwner(owner)
popup:SetOwner(nil)
checkEqual(state(popup).ownerWindow, nil, "SetOwner(nil) clears")
popup:SetOwner(owner)
popup:SetOwner(5)
checkEqual(state(popup).ownerWindow, nil, "anything that is no userdata clears")
local released = C.NewPopupWindow(supplier)
released:Release()
popup:SetOwner(owner)
popup:SetOwner(released)
checkEqual(state(popup).ownerWindow, nil, "a released wrapper clears, as an empty userdata does")
raises("Bad user data", popup.SetOwner, popup, newproxy(true))
raises("Invalid type conversion.", popup.SetOwner, popup, C.NewTextButton())

-- Shown with an owner, it is a child window above the owner's; hidden, it leaves it; a
-- second hide has no parent to tell.
popup:SetOwner(owner)
popup:UI_Show(true)
checkEqual(state(popup).parentWindow, "owner", "attached to the owner's window")
checkEqual(state(owner).childWindowCount, 1, "the owner's child")
popup:UI_Show(false)
checkEqual(state(popup).parentWindow, nil, "detached when hidden")
popup:UI_Show(false)
checkEqual(state(owner).childWindowCount, 0, "nothing left attached")
-- An owner that dies leaves no owner behind.
do
  local shortLived = C.NewPopupWindow(supplier)
  popup:SetOwner(shortLived)
  popup:UI_Show(true)
end
collectgarbage("collect")
checkEqual(state(popup).ownerWindow, nil, "the dead owner was cleared")
checkEqual(state(popup).parentWindow, nil, "and its window let the child go")
popup:UI_Show(false)

-- Activation: 0 for UI_Activate, 2 to the window that was active, 1 for a click in an
-- inactive window; nothing for the active one again. The base is never asked, errors go
-- nowhere, and the caller's frame is kept.
local log, taken = zebhost.recorder(" ")
popup:BindPopupWindowOperation(popup.kUI_ActivationChanged, function(a) log[#log + 1] = "p" .. a end)
local second = C.NewPopupWindow(supplier)
second:UI_SetLocalRectF(rect(0, 0, 40, 40))
second:BindPopupWindowOperation("UI_ActivationChanged", function(a)
  log[#log + 1] = "s" .. a
  error("an activation function that fails")
end)
popup:UI_Activate()
checkEqual(taken(), "p0", "activation reports 0")
check(state(popup).active and zebhost.snapshot(popup, 0).focus, "active, with the keyboard focus")
popup:UI_Activate()
checkEqual(taken(), "", "the active window again: nothing")
local function activateKeepingLocals()
  local a, b = "kept", 2
  second:UI_Activate()
  return a .. b
end
checkEqual(activateKeepingLocals(), "kept2", "the caller's frame survived the callbacks")
checkEqual(taken(), "p2 s0", "the old one deactivated, the new one activated; the error dropped")
popup:UI_SetLocalRectF(rect(0, 0, 40, 40))
zebhost.click(popup, 5, 5)
checkEqual(taken(), "s2 p1", "a click in the inactive popup")

-- Keys: the bound function first; a true value takes the key, nil lets the window's own
-- handling see it (here the node's bound operation), an error counts as taken.
local nodeSaw = 0
popup:BindZebOperation("uiKeyboardEvent", function() nodeSaw = nodeSaw + 1 end)
local answer
popup:BindPopupWindowOperation(popup.kUIKeyboardEvent, function(target, event)
  log[#log + 1] = target:UI_GetNodeID() .. ":" .. event.keyCode
  if answer == "error" then error("a key function that fails") end
  return answer
end)
local key = { keyCode = zebhost.keys.kA }
answer = true
checkEqual(zebhost.sendKey(key, popup):UI_GetNodeID(), "popup", "taken by the popup")
checkEqual(taken() .. " " .. nodeSaw, "popup:" .. zebhost.keys.kA .. " 0", "the base never saw it")
answer = nil
zebhost.sendKey(key, popup)
checkEqual(nodeSaw, 1, "nil: the base saw it")
answer = "error"
check(zebhost.sendKey(key, popup) ~= nil, "an error counts as taken")
checkEqual(nodeSaw, 1, "and the base did not see it")
taken()

-- The close request: only the boolean true closes.
checkEqual(zebhost.closeIfPopup(second), false, "nothing bound: stays")
local closeAnswer
second:BindPopupWindowOperation(second.kOnCloseIfPopup, function() return closeAnswer end)
second:UI_Show(true)
for _, row in ipairs({ { 1, false }, { "true", false }, { nil, false }, { true, true } }) do
  closeAnswer = row[1]
  checkEqual(zebhost.closeIfPopup(second), row[2], "OnCloseIfPopup answering " .. tostring(row[1]))
end
checkEqual(zebhost.snapshot(second, 0).shown, false, "closed: hidden")
second:BindPopupWindowOperation(second.kOnCloseIfPopup, function() error("fails") end)
checkEqual(zebhost.closeIfPopup(second), false, "an error: stays")
-- duringClose can be bound and is never called.
second:BindPopupWindowOperation(second.kDuringClose, function() log[#log + 1] = "duringClose" end)
zebhost.closeIfPopup(second)
second:UI_Show(false)
checkEqual(taken(), "", "duringClose never ran")

-- A second binding of a name releases the first.
local weak = setmetatable({}, { __mode = "v" })
do
  local first = function() end
  weak[1] = first
  second:BindPopupWindowOperation("cmdHandler", first)
  second:BindPopupWindowOperation("cmdHandler", function() end)
end
collectgarbage("collect")
checkEqual(weak[1], nil, "the replaced function was released")
raises("bad argument #3", second.BindPopupWindowOperation, second, "cmdHandler", 5)
raises("bad argument #2", second.BindPopupWindowOperation, second, nil, print)

-- Commands: a popup set as the command handler receives a posted command first; only the
-- boolean true handles it, and its enablement answer is used.
local CMD = 7001
popup:BindPopupWindowOperation("cmdHandler", function(id)
  log[#log + 1] = "handler:" .. id
  if id == CMD then return true end
  if id == CMD + 1 then return 1 end
  error("unknown command")
end)
popup:BindPopupWindowOperation("cmdEnablement", function(id)
  if id == CMD then return { isHandled = true, isEnabled = true, isChecked = true, newDisplayString = "Popup" } end
  if id == CMD + 1 then return { isHandled = false, isEnabled = true } end
  return 42
end)
local handled, reachedApp = zebhost.postCommand(CMD)
check(not handled and reachedApp, "before SetAsCommandHandler the popup is not asked")
checkEqual(taken(), "", "not asked")
popup:SetAsCommandHandler()
handled, reachedApp = zebhost.postCommand(CMD)
check(handled and not reachedApp, "the popup handled the posted command")
checkEqual(taken(), "handler:" .. CMD, "with the command id")
handled, reachedApp = zebhost.postCommand(CMD + 1)
check(not handled and reachedApp, "1 is no true: passed on to the application")
handled, reachedApp = zebhost.postCommand(CMD + 2)
check(not handled and reachedApp, "an error: passed on")
taken()
local st = zebhost.commandState(CMD, "Old")
check(st.isHandled and st.isEnabled and st.isChecked, "the enablement answer is used")
checkEqual(st.displayString, "Popup", "with its display string")
st = zebhost.commandState(CMD + 1, "Old")
check(not st.isHandled and not st.isEnabled, "isHandled false writes nothing")
checkEqual(st.displayString, "Old", "and keeps the text")
checkEqual(zebhost.commandState(CMD + 2).isHandled, false, "a result that is no table")

-- A handler that drops the last reference to its own window mid-command is safe, and a
-- dead window is no longer the handler.
local doomed = C.NewPopupWindow(supplier)
doomed:BindPopupWindowOperation("cmdHandler", function(id)
  doomed = nil
  collectgarbage("collect")
  return id == CMD
end)
doomed:SetAsCommandHandler()
handled = zebhost.postCommand(CMD)
check(handled, "handled while its window was let go")
collectgarbage("collect")
handled, reachedApp = zebhost.postCommand(CMD)
check(not handled and reachedApp, "the dead window left the chain: the application alone")

-- A popup draws its content with the supplier it was made with.
local canvas = C.NewPopupWindow(supplier)
canvas:BindZebOperation("uiDraw", function(ink)
  ink:GetSurface():PaintRect(rect(0, 0, 100, 100), zeblua_CreateNewRGBA(0, 0, 1, 1))
  return true
end)
local pr, pg, pb = zebhost.draw(canvas):pixel(50, 50)
check(pr < 25 and pg < 25 and pb > 230, "the popup's content drew blue")

-- A tab well as a user clicks it: a click makes a tab the front-most and tells the action
-- function, a close box and the right button report with the tab's rect, and numbers out
-- of range answer nothing.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local C = zebcontrols

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 300, 100))
local well = C.NewTabWell()
well:UI_SetLocalRectF(rect(0, 0, 300, 100))
root:ChildPushBack(well)
checkEqual(well.kTabItemAction_Click .. well.kTabItemFrameDrag_Click .. well.kTabItemAction_Close,
  "023", "the constants are fields of every well")
checkEqual(well.kTabItemAction_ContextMenu + well.kTabItemAction_WheelScroll, 21, "10 and 11")

-- Tabs are numbered from 0 and inserted where asked.
well:AddTab(0, "One", false, false)
well:AddTab(1, "Two", true, false)
well:AddTab(1, "Mid", false, false)
checkEqual(well:GetTabItemText(0) .. well:GetTabItemText(1) .. well:GetTabItemText(2), "OneMidTwo",
  "in order")
checkEqual(select("#", well:GetTabItemText(3)), 0, "a tab out of range: nothing")
checkEqual(select("#", well:GetTabItemText(-1)), 0, "a negative tab: nothing")

local log, taken = zebhost.recorder(" | ")
well:SetTabItemActionFunction(function(...)
  local args = { ... }
  local r = args[3]
  log[#log + 1] = table.concat({ select("#", ...), args[1], args[2],
    r and string.format("%d,%d,%d,%d", r.left, r.top, r.width, r.height) or "-" }, " ")
end)

-- SetFrontmost: in range it moves the front-most tab, out of range nothing happens.
well:SetFrontmost(0)
checkEqual(taken(), "2 7 0 -", "BecomeFrontmost, with no rect")
well:SetFrontmost(-1)
well:SetFrontmost(3)
checkEqual(taken(), "", "out of range: nothing")
checkEqual(zebhost.snapshot(well).state.frontmost, 0, "still the first")

-- A click on the third tab: Click, then the front-most moves.
zebhost.click(root, 180, 10)
checkEqual(taken(), "2 0 2 - | 2 8 0 - | 2 7 2 -", "click, old one back, new one front")
local state = zebhost.snapshot(well).state
checkEqual(state.frontmost, 2, "the clicked tab is front-most")
checkEqual(table.concat(state.tabs, ","), "One,Mid,Two", "the snapshot lists the tabs")
-- Its close box reports Close with the tab's rect in the well; the tab stays until removed.
zebhost.click(root, 230, 10)
checkEqual(taken(), "3 3 2 160,0,80,20", "close, with the rect")
-- The right button asks for the context menu, with the rect.
local down = zeblua_CreateNewZEBUIMouseEvent(zebhost.mouse.kDown, zebhost.buttons.kRight, 1, 100, 10, 0, 0, 0)
zebhost.sendMouse(root, down)
zebhost.sendMouse(root, zeblua_CreateNewZEBUIMouseEvent(zebhost.mouse.kUp, zebhost.buttons.kRight,
  1, 100, 10, 0, 0, 0))
checkEqual(taken(), "3 10 1 80,0,80,20", "context menu of the middle tab")

-- A function that raises changes nothing; a later function replaces the first.
well:SetTabItemActionFunction(function() error("no") end)
zebhost.click(root, 20, 10)
checkEqual(zebhost.snapshot(well).state.frontmost, 0, "the click still moved the front-most")
local replaced = 0
well:SetTabItemActionFunction(function() replaced = replaced + 1 end)
well:RemoveTab(0)
checkEqual(well:GetTabItemText(0), "Mid", "removed")
checkEqual(zebhost.snapshot(well).state.frontmost, -1, "the front-most went with it")
well:RemoveTab(7)
well:SetFrontmost(1)
checkEqual(replaced, 1, "the replacing function heard it")

-- Flags: SetShowTabsOnly with no argument clears.
well:SetShowTabsOnly(true)
checkEqual(zebhost.snapshot(well).state.tabsOnly, true, "tabs only")
well:SetShowTabsOnly()
checkEqual(zebhost.snapshot(well).state.tabsOnly, false, "no argument clears it")

-- The action function needs a well that zebcontrols made; the others work on any well.
local plain = zebhost.newNode("UI_TabWell")
plain:AddTab(0, "x", false, false)
checkEqual(plain:GetTabItemText(0), "x", "tab methods on a plain well")
local ok, message = pcall(plain.SetTabItemActionFunction, plain, function() end)
check(not ok and message:find("Invalid type conversion.", 1, true), "not on a plain well")
ok, message = pcall(well.SetTabItemActionFunction, well, {})
check(not ok and message:find("function expected", 1, true), "a function is needed")

-- An action function may take the well out of its tree and drop every wrapper of it in
-- the middle of the click's actions.
local doomed = C.NewTabWell()
doomed:UI_SetLocalRectF(rect(0, 0, 300, 100))
root:ChildPushBack(doomed)
doomed:AddTab(0, "a", false, false)
local heard = 0
doomed:SetTabItemActionFunction(function(action)
  heard = heard + 1
  if action == 0 then
    root:ChildRemove(doomed)
    doomed:Release()
    doomed = nil
    collectgarbage("collect")
  end
end)
zebhost.click(root, 20, 10)
collectgarbage("collect")
checkEqual(heard, 2, "Click, then BecomeFrontmost on the well nobody holds any more")
print("containers_tabs: ok")

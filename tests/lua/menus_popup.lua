-- Native menus built by a script, numbered from 0, and run as popup and context menus that
-- a person answers with the id of the item chosen.
require "zeblua.OSMenu"
require "zeblua.zebcontrols"
local check, checkEqual, count = zebhost.check, zebhost.checkEqual, zebhost.count
local rect, point = zeblua_CreateNewRectF32, zeblua_CreateNewPointF32

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 200, 100))
local button = zebcontrols.NewTextButton()
button:UI_SetNodeID("menuButton")
root:ChildPushBack(button)

-- The forms of AppendItem.
local m = OSMenu.CreateOSMenu()
check(tostring(m):match("^OSMenu%(0?x?%x+%)$"), tostring(m))
checkEqual(m:Size(), 0, "a new menu is empty")
m:AppendItem("plain")                 -- item 0, id 0
m:AppendItem("five", 5)               -- item 1, id 5
m:AppendItem("quoted", "7")           -- item 2: a numeric string is an id
local sub = OSMenu.CreateOSMenu()
sub:AppendItem("inner", 30)
m:AppendItem("with id and submenu", 8, sub) -- item 3
m:AppendItem("submenu only", sub)     -- item 4, id 0
m:AppendSeparator(0)                  -- item 5
m:AppendItem("ignored fourth", 9, sub, "x") -- item 6: five values, so no submenu
checkEqual(m:Size(), 7, "seven items")
checkEqual(count(m:GetItemSubMenu(0)), 0, "no submenu: no value")
check(m:GetItemSubMenu(3) ~= nil, "id and submenu")
check(m:GetItemSubMenu(4) ~= nil, "submenu without id")
checkEqual(count(m:GetItemSubMenu(6)), 0, "a submenu behind four values is dropped")
checkEqual(m:GetItemSubMenu(3):Size(), 1, "the submenu itself")
checkEqual(m:IsItemSeparator(5), true, "item 5 is the separator")
checkEqual(m:IsItemSeparator(0), false, "item 0 is not")
checkEqual(m:IsItemSeparator(99), false, "no item there")

-- A popup answered with an item's id returns it; ids count, item numbers do not.
local function popup(answer)
  if answer then zebhost.answer(answer) end
  return OSMenu.UI_DoPopupMenu(m, button, rect(1, 2, 30, 40))
end
checkEqual(popup(5), 5, "the item with id 5")
checkEqual(popup(7), 7, 'the id given as "7"')
checkEqual(popup(1), 0, "1 is an item number, not an id")
checkEqual(popup(30), 30, "an id inside a submenu")
local run = zebhost.lastMenuRun()
checkEqual(run.node, "menuButton", "over the control")
checkEqual(run.place.left, 1, "at the rectangle")
checkEqual(run.place.height, 40, "its size too")
checkEqual(run.size, 7, "with the menu's items")
checkEqual(popup(8), 0, "an item that opens a submenu is not chosen itself")

-- Enabled state: the flag is true unless exactly three values are on the stack.
m:SetItemEnabled(1, false)
checkEqual(popup(5), 0, "a disabled item can't be chosen")
m:SetItemEnabled(1)
checkEqual(popup(5), 5, "enabled again by default")
m:SetItemEnabled(1, false, 0)
checkEqual(popup(5), 5, "a fourth value makes the flag true")
m:SetItemEnabled(3, false)
m:SetItemEnabled(4, false)
checkEqual(popup(30), 0, "a disabled submenu's items can't be chosen")
m:SetItemEnabled(4, true)
checkEqual(popup(30), 30, "reachable through the other item")

-- SetItemID renumbers an item; SetItemIDSubMenu gives the items with an id a submenu.
m:SetItemID(0, 40)
checkEqual(popup(40), 40, "item 0 now has id 40")
local extra = OSMenu.CreateOSMenu()
extra:AppendItem("extra", 50)
m:SetItemIDSubMenu(40, extra)
checkEqual(m:GetItemSubMenu(0):Size(), 1, "item 0 opens the new submenu")
checkEqual(popup(50), 50, "its item can be chosen")

-- A cancelled run answers 0, as a dismissed menu does.
zebhost.clearAssertReports()
checkEqual(popup(), 0, "nothing queued: dismissed")
zebhost.answer(-1)
checkEqual(popup(), 0, "an id nobody has")

-- The context menu at a point.
zebhost.answer(5)
checkEqual(OSMenu.UI_DoContextMenu(m, button, point(12, 13)), 5, "a context menu's choice")
run = zebhost.lastMenuRun()
checkEqual(run.place.left, 12, "at the point")
checkEqual(run.place.width, 0, "a point has no size")

-- A submenu outlives the script's proxies: the parent menu holds it.
local holder = OSMenu.CreateOSMenu()
do
  local child = OSMenu.CreateOSMenu()
  child:AppendItem("kept", 70)
  holder:AppendItem("child", 1, child)
  child:Release()
  checkEqual(count(child:Size()), 0, "a released proxy answers nothing")
end
collectgarbage()
collectgarbage()
local again = holder:GetItemSubMenu(0)
checkEqual(again:Size(), 1, "the submenu lives on in its parent")
zebhost.answer(70)
checkEqual(OSMenu.UI_DoPopupMenu(holder, button, rect(0, 0, 1, 1)), 70, "and runs")

-- Release: empty from then on, but still printable; Release and __gc drop once.
local gone = OSMenu.CreateOSMenu()
gone:Release()
check(tostring(gone):find("^OSMenu%("), "tostring still works: " .. tostring(gone))
gone:Release()
for _, call in ipairs({
  function() return gone:Size() end, function() return gone:AppendItem("x") end,
  function() return gone:IsItemSeparator(0) end, function() return gone:GetItemSubMenu(0) end,
  function() return OSMenu.UI_DoPopupMenu(gone, button, rect(0, 0, 1, 1)) end,
}) do
  checkEqual(count(call()), 0, "a released menu answers nothing")
end

-- Faults: a non-menu first argument, a non-control second, wrong types.
local faults = {
  { function() OSMenu.CreateOSMenu().Size({}) end, "OSMenu expected" },
  { function() m:AppendItem() end, "string expected" },
  { function() m:AppendItem("x", {}) end, "OSMenu expected" },
  { function() m:AppendItem("x", 1, {}) end, "OSMenu expected" },
  { function() m:AppendSeparator() end, "number expected" },
  { function() m:SetItemEnabled("x") end, "number expected" },
  { function() m:SetItemID(1) end, "number expected" },
  { function() m:SetItemIDSubMenu(1, 2) end, "OSMenu expected" },
  { function() OSMenu.UI_DoPopupMenu(m, {}, rect(0, 0, 1, 1)) end, "Bad user data" },
  { function() OSMenu.UI_DoContextMenu(m, 5, point(0, 0)) end, "Bad user data" },
  { function() OSMenu.UI_DoPopupMenu(button, button, rect(0, 0, 1, 1)) end, "OSMenu expected" },
}
for i, fault in ipairs(faults) do
  local ok, message = pcall(fault[1])
  check(not ok and tostring(message):find(fault[2], 1, true), "fault " .. i .. ": " .. tostring(message))
end

-- The popup control's own menu is such a run: its items are ids from 1.
local choice = zebcontrols.NewPopup()
choice:UI_SetNodeID("choice")
choice:UI_SetLocalRectF(rect(100, 0, 80, 20))
root:ChildPushBack(choice)
for _, item in ipairs({ "one", "two", "three" }) do choice:AddItem(item) end
local runsBefore = zebhost.lastMenuRun().runs
zebhost.answer(3)
zebhost.click(root, 110, 10)
checkEqual(choice:GetValueString(), "three", "item 3 chosen by its id")
run = zebhost.lastMenuRun()
checkEqual(run.runs, runsBefore + 1, "one menu run")
checkEqual(run.node, "choice", "over the popup")
checkEqual(run.size, 3, "a menu of its three items")
checkEqual(run.answer, 3, "answered 3")

-- A numeric string is the id: "5" gives the item id 5, and a popup answered 5 returns it.
local numeric = OSMenu.CreateOSMenu()
numeric:AppendItem("x", "5")
zebhost.answer(5)
checkEqual(OSMenu.UI_DoPopupMenu(numeric, button, rect(0, 0, 10, 10)), 5, '"5" is id 5')
zebhost.answer(0)
checkEqual(OSMenu.UI_DoPopupMenu(numeric, button, rect(0, 0, 10, 10)), 0, "and not id 0")

-- A menu that is its own submenu still runs and answers.
local loop = OSMenu.CreateOSMenu()
loop:AppendItem("self", 1, loop)
zebhost.answer(99)
checkEqual(OSMenu.UI_DoPopupMenu(loop, button, rect(0, 0, 10, 10)), 0, "no id 99 anywhere")
loop:SetItemIDSubMenu(1, OSMenu.CreateOSMenu())

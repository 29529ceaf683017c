-- A section as a user opens and closes it: a click in the header toggles it, the content
-- hides while closed, and the callbacks hear each real change only, with a new wrapper.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32
local C = zebcontrols

local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 100, 100))
local section = C.NewSectionView()
section:UI_SetNodeID("section")
section:UI_SetLocalRectF(rect(0, 0, 100, 100))
root:ChildPushBack(section)
local body = C.NewSubView()
body:UI_SetLocalRectF(rect(0, 30, 100, 70))
section:ChildPushBack(body)

local calls = {}
section:AddOpenedStateChangedCallback(function(...)
  calls[#calls + 1] = { n = select("#", ...), section = (...) }
end)
local seconds = 0
section:AddOpenedStateChangedCallback(function() seconds = seconds + 1 end)

-- Flags: no argument opens, nil closes.
section:SetOpened()
checkEqual(#calls, 0, "already opened: no change, no call")
section:SetOpened(nil)
checkEqual(section:GetOpened(), false, "nil closes")
checkEqual(#calls .. " " .. seconds, "1 1", "every callback ran once")
checkEqual(calls[1].n, 1, "one argument")
checkEqual(getmetatable(calls[1].section), debug.getregistry().zebSectionView, "a section wrapper")
checkEqual(calls[1].section:UI_GetNodeID(), "section", "of the section")
checkEqual(body:UI_IsShown(), false, "the content hides while closed")
checkEqual(zebhost.snapshot(section).state.opened, false, "the snapshot reports it")

-- A click in the header opens it; one below the header does not touch it.
zebhost.click(root, 50, 5)
checkEqual(section:GetOpened(), true, "a click in the header opened it")
check(calls[2].section ~= calls[1].section, "a new wrapper each time")
checkEqual(body:UI_IsShown(), true, "the content is back")
section:SetHeaderHeight(30)
checkEqual(section:GetHeaderHeight(), 30, "the header height")
zebhost.click(root, 50, 25)
checkEqual(section:GetOpened(), false, "in the taller header")
zebhost.click(root, 50, 60)
checkEqual(section:GetOpened(), false, "a click below the header does nothing")
checkEqual(#calls, 3, "one call per change")

-- A callback that raises goes no further than itself.
section:AddOpenedStateChangedCallback(function() error("no") end)
section:SetOpened(true)
checkEqual(#calls .. " " .. seconds, "4 4", "the others still run")

-- The custom label view is made the first time it is shown, in the header.
checkEqual(select("#", section:GetCustomLabelView()), 0, "none before it is shown")
section:SetShowCustomLabelView()
checkEqual(section:IsCustomLabelViewShown(), true, "shown")
local label = section:GetCustomLabelView()
local r = label:UI_GetLocalRectF()
checkEqual(zebhost.rectText(r), "0 0 100 30", "across the header")
section:SetShowCustomLabelView(false)
checkEqual(label:UI_IsShown(), false, "hidden again")
section:SetDrawGradientHeader()
checkEqual(section:GetDrawGradientHeader(), true, "gradient header")

local ok, message = pcall(section.AddOpenedStateChangedCallback, section, "x")
check(not ok and message:find("function expected", 1, true), "a function is needed")
local released = C.NewSectionView()
released:Release()
checkEqual(select("#", released:AddOpenedStateChangedCallback("not checked")), 0,
  "a released wrapper returns at once")

-- A callback may take the section out of its tree and drop every wrapper of it while the
-- click that toggled it is still running.
local doomed = C.NewSectionView()
doomed:UI_SetLocalRectF(rect(0, 0, 100, 100))
local holder = zebhost.newNode("UI_SubView", "holder", rect(0, 0, 100, 100))
holder:ChildPushBack(doomed)
local dropped = false
doomed:AddOpenedStateChangedCallback(function(me)
  holder:ChildRemove(me)
  me:Release()
  doomed = nil
  collectgarbage("collect")
  dropped = true
end)
doomed = nil
collectgarbage("collect")
zebhost.click(holder, 50, 5)
collectgarbage("collect")
checkEqual(dropped, true, "the callback ran and dropped the section")
checkEqual(holder:ChildSize(), 0, "out of the tree")
print("containers_section: ok")

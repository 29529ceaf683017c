-- The node set's state and appearance: flags whose default is true take a present nil as
-- false, invalidation and UI_UpdateNow as the toolkit records them, the draw cache policy
-- strings, themes, mouse over and mouse events handed to a node.
local check, checkEqual, count = zebhost.check, zebhost.checkEqual, zebhost.count
local rect = zeblua_CreateNewRectF32
local newNode = zebhost.newNode
local mouse, buttons = zebhost.mouse, zebhost.buttons

local function redraw(node) return zebhost.snapshot(node, 0).redraw end

-- Flags that default to true: no argument is true, a nil that is there is false.
local node = newNode("UI_SubView", "n", rect(0, 0, 20, 10))
node:UI_Show(false)
checkEqual(node:UI_IsShown(), false, "UI_Show(false) hides")
node:UI_Show()
checkEqual(node:UI_IsShown(), true, "UI_Show() shows")
node:UI_Show(nil)
checkEqual(node:UI_IsShown(), false, "UI_Show(nil) hides")
node:UI_Show(0)
checkEqual(node:UI_IsShown(), true, "0 is true in Lua")
node:UI_SetEnabled(nil)
checkEqual(node:UI_IsEnabled(), false, "UI_SetEnabled(nil) disables")
checkEqual(zebhost.snapshot(node).enabled, false, "the toolkit's disabled state")
node:UI_SetEnabled()
checkEqual(node:UI_IsEnabled(), true, "UI_SetEnabled() enables")
node:UI_SetToolTipAvoidsBounds()
checkEqual(node:UI_GetToolTipAvoidsBounds(), true, "UI_SetToolTipAvoidsBounds()")
node:UI_SetToolTipAvoidsBounds(nil)
checkEqual(node:UI_GetToolTipAvoidsBounds(), false, "UI_SetToolTipAvoidsBounds(nil)")

-- UI_Invalidate: absent or nil is all of the node; a rect is rounded outwards, flags 0.
local whole, wholeNil, part = newNode("UI_SubView"), newNode("UI_SubView"), newNode("UI_SubView")
whole:UI_Invalidate()
wholeNil:UI_Invalidate(nil)
part:UI_Invalidate(rect(1.5, 2.5, 3, 4))
checkEqual(redraw(whole).wholeNode, true, "UI_Invalidate() is all of the node")
checkEqual(redraw(wholeNil).wholeNode, true, "UI_Invalidate(nil) too")
local recorded = redraw(part)
checkEqual(recorded.wholeNode, false, "a rect is a part")
checkEqual(#recorded.rects, 1, "one rect")
local r = recorded.rects[1]
checkEqual(zebhost.rectText(r), "1 2 4 5", "its edges rounded outwards: 1.5..4.5 and 2.5..6.5")
checkEqual(recorded.invalidateFlags, 0, "flags 0")

-- UI_UpdateNow: all flags by default, and the real draw pass runs before it returns.
local view = newNode("UI_SubView", "view", rect(0, 0, 30, 20))
local inner = newNode("UI_SubView", "inner", rect(5, 5, 10, 10), view)
local drawn = {}
view:BindZebOperation("uiDraw", function(ink)
  drawn[#drawn + 1] = "view"
  local surface = ink:GetSurface()
  check(surface ~= nil, "a surface to draw on")
  surface:PaintRect(rect(0, 0, 30, 20), zeblua_CreateNewRGBA(1, 0, 0, 1))
  return false
end)
inner:BindZebOperation("uiDraw", function() drawn[#drawn + 1] = "inner" end)
view:UI_UpdateNow()
checkEqual(table.concat(drawn, " "), "view inner", "drawn before UI_UpdateNow returns")
checkEqual(redraw(view).updates, 1, "one update")
checkEqual(redraw(view).updateFlags, 4294967295, "UI_UpdateNow() passes every flag")
view:UI_UpdateNow(5)
checkEqual(redraw(view).updateFlags, 5, "given flags")
view:UI_Show(false)
drawn = {}
view:UI_UpdateNow(nil)
checkEqual(#drawn, 0, "a hidden node isn't drawn")
checkEqual(redraw(view).updateFlags, 4294967295, "a nil is the default too")
view:UI_Show()
-- A draw function that ends the wrapper that asked for the update: the node is held.
local doomed = newNode("UI_SubView", "doomed", rect(0, 0, 4, 4))
local doomedDrawn = 0
doomed:BindZebOperation("uiDraw", function()
  doomedDrawn = doomedDrawn + 1
  getmetatable(doomed).__gc(doomed)
  collectgarbage("collect")
end)
checkEqual(count(doomed:UI_UpdateNow()), 0, "UI_UpdateNow answers nothing")
checkEqual(doomedDrawn, 1, "drawn once, the node held across the draw")

-- Draw cache policies by string, compared as C strings; anything else is 0.
local policies = { never = 1, always = 2, always_as_bitmap = 3, Never = 0, [""] = 0,
  ["never\0but"] = 1, ["always "] = 0 }
for name, value in pairs(policies) do
  node:UI_SetDrawCachePolicy("always")
  node:UI_SetDrawCachePolicy(name)
  checkEqual(zebhost.snapshot(node).drawCachePolicy, value, string.format("%q", name))
end
check(not pcall(node.UI_SetDrawCachePolicy, node), "the policy is required")

-- Theme names cross as UTF-8 and are kept as UTF-16.
node:SetThemeName("Dunkel \195\188")
checkEqual(zebhost.snapshot(node).themeName, "Dunkel \195\188", "SetThemeName")

-- Mouse over: the node the last mouse event went to, or with the node set's flag a node
-- below it.
local root = newNode("UI_SubView", "root", rect(0, 0, 100, 100))
local over = newNode("UI_SubView", "over", rect(10, 10, 40, 40), root)
local under = newNode("UI_SubView", "under", rect(5, 5, 10, 10), over)
checkEqual(over:UI_IsMouseOver(), false, "no mouse yet")
zebhost.click(root, 20, 20)
checkEqual(under:UI_IsMouseOver(), true, "the node under the pointer")
checkEqual(over:UI_IsMouseOver(), true, "and its ancestor, since descendants count")
local shot = zebhost.snapshot(root)
checkEqual(shot.mouseOver, false, "the snapshot tells the node itself")
checkEqual(shot.children[1].children[1].mouseOver, true, "the node under the pointer")
zebhost.click(root, 90, 90)
checkEqual(over:UI_IsMouseOver(), false, "the pointer moved away")

-- UI_DoMouseEvent: the node's own handling, the event kept field by field; no answer.
local received = {}
local handler = newNode("UI_SubView", "handler")
handler:BindZebOperation("uiMouseEvent", function(event)
  received[#received + 1] = tostring(event)
  return true
end)
local event = zeblua_CreateNewZEBUIMouseEvent(mouse.kDown, buttons.kRight, 2, 3.5, -4,
  zebhost.modifiers.kShift, 7, zebhost.wheelAxis.kHorizontal)
checkEqual(count(handler:UI_DoMouseEvent(handler, event)), 0, "no answer passed on")
checkEqual(received[1], tostring(event), "the event arrives as it was")
handler:UI_DoMouseEvent(handler, event, nil)
checkEqual(#received, 1, "a further nil argument: no event")
local released = newNode("UI_SubView")
released:Release()
handler:UI_DoMouseEvent(released, event)
checkEqual(#received, 1, "a released target: no event")
local ok, message = pcall(handler.UI_DoMouseEvent, handler, {}, event)
check(not ok and message:find("Bad user data", 1, true), "the target must be a wrapper")
check(not pcall(handler.UI_DoMouseEvent, handler, handler, {}), "an event needs its fields")
checkEqual(#received, 1, "nothing arrived from the failures")

-- The table hazard in this family: an __index that ends the wrapper mid-read.
local function ending(node, source)
  return setmetatable({}, { __index = function(_, key)
    getmetatable(node).__gc(node)
    return rawget(source, key)
  end })
end
local lone = newNode("UI_SubView", "lone", rect(0, 0, 10, 10))
checkEqual(count(lone:UI_Invalidate(ending(lone, rect(1, 2, 3, 4)))), 0, "UI_Invalidate: nothing, no crash")
local target = newNode("UI_SubView", "target")
handler:UI_DoMouseEvent(target, ending(target, event))
checkEqual(#received, 1, "a target ended while the event was read gets nothing")
lone = newNode("UI_SubView", "lone")
lone:BindZebOperation("uiMouseEvent", function() received[#received + 1] = "lone" end)
lone:UI_DoMouseEvent(handler, ending(lone, event))
checkEqual(#received, 1, "nor does a node whose own wrapper ended")
collectgarbage("collect")
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("node_state: ok")

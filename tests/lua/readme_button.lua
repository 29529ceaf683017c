-- A button drawn and clicked by a script, checked as a user would see it.
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"
local rect, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA

local root = zebhost.newNode("UI_SubView")
root:UI_SetLocalRectF(rect(0, 0, 80, 40))
local button = zebhost.newNode("UI_Button")
button:UI_SetNodeID("ok")
button:UI_SetLocalRectF(rect(10, 10, 30, 20))
root:ChildPushBack(button)

local pressed = false
button:BindZebOperation("uiDraw", function(ink)
  local colour = pressed and rgba(0.2, 0.6, 0.2, 1) or rgba(0.6, 0.6, 0.6, 1)
  ink:GetSurface():PaintRect(rect(0, 0, 30, 20), colour)
  return true                                    -- drawn: no default drawing
end)
button:BindZebOperation("uiMouseEvent", function(event)
  if event.action == zebhost.mouse.kUp then pressed = true end
  return true                                    -- taken
end)

local taker = zebhost.click(root, 20, 15)       -- root coordinates, as in the picture
zebhost.checkEqual(taker:UI_GetNodeID(), "ok", "the click went to the button")
local picture = zebhost.draw(root)              -- zebhost.draw(root, "button.png") writes it
zebhost.checkEqual(table.concat({ picture:pixel(20, 15) }, ","), "51,153,51,255", "pressed")
zebhost.checkEqual(zebhost.snapshot(root).children[1].focus, true, "a click gives focus")
print("ok")

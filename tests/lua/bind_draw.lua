-- A bound "uiDraw" through the real draw pass: a live proxy in the call and a dead one
-- after it, a true answer (or an error) in place of the node's own drawing, rebinding,
-- and what BindZebOperation answers.
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"

local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect, rgba = zeblua_CreateNewRectF32, zeblua_CreateNewRGBA

local newNode = zebhost.newNode

local function pixelText(picture, x, y)
  return table.concat({ picture:pixel(x, y) }, ",")
end

local red, blue = "255,0,0,255", "0,0,255,255"

-- root 30 x 20 > panel (the whole root) > leaf at (5, 5), 10 x 10
local root = newNode("UI_SubView", "root", rect(0, 0, 30, 20))
local panel = newNode("UI_SubView", "panel", rect(0, 0, 30, 20), root)
local leaf = newNode("UI_Button", "leaf", rect(5, 5, 10, 10), panel)

-- The leaf paints far beyond its frame: the pass clips it there.
check(leaf:BindZebOperation("uiDraw", function(ink)
  ink:GetSurface():PaintRect(rect(-50, -50, 200, 200), rgba(0, 0, 1, 1))
  return true
end), "binding uiDraw answers true")

local answer, keptInk, policyInside, calls = false, nil, nil, 0
check(panel:BindZebOperation("uiDraw", function(ink)
  calls = calls + 1
  keptInk = ink
  local surface = ink:GetSurface()
  policyInside = surface:GetAntiAliasPolicy()
  surface:PaintRect(rect(0, 0, 30, 20), rgba(1, 0, 0, 1))
  if answer == "raise" then error("drawing failed") end
  return answer
end))

-- A false answer: the panel's picture, then its children on top, each in its frame.
local picture = zebhost.draw(root)
checkEqual(calls, 1, "uiDraw calls per draw")
checkEqual(policyInside, zebSurfaceInterface.kAntiAliasPolicy_Med, "anti-aliasing in uiDraw")
checkEqual(pixelText(picture, 1, 1), red, "panel pixel")
checkEqual(pixelText(picture, 5, 5), blue, "leaf's first pixel")
checkEqual(pixelText(picture, 14, 14), blue, "leaf's last pixel")
checkEqual(pixelText(picture, 15, 15), red, "clipped at the leaf's frame")
checkEqual(select("#", picture:size()), 2, "size answers width and height")
checkEqual(table.concat({ picture:size() }, "x"), "30x20", "picture size")

-- The proxy kept from the call is dead: no value, one assertion report, no crash.
zebhost.clearAssertReports()
checkEqual(select("#", keptInk:GetSurface()), 0, "a kept Inkwell proxy answers nothing")
check(#zebhost.assertReports() > 0, "a kept proxy reports its use")
zebhost.clearAssertReports()

-- A true answer, or an error, takes the place of the default drawing: no leaf.
for _, replacing in ipairs({ true, "raise" }) do
  answer = replacing
  picture = zebhost.draw(root)
  checkEqual(pixelText(picture, 7, 7), red, "no default drawing after " .. tostring(replacing))
end

-- Binding again swaps the function: only the second one runs, once per draw.
local second = 0
check(panel:BindZebOperation("uiDraw", function() second = second + 1 end))
calls = 0
picture = zebhost.draw(root)
checkEqual(calls, 0, "the first function after rebinding")
checkEqual(second, 1, "the second function")
checkEqual(pixelText(picture, 7, 7), blue, "nil counts as false: the leaf is drawn")

-- UI_UpdateNow draws the node at once, through its binding; a hidden node is not drawn.
panel:UI_UpdateNow()
checkEqual(second, 2, "UI_UpdateNow reaches uiDraw")
panel:UI_Show(false)
panel:UI_UpdateNow()
picture = zebhost.draw(root)
checkEqual(second, 2, "a hidden node is not drawn")
checkEqual(pixelText(picture, 7, 7), "0,0,0,0", "nothing under a hidden node")
panel:UI_Show()

-- The answers of BindZebOperation itself.
checkEqual(panel:BindZebOperation("noSuchOperation", function() end), true, "unknown name")
local ok, message = pcall(panel.BindZebOperation, panel, "uiDraw", nil)
check(not ok and message:find("bad argument #3", 1, true), "nil function: " .. tostring(message))
ok, message = pcall(panel.BindZebOperation, {}, "uiDraw", function() end)
check(not ok and message:find("Bad user data", 1, true), "not a wrapper: " .. tostring(message))
local released = zebhost.newNode("UI_SubView")
released:Release()
checkEqual(released:BindZebOperation("uiDraw", function() end), false, "after Release")
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("bind_draw: ok")

-- Bindings live on the node, not on a wrapper or a coroutine: they outlive the wrapper
-- that made them and a coroutine that was collected, and a function may rebind itself.
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32

local root = zebhost.newNode("UI_SubView")
root:UI_SetLocalRectF(rect(0, 0, 40, 40))

-- Made through a wrapper that is then collected; a new wrapper (the click's answer)
-- needs no new binding.
local clicks = 0
do
  local button = zebhost.newNode("UI_Button")
  button:UI_SetNodeID("button")
  button:UI_SetLocalRectF(rect(0, 0, 20, 20))
  root:ChildPushBack(button)
  button:BindZebOperation("uiMouseEvent", function(event)
    if event.action == zebhost.mouse.kDown then clicks = clicks + 1 end
    return true
  end)
end
collectgarbage("collect")
local again = zebhost.click(root, 5, 5)
checkEqual(clicks, 1, "the binding outlived its wrapper")
checkEqual(again:UI_GetNodeID(), "button", "a new wrapper of the same node")

-- Made inside a coroutine that ends and is collected: the function runs on the main
-- thread, where coroutine.running() is nil.
local ranOnMain, drawn = nil, 0
do
  local view = zebhost.newNode("UI_SubView")
  view:UI_SetLocalRectF(rect(20, 20, 20, 20))
  root:ChildPushBack(view)
  local maker = coroutine.create(function(node)
    node:BindZebOperation("uiDraw", function()
      drawn = drawn + 1
      ranOnMain = coroutine.running() == nil
    end)
    coroutine.yield()
  end)
  coroutine.resume(maker, view)
  maker = nil
end
collectgarbage("collect")
collectgarbage("collect")
zebhost.draw(root)
checkEqual(drawn, 1, "a binding made in a collected coroutine runs")
checkEqual(ranOnMain, true, "on the main thread")

-- Run from inside a coroutine, the call still goes to the main thread.
local fromCoroutine = coroutine.wrap(function() return zebhost.draw(root) end)
fromCoroutine()
checkEqual(drawn, 2, "drawn from a coroutine")
checkEqual(ranOnMain, true, "still on the main thread")

-- A function that rebinds its own operation finishes; the next event gets the new one.
local log = {}
local target = zebhost.newNode("UI_SubView")
target:UI_SetLocalRectF(rect(0, 20, 20, 20))
root:ChildPushBack(target)
target:BindZebOperation("uiMouseEvent", function(event)
  if event.action ~= zebhost.mouse.kDown then return true end
  log[#log + 1] = "first"
  target:BindZebOperation("uiMouseEvent", function(later)
    if later.action == zebhost.mouse.kDown then log[#log + 1] = "second" end
    return true
  end)
  collectgarbage("collect")
  log[#log + 1] = "first ends"
  return true
end)
zebhost.click(root, 5, 25)
zebhost.click(root, 5, 25)
checkEqual(table.concat(log, " "), "first first ends second", "rebinding while running")
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("bind_lifetime: ok")

-- The harness itself: which node a pointer reaches, snapshots, key targets, reports,
-- failed checks inside callbacks, and golden comparison with its failure pictures.
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32

local newNode = zebhost.newNode

-- Every node takes every down, so the answer is the node the pointer reached.
local function takesAll(node)
  node:BindZebOperation("uiMouseEvent", function() return true end)
  return node
end

local root = takesAll(newNode("UI_SubView", "root", rect(0, 0, 100, 50)))
local low = takesAll(newNode("UI_SubView", "low", rect(10, 10, 40, 30), root))
local high = takesAll(newNode("UI_Slider", "high", rect(30, 10, 40, 30), root))
local inner = takesAll(newNode("UI_ScrollBar", "inner", rect(30, 0, 30, 10), low))
local hidden = takesAll(newNode("UI_SubView", "hidden", rect(0, 0, 10, 10), root))
hidden:UI_Show(false)
local off = takesAll(newNode("UI_SubView", "off", rect(80, 0, 20, 50), root))
off:UI_SetEnabled(false)

local function at(x, y)
  local taker = zebhost.click(root, x, y)
  return taker and taker:UI_GetNodeID()
end
checkEqual(at(15, 15), "low", "a child")
checkEqual(at(35, 15), "high", "a later child lies on top")
checkEqual(at(45, 12), "high", "the later sibling is above the earlier one's child")
checkEqual(at(5, 5), "root", "a hidden node is not hit")
checkEqual(at(85, 5), "root", "a disabled node is not hit")
checkEqual(at(0, 0), "root", "the root's first pixel")
checkEqual(at(100, 50), nil, "outside the root")
high:UI_Show(false)
checkEqual(at(45, 12), "inner", "a child inside its parent's frame")
checkEqual(at(65, 12), "root", "a child outside its parent's frame is clipped away")
high:UI_Show()

-- Snapshots: plain tables of what the tree is.
local shot = zebhost.snapshot(root)
checkEqual(shot.class, "UI_SubView", "class")
checkEqual(shot.index, nil, "no index without a parent")
checkEqual(shot.childCount, 4, "childCount")
local lowShot, highShot = shot.children[1], shot.children[2]
checkEqual(lowShot.id, "low", "children in order")
checkEqual(highShot.index, 2, "index from 1")
checkEqual(highShot.class, "UI_Slider", "a control's class")
checkEqual(highShot.state.inInteractiveChange, false, "an interactive control's state")
checkEqual(highShot.state.valueUnknown, false, "a control view's state")
checkEqual(lowShot.state.valueUnknown, nil, "a plain view has no control state")
local innerShot = lowShot.children[1]
checkEqual(innerShot.rect.left, 30, "local rect")
checkEqual(innerShot.globalRect.left, 40, "global rect")
checkEqual(innerShot.globalRect.top, 10, "global rect top")
checkEqual(shot.children[3].shown, false, "shown")
checkEqual(shot.children[4].enabled, false, "enabled")
checkEqual(innerShot.focus, false, "focus")
checkEqual(zebhost.snapshot(root, 0).children, nil, "depth 0 has no children")
local oneLevel = zebhost.snapshot(root, 1)
checkEqual(#oneLevel.children, 4, "depth 1 has the children")
checkEqual(oneLevel.children[1].children, nil, "but not theirs")

-- Keys to a named target, and focus in the snapshot.
inner:UI_GainKeyboardFocus(zebhost.focus.kProgram)
check(zebhost.snapshot(inner).focus, "focus shows in the snapshot")
local keyTarget
root:BindZebOperation("uiKeyboardEvent", function(target) keyTarget = target:UI_GetNodeID() end)
checkEqual(zebhost.sendKey({ keyCode = zebhost.keys.kX }, low), nil, "nobody took the key")
checkEqual(keyTarget, "low", "the key went to the named target")
checkEqual(zebhost.sendKey({ keyCode = zebhost.keys.kX }), nil, "nobody took it again")
checkEqual(keyTarget, "inner", "without a target, the focused node")

-- newNode refuses names it does not know, and lists those it does.
local ok, message = pcall(zebhost.newNode, "UI_Nothing")
check(not ok and message:find("unknown class 'UI_Nothing'", 1, true), tostring(message))
check(message:find("UI_TabWell", 1, true), "the known names are listed")

-- Assertion reports: a dead proxy's use shows up, and clearing empties the list.
require "zeblua.inkwell.zebInkwell"
local kept
zebhost.canvas(4, 4, function(ink) kept = ink end)
zebhost.clearAssertReports()
kept:GetSurface()
local reports = zebhost.assertReports()
check(#reports == 1 and reports[1].message:find("out-of-scope", 1, true), "a recorded report")
check(reports[1].file ~= "" and reports[1].line > 0, "reports carry their source")
zebhost.clearAssertReports()
checkEqual(#zebhost.assertReports(), 0, "cleared")

-- A check that fails inside a callback is raised again by the harness call, naming the
-- line of the check.
low:BindZebOperation("uiMouseEvent", function()
  zebhost.check(false, "inside a callback")
  return true
end)
ok, message = pcall(zebhost.click, root, 15, 15)
check(not ok and message:find("harness.lua:%d+: check failed: inside a callback"), tostring(message))
takesAll(low)
checkEqual(at(15, 15), "low", "the next call is clean")

-- The checking helpers: a call that does not raise, or raises something else, fails at the
-- test's own line; the error comes back; the recorder empties as it answers.
ok, message = pcall(function() zebhost.errorOf(function() end) end)
check(not ok and message:find("harness.lua:%d+: check failed: expected an error"),
  tostring(message))
ok, message = pcall(function() zebhost.checkRaises("a.b", error, "a-b") end)
check(not ok and message:find("harness.lua:%d+: check failed: expected 'a.b', got: a%-b"),
  tostring(message))
checkEqual(zebhost.checkRaises("a.b", error, "the a.b"), "the a.b", "the error comes back")
checkEqual(zebhost.count(nil, nil), 2, "nils are counted")
local entries, taken = zebhost.recorder("|")
entries[1], entries[2] = "x", "y"
checkEqual(taken(), "x|y", "joined")
checkEqual(taken() .. #entries, "0", "and emptied")

-- Golden comparison: equal to itself, within a tolerance, and a mismatch that writes the
-- picture and a diff.
require "zeblua.inkwell.zebSurfaceInterface"
local tile = zebhost.newNode("UI_SubView")
tile:UI_SetLocalRectF(rect(0, 0, 8, 8))
local level = 1
tile:BindZebOperation("uiDraw", function(ink)
  ink:GetSurface():PaintRect(rect(0, 0, 8, 4), zeblua_CreateNewRGBA(level, 0, 0, 1))
end)
local golden = os.tmpname() .. ".png"
zebhost.draw(tile):write(golden)
check(zebhost.compareImage(zebhost.draw(tile), golden), "a picture equals its own PNG")
level = 0.98
local same, why = zebhost.compareImage(zebhost.draw(tile), golden)
check(not same and why:find("32 pixels differ", 1, true), "a mismatch: " .. tostring(why))
check(why:find(".actual.png", 1, true) and why:find(".diff.png", 1, true), "pictures written")
check(zebhost.compareImage(zebhost.draw(tile), golden, 5), "within the tolerance")
same, why = zebhost.compareImage(zebhost.draw(root), golden)
check(not same and why:find("size 100x50 differs", 1, true), tostring(why))
os.remove(golden)
print("harness: ok")

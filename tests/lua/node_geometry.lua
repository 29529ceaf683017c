-- The node set's geometry: frames, conversion through every parent, the recommended size
-- and clipping; a rect table whose __index ends the wrapper answers nothing.
local check, checkEqual, count = zebhost.check, zebhost.checkEqual, zebhost.count
local rect, point = zeblua_CreateNewRectF32, zeblua_CreateNewPointF32
local newNode = zebhost.newNode

local root = newNode("UI_SubView", "root", rect(30, 40, 200, 200))
local parent = newNode("UI_SubView", "parent", rect(10, 20, 100, 100), root)
local child = newNode("UI_SubView", "child", rect(5, 5, 50, 40), parent)

checkEqual(tostring(child:UI_GetLocalRectF()), "{left=5, top=5, width=50, height=40}",
  "UI_GetLocalRectF")
checkEqual(tostring(child:UI_GetLocalRectF(true)), tostring(child:UI_GetLocalRectF()),
  "a headless node has no decorations")

-- Through two levels of parents, the root's origin included.
checkEqual(tostring(child:UI_LocalToGlobalPointF(point(1, 2))), "{x=46, y=67}",
  "local {1,2} is global {46,67}")
checkEqual(tostring(child:UI_GlobalToLocalPointF(point(46, 67))), "{x=1, y=2}", "and back")
checkEqual(tostring(child:UI_LocalToGlobalRectF(rect(1, 2, 3, 4))),
  "{left=46, top=67, width=3, height=4}", "a rect keeps its size")
checkEqual(tostring(child:UI_GlobalToLocalRectF(rect(46, 67, 3, 4))),
  "{left=1, top=2, width=3, height=4}", "and back")
checkEqual(tostring(child:UI_LocalToGlobalPointF(point(0.5, -0.25))), "{x=45.5, y=64.75}",
  "floats stay floats")
checkEqual(tostring(child:UI_LocalToGlobalPointF(point(1, 2), nil)), "{x=45, y=65}",
  "a further nil leaves the zeroed point")
check(not pcall(child.UI_LocalToGlobalPointF, child, 7), "a point must be a table")
check(not pcall(child.UI_SetLocalRectF, child, { left = 1 }), "a rect needs every field")

-- The recommended size is measured with the node's supplier: a node in no window's tree
-- has the manager's default one.
local free = newNode("UI_SubView", "free", rect(3, 4, 30, 40))
checkEqual(tostring(free:UI_GetRecommendedSize()), "{x=30, y=40}", "a plain node's own size")
checkEqual(tostring(free:UI_LocalToGlobalPointF(point(1, 2))), "{x=4, y=6}",
  "without a parent only its own origin counts")
checkEqual(tostring(child:UI_GetRecommendedSize()), "{x=50, y=40}", "inside a tree")
local supplier = free:UI_GetDrawSupplier()
checkEqual(getmetatable(supplier), debug.getregistry()["zeblua.inkwell.zebSupplierInterface"],
  "UI_GetDrawSupplier answers a supplier proxy")
checkEqual(tostring(child:UI_GetDrawSupplier()):match("^zebSupplierInterface%("),
  "zebSupplierInterface(", "a child's, its window's")

-- Clipping: the flag is lua_toboolean, so a missing one switches it off.
checkEqual(child:UI_GetClipToSelfEnabled(), false, "off at first")
child:UI_SetClipToSelfEnabled(true)
checkEqual(child:UI_GetClipToSelfEnabled(), true, "on")
checkEqual(zebhost.snapshot(child).clipToSelf, true, "the toolkit holds it")
child:UI_SetClipToSelfEnabled()
checkEqual(child:UI_GetClipToSelfEnabled(), false, "no argument: off")

-- A size change reaches "uiSizeChanged" before UI_SetLocalRectF returns, even when the
-- function ends the wrapper that set it.
local sizes = {}
child:BindZebOperation("uiSizeChanged", function(r)
  sizes[#sizes + 1] = tostring(r)
  getmetatable(child).__gc(child)
end)
child:UI_SetLocalRectF(rect(5, 5, 60, 40))
checkEqual(table.concat(sizes), "{left=5, top=5, width=60, height=40}", "the new rect")
checkEqual(count(child:UI_GetLocalRectF()), 0, "an ended wrapper answers nothing")
child = parent:ChildGet(1)
checkEqual(child:UI_GetLocalRectF().width, 60, "the node lives on in its tree")

-- The table hazard: a table's __index may release or end the very wrapper mid-read.
local function ending(node, how)
  return setmetatable({}, { __index = function(_, key)
    if how == "gc" then getmetatable(node).__gc(node) else node:Release() end
    return key == "width" and 8 or 1
  end })
end
local lone = newNode("UI_SubView", "lone", rect(0, 0, 10, 10))
checkEqual(count(lone:UI_SetLocalRectF(ending(lone, "gc"))), 0, "ended while read: nothing")
checkEqual(count(lone:UI_GetLocalRectF()), 0, "and it stays ended")
lone = newNode("UI_SubView", "lone", rect(0, 0, 10, 10))
checkEqual(count(lone:UI_LocalToGlobalPointF(ending(lone, "gc"))), 0, "a point read likewise")
lone = newNode("UI_SubView", "lone", rect(0, 0, 10, 10))
checkEqual(count(lone:UI_GlobalToLocalRectF(ending(lone, "release"))), 0, "released while read")
collectgarbage("collect")
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("node_geometry: ok")

-- The node set's tree methods as a script meets them: ChildGet and UI_GetIndex count from
-- 1, ChildMove, ChildSwapOrder and SetViewIndex from 0; every push is a new wrapper.
local check, checkEqual, count = zebhost.check, zebhost.checkEqual, zebhost.count
local newNode = zebhost.newNode

local function order(parent)
  local ids = {}
  for i = 1, parent:ChildSize() do ids[i] = parent:ChildGet(i):UI_GetNodeID() end
  return table.concat(ids)
end

local parent = newNode("UI_SubView", "p")
for _, id in ipairs({ "a", "b", "c", "d" }) do newNode("UI_SubView", id, nil, parent) end

-- ChildGet from 1: the last child at ChildSize, nothing outside 1..ChildSize.
checkEqual(parent:ChildSize(), 4, "ChildSize")
checkEqual(parent:ChildGet(1):UI_GetNodeID(), "a", "ChildGet(1) is the first child")
checkEqual(parent:ChildGet(parent:ChildSize()):UI_GetNodeID(), "d", "ChildGet(ChildSize())")
checkEqual(count(parent:ChildGet(5)), 0, "past the end: no value, not nil")
checkEqual(count(parent:ChildGet(0)), 0, "index 0")
checkEqual(count(parent:ChildGet(-1)), 0, "a negative index")
check(not pcall(parent.ChildGet, parent, "first"), "the index must be a number")

-- Two pushes of one node are two values with one id.
local first, again = parent:ChildGet(1), parent:ChildGet(1)
check(first ~= again and not rawequal(first, again), "each push is a new wrapper")
checkEqual(again:UI_GetNodeID(), first:UI_GetNodeID(), "of the same node")
local seen = { [first] = true }
checkEqual(seen[again], nil, "a table keyed by wrappers doesn't find the node again")

-- UI_GetIndex from 1; ChildMove and ChildSwapOrder from 0, unchecked.
checkEqual(first:UI_GetIndex(), 1, "UI_GetIndex of the first child")
checkEqual(parent:ChildGet(4):UI_GetIndex(), 4, "UI_GetIndex of the last child")
checkEqual(parent:UI_GetIndex(), 0, "no parent: 0")
parent:ChildMove(0, 3)
checkEqual(order(parent), "bcda", "ChildMove(0, 3) moves the first child to the end")
parent:ChildMove(3, 0)
checkEqual(order(parent), "abcd", "ChildMove(3, 0) back")
parent:ChildMove(4, 0)
parent:ChildMove(1, 4)
parent:ChildMove(-1, 0)
parent:ChildSwapOrder(0, 9)
checkEqual(order(parent), "abcd", "indexes out of range are ignored")
parent:ChildSwapOrder(0, 2)
checkEqual(order(parent), "cbad", "ChildSwapOrder(0, 2)")
parent:ChildSwapOrder(nil, "2")
checkEqual(order(parent), "abcd", "the numbers go through as lua_tointeger gives them")
local dIndex = parent:ChildGet(4):UI_GetIndex()
parent:ChildMove(dIndex - 1, 0)
checkEqual(order(parent), "dabc", "UI_GetIndex minus 1 is ChildMove's index")

-- SetViewIndex from 0; to the back and the front only when the node isn't there already.
local function invalidations() return zebhost.snapshot(parent, 0).redraw.invalidations end
local c = parent:ChildGet(4)
c:SetViewIndex(0)
checkEqual(order(parent), "cdab", "SetViewIndex(0) moves a node to the first place")
c:SetViewIndex(2)
checkEqual(order(parent), "dacb", "SetViewIndex(2) to the third place")
local before = invalidations()
parent:ChildGet(1):SetViewIndexToBack()
parent:ChildGet(4):SetViewIndexToFront()
checkEqual(invalidations(), before, "to the back of the first, to the front of the last: no call")
c:SetViewIndex(c:UI_GetIndex() - 1)
checkEqual(invalidations(), before + 1, "SetViewIndex asks even for the present place")
parent:ChildGet(1):SetViewIndexToFront()
checkEqual(order(parent), "acbd", "SetViewIndexToFront")
parent:ChildGet(3):SetViewIndexToBack()
checkEqual(order(parent), "bacd", "SetViewIndexToBack")
checkEqual(invalidations(), before + 3, "each move a call")
local orphan = newNode("UI_SubView", "orphan")
orphan:SetViewIndex(0)
orphan:SetViewIndexToBack()
orphan:SetViewIndexToFront()
checkEqual(orphan:UI_GetIndex(), 0, "a node without a parent has no siblings to move among")

-- Parent and root: nothing for a top's parent, the top itself as its own root.
local grandChild = newNode("UI_SubView", "g", nil, parent:ChildGet(1))
checkEqual(grandChild:UI_GetParentNode():UI_GetNodeID(), "b", "UI_GetParentNode")
checkEqual(grandChild:UI_GetRootNode():UI_GetNodeID(), "p", "UI_GetRootNode")
checkEqual(count(parent:UI_GetParentNode()), 0, "a top has no parent")
checkEqual(parent:UI_GetRootNode():UI_GetNodeID(), "p", "a top is its own root")

-- GetDescendentByID: depth first in child order, never the node itself, byte for byte.
local top = newNode("UI_SubView", "same")
local left = newNode("UI_SubView", "left", nil, top)
local deep = newNode("UI_SubView", "deep", nil, left)
newNode("UI_SubView", "twin", nil, deep):UI_SetToolTip("deep twin")
newNode("UI_SubView", "twin", nil, top):UI_SetToolTip("shallow twin")
newNode("UI_SubView", "a\0b", nil, top)
checkEqual(count(top:GetDescendentByID("same")), 0, "the node itself doesn't count")
local twin = top:GetDescendentByID("twin")
checkEqual(twin:UI_GetParentNode():UI_GetNodeID(), "deep", "the first a depth-first walk meets")
checkEqual(zebhost.snapshot(twin).toolTip, "deep twin", "not the shallower one")
checkEqual(count(top:GetDescendentByID("a")), 0, "ids compare byte for byte")
checkEqual(top:GetDescendentByID("a\0b"):UI_GetNodeID(), "a\0b", "an id with a zero byte")
checkEqual(count(left:GetDescendentByID("left")), 0, "nor from a child")
checkEqual(count(top:GetDescendentByID("nobody")), 0, "no match: no value")
newNode("UI_SubView", "same", nil, deep)
checkEqual(top:GetDescendentByID("same"):UI_GetParentNode():UI_GetNodeID(), "deep",
  "a descendant with the node's own id is found")

-- Ids are kept as bytes; removing and deleting children leaves the wrappers valid.
left:UI_SetNodeID("\255\0x")
checkEqual(left:UI_GetNodeID(), "\255\0x", "UI_SetNodeID copies the bytes")
top:ChildRemove(left)
checkEqual(top:ChildSize(), 2, "ChildRemove")
checkEqual(count(left:UI_GetParentNode()), 0, "a removed child has no parent")
checkEqual(left:ChildGet(1):UI_GetNodeID(), "deep", "and keeps its own children")
top:ChildRemove(newNode("UI_SubView"))
checkEqual(top:ChildSize(), 2, "removing a stranger does nothing")
parent:ChildPushBack(left)
checkEqual(left:UI_GetParentNode():UI_GetNodeID(), "p", "pushed into another parent")
local moving = parent:ChildGet(1)
top:ChildPushBack(moving)
checkEqual(moving:UI_GetParentNode():UI_GetNodeID(), "same", "pushing moves a child")
checkEqual(parent:ChildSize(), 4, "out of its old parent")
parent:DeleteChildren()
checkEqual(parent:ChildSize(), 0, "DeleteChildren")
checkEqual(left:UI_GetNodeID(), "\255\0x", "a wrapper of a deleted child stays valid")

-- Wrapper arguments are checked like argument 1.
for _, call in ipairs({ "ChildPushBack", "ChildRemove" }) do
  local ok, message = pcall(parent[call], parent, {})
  check(not ok and message:find("Bad user data", 1, true), call .. " with a table")
  ok, message = pcall(parent[call], {}, parent)
  check(not ok and message:find("Bad user data", 1, true), call .. " on a table")
end
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("node_tree: ok")

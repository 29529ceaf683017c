-- Every method of the node set on a released wrapper, and on one ended by its __gc,
-- answers with no result; argument 1 that is no wrapper is "Bad user data".
local check, checkEqual, count = zebhost.check, zebhost.checkEqual, zebhost.count
local rect, point = zeblua_CreateNewRectF32, zeblua_CreateNewPointF32
local newNode = zebhost.newNode

local event = zeblua_CreateNewZEBUIMouseEvent(zebhost.mouse.kDown, zebhost.buttons.kLeft, 1,
  1, 1, 0, 0, zebhost.wheelAxis.kVertical)
local other = newNode("UI_SubView", "other")
local function noop() end

-- Arguments that would make each method act on a live node.
local arguments = {
  ChildPushBack = { other }, ChildSize = {}, ChildGet = { 1 }, ChildRemove = { other },
  ChildSwapOrder = { 0, 0 }, ChildMove = { 0, 0 }, DeleteChildren = {}, UI_GetRootNode = {},
  UI_GetParentNode = {}, GetDescendentByID = { "other" }, UI_GetNodeID = {},
  UI_SetNodeID = { "x" }, UI_GetIndex = {}, SetViewIndex = { 0 }, SetViewIndexToBack = {},
  SetViewIndexToFront = {}, UI_GetLocalRectF = {}, UI_SetLocalRectF = { rect(0, 0, 1, 1) },
  UI_LocalToGlobalRectF = { rect(0, 0, 1, 1) }, UI_LocalToGlobalPointF = { point(0, 0) },
  UI_GlobalToLocalRectF = { rect(0, 0, 1, 1) }, UI_GlobalToLocalPointF = { point(0, 0) },
  UI_GetRecommendedSize = {}, UI_GetClipToSelfEnabled = {}, UI_SetClipToSelfEnabled = { true },
  UI_Show = {}, UI_IsShown = {}, UI_SetEnabled = {}, UI_IsEnabled = {}, UI_Invalidate = {},
  UI_UpdateNow = {}, UI_GetDrawSupplier = {}, UI_SetDrawCachePolicy = { "never" },
  SetThemeName = { "t" }, UI_IsMouseOver = {}, UI_DoMouseEvent = { other, event },
  UI_GainKeyboardFocus = { zebhost.focus.kProgram }, UI_HasKeyboardFocus = {},
  UI_SetToolTip = { "tip" }, UI_SetToolTipAvoidsBounds = {}, UI_GetToolTipAvoidsBounds = {},
  UI_InstallTimer = { 1, noop }, UI_RemoveTimer = { 1 }, Release = {},
  ControlWrapperIdentifier = {},
}

-- The node set is all 47 rows, every one a function in the node metatable.
local set = debug.getregistry().zebUINode
local rows = 0
for name, value in pairs(set) do
  if type(value) == "function" then
    rows = rows + 1
    check(arguments[name] or name == "__gc" or name == "BindZebOperation", name .. " is known")
  end
end
checkEqual(rows, 47, "the node set's rows")

local function checkAnswersNothing(wrapper, how)
  for name, args in pairs(arguments) do
    checkEqual(count(wrapper[name](wrapper, unpack(args))), 0, how .. " " .. name)
  end
  checkEqual(wrapper:BindZebOperation("uiDraw", noop), false, how .. " BindZebOperation")
end

local released = newNode("UI_SubView", "released")
released:Release()
checkAnswersNothing(released, "released:")
local ended = newNode("UI_SubView", "ended")
getmetatable(ended).__gc(ended)
checkAnswersNothing(ended, "ended:")
checkEqual(other:ChildSize(), 0, "no method reached a node")
checkEqual(other:UI_GetNodeID(), "other", "the argument's node is untouched")

-- Argument 1 must be a wrapper: a table, a string, or a proxy of another module.
local supplier = other:UI_GetDrawSupplier()
for _, name in ipairs({ "ChildSize", "UI_GetNodeID", "UI_Show", "UI_SetLocalRectF", "Release" }) do
  for _, bad in ipairs({ {}, "node", supplier }) do
    local ok, message = pcall(set[name], bad, rect(0, 0, 1, 1))
    check(not ok and message:find("Bad user data", 1, true), name .. " on " .. type(bad))
  end
end
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("node_released: ok")

-- The node set's focus and tool tips: a disabled node refuses the focus, descendants
-- count only when asked, the focus listeners may end the wrapper that asked, and a tool
-- tip's width defaults to 400.
local check, checkEqual = zebhost.check, zebhost.checkEqual
local newNode = zebhost.newNode
local focus = zebhost.focus

local root = newNode("UI_SubView", "root")
local a = newNode("UI_SubView", "a", nil, root)
local b = newNode("UI_SubView", "b", nil, root)

local changes = {}
for _, node in ipairs({ a, b }) do
  local id = node:UI_GetNodeID()
  node:BindZebOperation("uiFocusChange", function(reason)
    changes[#changes + 1] = id .. ":" .. reason .. (node:UI_HasKeyboardFocus() and "+" or "-")
  end)
end

checkEqual(a:UI_GainKeyboardFocus(focus.kProgram), true, "a takes the focus")
checkEqual(a:UI_GainKeyboardFocus(focus.kProgram), true, "and again, which changes nothing")
checkEqual(a:UI_HasKeyboardFocus(), true, "UI_HasKeyboardFocus")
checkEqual(root:UI_HasKeyboardFocus(), false, "the parent alone hasn't")
checkEqual(root:UI_HasKeyboardFocus(true), true, "with descendants it has")
checkEqual(zebhost.snapshot(a).focus, true, "the toolkit's focus")

b:UI_SetEnabled(false)
checkEqual(b:UI_GainKeyboardFocus(focus.kProgram), false, "a disabled node is refused")
checkEqual(a:UI_HasKeyboardFocus(), true, "the focus stays where it was")
b:UI_SetEnabled()
checkEqual(b:UI_GainKeyboardFocus(focus.kTabForward), true, "enabled again it gets it")
checkEqual(table.concat(changes, " "),
  string.format("a:%d+ a:%d- b:%d+", focus.kProgram, focus.kTabForward, focus.kTabForward),
  "the loser hears first, then the gainer, with the reason and the focus already moved")
check(not pcall(b.UI_GainKeyboardFocus, b), "the reason is required")

-- A listener that ends the only wrapper of the node gaining the focus: the node is held
-- for the call, which answers normally.
local lone = newNode("UI_SubView", "lone")
local heard = 0
lone:BindZebOperation("uiFocusChange", function()
  heard = heard + 1
  getmetatable(lone).__gc(lone)
  collectgarbage("collect")
end)
checkEqual(lone:UI_GainKeyboardFocus(focus.kProgram), true, "answered after the listener")
checkEqual(heard, 1, "the listener ran")
checkEqual(select("#", lone:UI_HasKeyboardFocus()), 0, "the ended wrapper answers nothing")
collectgarbage("collect")
checkEqual(a:UI_GainKeyboardFocus(focus.kProgram), true, "the dead node left the focus")

-- Tool tips: UTF-8 text, width 400 unless given.
a:UI_SetToolTip("Gr\195\188\195\159e")
local shot = zebhost.snapshot(a)
checkEqual(shot.toolTip, "Gr\195\188\195\159e", "the text")
checkEqual(shot.toolTipWidth, 400, "UI_SetToolTip(text) uses a width of 400")
a:UI_SetToolTip("x", 120)
checkEqual(zebhost.snapshot(a).toolTipWidth, 120, "a given width")
a:UI_SetToolTip("y", nil)
checkEqual(zebhost.snapshot(a).toolTipWidth, 400, "a nil width is the default")
a:UI_SetToolTip(12)
checkEqual(zebhost.snapshot(a).toolTip, "12", "a number is text")
check(not pcall(a.UI_SetToolTip, a), "the text is required")
checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("node_focus: ok")

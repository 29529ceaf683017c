-- zebcontrols as a script meets it: one opening per state, the constructor table, the
-- wrapper class each constructor's node gets, and the interactive change message.
local check, checkEqual = zebhost.check, zebhost.checkEqual
local registry = debug.getregistry()

local controls = require "zeblua.zebcontrols"
check(zebcontrols ~= nil, "the global table is there")
local table_ = zebcontrols
local nodeMetatable = registry.zebUINode
check(type(nodeMetatable) == "table", "the node metatable is registered")
local knobMetatable = registry.zebKnob

-- The opener itself, as a host's second call reaches it: it finds "zebUINode" and answers
-- whatever lay on top of the stack, here its own argument, registering nothing again.
local opener
for template in package.cpath:gmatch("[^;]+") do
  local path = template:gsub("%?", "zeblua")
  local file = io.open(path)
  if file then
    file:close()
    opener = opener or package.loadlib(path, "luaopen_zeblua_zebcontrols")
  end
end
check(type(opener) == "function", "the opener is exported")
checkEqual(opener("what was on top"), "what was on top", "a second opening answers the top")
checkEqual(registry.zebUINode, nodeMetatable, "one set of metatables")
checkEqual(registry.zebKnob, knobMetatable, "the classes' metatables are not made again")
checkEqual(zebcontrols, table_, "the global table is not made again")
-- require runs the opener with the module's name on top when package.loaded has no entry
-- (a wrapper push opens the module without setting one): the name comes back, not the table.
package.loaded["zeblua.zebcontrols"] = nil
checkEqual(require "zeblua.zebcontrols", "zeblua.zebcontrols", "require of an opened module")
checkEqual(type(controls), "table", "the first require answered the table")

local count = 0
for _ in pairs(zebcontrols) do count = count + 1 end
checkEqual(count, 29, "the constructors")
checkEqual(select("#", zebcontrols.LoadControlsFromXml("any")), 0, "XML views answer nothing yet")

local message = registry.interactiveChangeMessage
checkEqual(message.__index, message, "the message metatable is its own __index")
checkEqual(message.beginChange, 0, "beginChange")
checkEqual(message.continueChange, 1, "continueChange")
checkEqual(message.finishChange, 2, "finishChange")
checkEqual(message.cancelChange, 3, "cancelChange")

-- A supplier proxy, for the constructors that take one.
local supplier
zebhost.canvas(1, 1, function(ink) supplier = ink:GetSupplier() end)

-- Constructor, its arguments, the registry metatable of its wrapper, the toolkit class.
local cases = {
  { "NewCheckbox", {}, "zebCheckbox", "UI_Checkbox" },
  { "NewRadioButton", {}, "zebRadioButton", "UI_RadioButton" },
  { "NewPictureButton", {}, "zebUI_PictureButton", "UI_PictureButton" },
  { "NewSearchBox", {}, "zebSearchBox", "UI_SearchBox" },
  { "NewMultiColumnTree", {}, "Zeb.MultiColumnTree", "LuaMultiColumnTree" },
  { "NewHotTextButton", {}, "zebHotTextButton", "UI_HotTextButton" },
  { "NewHotTextNumber", {}, "zebHotTextNumber", "UI_HotTextNumber" },
  { "NewHotTextTimecode", {}, "zebHotTextTimecode", "UI_HotTextTimecode" },
  { "NewKnob", {}, "zebKnob", "UI_Knob" },
  { "NewListBox", {}, "zebListBox", "UI_ListBox" },
  { "NewStaticText", {}, "zebStaticText", "UI_StaticText" },
  { "NewTextButton", {}, "zebUI_TextButton", "UI_TextButton" },
  { "NewDisclosureTriangleButton", {}, "zebUI_DisclosureTriangleButton",
    "UI_DisclosureTriangleButton" },
  { "NewSubView", {}, "zebSubView", "UI_SubView" },
  { "NewOverlaySubView", {}, "zebOverlaySubView", "LuaOverlaySubView" },
  -- a view container is a window: the window wrapper
  { "NewPopupViewContainer", {}, "zebOS_Window", "OS_PopupViewContainer" },
  { "NewScrollView", {}, "zebScrollView", "UI_ScrollView" },
  { "NewPopup", {}, "zebUI_Popup", "UI_Popup" },
  { "NewSplitterView", {}, "zebSplitterView", "UI_SplitterView" },
  { "NewArrangementView", {}, "zebArrangementView", "UI_ArrangementView" },
  { "NewSectionView", {}, "zebSectionView", "UI_SectionView" },
  { "NewPopupWindow", { supplier }, "zebLuaPopupWindow", "LuaPopupWindow" },
  { "NewDialog", { supplier, "title", {}, {}, nil, n = 5 }, "zebLuaDialog", "UI_Dialog" },
  { "NewStaticImage", {}, "zebUI_StaticImage", "UI_StaticImage" },
  { "NewTextEdit", {}, "zebEditText", "UI_TextEdit" },
  { "NewDivider", {}, "zebDivider", "UI_Divider" },
  { "NewTabWell", {}, "zebTabWell", "LuaUI_TabWell" },
  { "NewWebView", {}, "zebWebView", "ZEBWebView" },
}
checkEqual(#cases + 1, count, "every constructor but LoadControlsFromXml is listed")
for _, case in ipairs(cases) do
  local name, arguments, metatableName, className = case[1], case[2], case[3], case[4]
  local results = { n = 0 }
  local function keep(...) results = { n = select("#", ...), ... } end
  keep(zebcontrols[name](unpack(arguments, 1, arguments.n or #arguments)))
  checkEqual(results.n, 1, name .. " answers one wrapper")
  local control = results[1]
  check(registry[metatableName] ~= nil, metatableName .. " is registered")
  checkEqual(getmetatable(control), registry[metatableName], name .. "'s metatable")
  checkEqual(getmetatable(control).__index, getmetatable(control), name .. ": own __index")
  checkEqual(type(control.ControlWrapperIdentifier), "function", name .. " is a wrapper")
  checkEqual(type(control.BindZebOperation), "function", name .. " carries the node set")
  checkEqual(zebhost.snapshot(control).class, className, name .. " builds its class")
  -- A tree scrolls its rows in a scroll view of its own; a dialog holds its container.
  local ownChildren = (name == "NewMultiColumnTree" or name == "NewDialog") and 1 or 0
  checkEqual(zebhost.snapshot(control).childCount, ownChildren,
    name .. " starts without children of the script's")
end

print("controls_module: ok")

-- Views from XML loaded as a script does: nested controls found by id, the root placed at
-- its own origin and shown, the language variant preferred, the debug folder searched
-- first, and views that don't exist or don't parse answering nothing.
require "zeblua.zebcontrols"
local check, checkEqual = zebhost.check, zebhost.checkEqual
local registry = debug.getregistry()
local fixtures = (arg[0]:match("^(.*)/lua/[^/]*$") or "tests") .. "/fixtures"
local load = zebcontrols.LoadControlsFromXml

-- Before any folder is added, no view exists: no result, no error, no report.
zebhost.clearAssertReports()
checkEqual(select("#", load("panel")), 0, "no view of that name: nothing")
checkEqual(#zebhost.assertReports(), 0, "a missing view makes no report")
zebhost.addResourceFolder(fixtures .. "/views")

-- A view with nested controls, placed at (30, 40) and hidden in the file.
zebhost.clearAssertReports()
local panel = load("panel")
checkEqual(getmetatable(panel), registry.zebSubView, "the root's wrapper")
checkEqual(panel:UI_GetNodeID(), "panel", "the root's id")
checkEqual(zebhost.rectText(panel:UI_GetLocalRectF()), "0 0 200 120",
  "at its own origin, with the file's size")
checkEqual(panel:UI_IsShown(), true, "shown, though the file hides it")

-- Nodes are found by id at any depth, each of its class, with the file's frame.
local expected = {
  ok = { "zebUI_TextButton", "UI_TextButton", 10, 90 },
  box = { "zebSubView", "UI_SubView", 80, 10 },
  check = { "zebCheckbox", "UI_Checkbox", 0, 0 },
  number = { "zebHotTextNumber", "UI_HotTextNumber", 0, 30 },
  timecode = { "zebHotTextTimecode", "UI_HotTextTimecode", 0, 60 },
  image = { "zebUI_StaticImage", "UI_StaticImage", 10, 10 },
}
for id, row in pairs(expected) do
  local node = panel:GetDescendentByID(id)
  check(node ~= nil, id .. " is found")
  checkEqual(getmetatable(node), registry[row[1]], id .. "'s wrapper")
  checkEqual(zebhost.snapshot(node, 0).class, row[2], id .. "'s class")
  local rect = node:UI_GetLocalRectF()
  checkEqual(rect.left .. " " .. rect.top, row[3] .. " " .. row[4], id .. "'s place")
end
checkEqual(panel:GetDescendentByID("timecode"):UI_IsShown(), false, "an inner node stays hidden")
local box = panel:GetDescendentByID("box")
check(box:ChildGet(3) ~= nil and box:ChildGet(4) == nil, "the box has its three built children")
checkEqual(panel:GetDescendentByID("box"):ChildGet(1):UI_GetNodeID(), "check", "in file order")
checkEqual(panel:ChildGet(3):UI_GetNodeID(), "image", "the root's last child")

-- The class nobody builds is skipped with its child and reported once.
checkEqual(panel:GetDescendentByID("ghost"), nil, "the unknown class is not built")
checkEqual(panel:GetDescendentByID("ghostChild"), nil, "nor its children")
local reports = zebhost.assertReports()
checkEqual(#reports, 1, "one report for the load")
check(reports[1].message:find("NoSuchControl", 1, true), "it names the class: " .. reports[1].message)

-- Each load is a new tree: the script gets the root alone, and each root is its own.
local again = load("panel")
check(again ~= panel and again:GetDescendentByID("check") ~= nil, "a second load is a new tree")
again:GetDescendentByID("check"):SetChecked(true)
checkEqual(panel:GetDescendentByID("check"):IsChecked(), false, "the first tree is untouched")
-- The tree lives through the root's wrapper alone: once it is collected the tree is gone,
-- and a node found in it and held lives on by itself.
local keptCheck = again:GetDescendentByID("check")
again = nil
collectgarbage("collect")
checkEqual(keptCheck:IsChecked(), true, "a held inner node lives on")
checkEqual(keptCheck:UI_GetParentNode(), nil, "without the parent that died with the root")

-- A root of the binding's overlay class gets the overlay wrapper.
local overlay = load("overlay")
checkEqual(getmetatable(overlay), registry.zebOverlaySubView, "the overlay's wrapper")
checkEqual(getmetatable(overlay:GetDescendentByID("knob")), registry.zebKnob, "its knob")

-- The binding's tree class, beside a toolkit class with constructor arguments of its own.
local browser = load("tree")
checkEqual(getmetatable(browser:GetDescendentByID("tree")), registry["Zeb.MultiColumnTree"],
  "a LuaMultiColumnTree gets the tree's wrapper")
checkEqual(getmetatable(browser:GetDescendentByID("search")), registry.zebSearchBox, "a search box")

-- Malformed, empty and unbuildable views answer nothing; the malformed one is reported.
zebhost.clearAssertReports()
checkEqual(select("#", load("broken")), 0, "malformed XML: nothing")
reports = zebhost.assertReports()
checkEqual(#reports, 1, "and one report")
check(reports[1].message:find("malformed", 1, true), "that says so: " .. reports[1].message)
zebhost.clearAssertReports()
checkEqual(select("#", load("empty")), 0, "an empty file: nothing")
checkEqual(#zebhost.assertReports(), 0, "an empty file is no fault to report")
checkEqual(select("#", load("orphan")), 0, "a root nobody builds: nothing")
checkEqual(#zebhost.assertReports(), 1, "the unknown root is reported")
checkEqual(select("#", load("nothing-of-this-name")), 0, "still nothing for a missing view")

-- The language variant wins over the plain resource; without a variant the plain one.
checkEqual(load("greeting"):UI_GetNodeID(), "english", "the -en variant in English")
zebhost.setLanguage("de")
checkEqual(load("greeting"):UI_GetNodeID(), "german", "the -de variant in German")
zebhost.setLanguage("fr")
checkEqual(load("greeting"):UI_GetNodeID(), "plain", "no -fr variant: the plain view")
zebhost.setLanguage("en")
checkEqual(load("only"):UI_GetNodeID(), "only-plain", "a view without variants")

-- A debug folder under another key is never read.
zebhost.setDebugXMLFolder("other_resources", fixtures .. "/views-debug")
checkEqual(load("greeting"):UI_GetNodeID(), "english", "another key changes nothing")
-- A debug folder without an "xml" sub-folder changes nothing either.
zebhost.setDebugXMLFolder("app_resources", fixtures .. "/views/xml")
checkEqual(load("greeting"):UI_GetNodeID(), "english", "no xml sub-folder: the resource")
-- The debug folder is searched before the resources, by the variant's name.
zebhost.setDebugXMLFolder("app_resources", fixtures .. "/views-debug")
checkEqual(load("greeting"):UI_GetNodeID(), "debug-english", "the debug copy of the variant")
zebhost.setLanguage("fr")
checkEqual(load("greeting"):UI_GetNodeID(), "debug-plain", "the debug copy of the plain view")
zebhost.setLanguage("en")
checkEqual(load("only"):UI_GetNodeID(), "only-plain", "a file missing there: the resource")
checkEqual(select("#", load("blank")), 0, "an empty debug file stops the resource")

-- The name is a string: anything else is the usual argument error.
local ok, message = pcall(load)
check(not ok and message:find("bad argument #1", 1, true) and
  message:find("string expected, got no value", 1, true), tostring(message))
ok, message = pcall(load, {})
check(not ok and message:find("string expected, got table", 1, true), tostring(message))
checkEqual(select("#", load(42)), 0, "a number is a name, of no view")
print("xml_views: ok")

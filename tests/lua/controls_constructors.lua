-- The constructors whose arguments matter, checked through what the new controls carry.
local check, checkEqual = zebhost.check, zebhost.checkEqual
local state, raises = zebhost.stateOf, zebhost.checkRaises
local point = zeblua_CreateNewPointF32
require "zeblua.zebcontrols"

local supplier
zebhost.canvas(1, 1, function(ink) supplier = ink:GetSupplier() end)

-- NewDialog: the owner is argument 5. Only an explicit nil means the main window; four
-- arguments are "Bad user data", as is any value that is no wrapper.
raises("Bad user data", zebcontrols.NewDialog, supplier, "Four", point(1, 2), point(3, 4))
raises("Bad user data", zebcontrols.NewDialog, supplier, "Table", point(1, 2), point(3, 4), {})
raises("bad argument #1", zebcontrols.NewDialog, {}, "No supplier", point(1, 2), point(3, 4), nil)
local dialog = zebcontrols.NewDialog(supplier, "Größe", point(10, 20), point(200, 100), nil)
local shot = zebhost.snapshot(dialog)
checkEqual(shot.state.title, "Größe", "the title crosses as UTF-8 both ways")
checkEqual(shot.state.owner, "mainTopLevelWindow", "the main window owns it")
checkEqual(shot.state.ownerIsPlatformWindow, true, "through its operating system window")
checkEqual(shot.shown, false, "a new window is hidden")
-- The point readers leave their target alone when nil is on top of the stack, so the
-- trailing nil keeps position and size at zero.
checkEqual(shot.rect.left + shot.rect.top + shot.rect.width + shot.rect.height, 0,
  "the trailing nil leaves both points at zero")
local panel = zebcontrols.NewSubView()
panel:UI_SetNodeID("panel")
local owned = zebcontrols.NewDialog(supplier, "Owned", point(10, 20), point(200, 100), panel)
shot = zebhost.snapshot(owned)
checkEqual(shot.state.owner, "panel", "a wrapper's node owns it")
checkEqual(shot.state.ownerIsPlatformWindow, false, "a node, not a platform window")
checkEqual(zebhost.rectText(shot.rect), "10 20 200 100",
  "with a wrapper on top both points are read")
panel = nil
collectgarbage("collect")
checkEqual(zebhost.snapshot(owned).state.owner, "panel", "the dialog holds its owner")
local released = zebcontrols.NewSubView()
released:Release()
shot = zebhost.snapshot(zebcontrols.NewDialog(supplier, "", point(0, 0), point(1, 1), released))
checkEqual(shot.state.owner, nil, "a released wrapper gives no owner")

-- NewTextEdit: only a size above 0 replaces the theme's.
local function fontSize(...) return state(zebcontrols.NewTextEdit(...)).customFontSize end
checkEqual(fontSize(0, 0, 0), 0, "size 0 leaves the font size alone")
checkEqual(fontSize(0, 0, -1), 0, "a negative size leaves it alone")
checkEqual(fontSize(0, 0, 0 / 0), 0, "NaN leaves it alone")
checkEqual(fontSize(0, 0, "13.5"), 13.5, "a numeric string is a size")
checkEqual(fontSize(3, 2, 9), 9, "a size above 0 is set")
local edit = state(zebcontrols.NewTextEdit(5, 2))
checkEqual(edit.flags .. "/" .. edit.alignment, "5/2", "flags and alignment")
edit = state(zebcontrols.NewTextEdit())
checkEqual(edit.flags .. "/" .. edit.alignment .. "/" .. edit.customFontSize, "0/0/0", "defaults")
raises("bad argument #1", zebcontrols.NewTextEdit, "x")

-- NewSearchBox: flags by count and truth; only the second brings the two containers.
local box = state(zebcontrols.NewSearchBox())
check(not box.firstFlag and not box.secondFlag, "both flags false")
check(not box.searchHistory and not box.savedSearches, "neither container")
box = state(zebcontrols.NewSearchBox(1, false))
check(box.firstFlag and not box.searchHistory, "any true value is true; no containers")
box = state(zebcontrols.NewSearchBox(false, 0))
check(box.secondFlag and box.searchHistory and box.savedSearches, "second: both containers")

-- NewPictureButton and NewStaticImage: the name, empty too, and the image provider.
local picture = state(zebcontrols.NewPictureButton())
checkEqual(picture.imageName, "", "an empty image base name")
checkEqual(picture.imageSupply, true, "the supply function all the same")
picture = state(zebcontrols.NewPictureButton("tool\0bar"))
checkEqual(picture.imageName, "tool\0bar", "the name is kept as 8-bit text")
picture = state(zebcontrols.NewStaticImage("zeblua_badge"))
checkEqual(picture.imageName .. tostring(picture.imageSupply), "zeblua_badgetrue", "static image")
checkEqual(state(zebcontrols.NewStaticImage()).imageSupply, true, "no name, a supply")
raises("bad argument #1", zebcontrols.NewStaticImage, {})
raises("bad argument #1", zebcontrols.NewPictureButton, nil)

-- NewScrollView: a view that is no sub view counts as none; a non-wrapper raises. Every
-- control view is a sub view here, so the web view (a plain node) and a window stand for
-- the nodes that are none.
for _, other in ipairs({ zebcontrols.NewWebView(), zebcontrols.NewPopupWindow(supplier) }) do
  local scroller = zebhost.snapshot(zebcontrols.NewScrollView(0, other))
  checkEqual(scroller.childCount, 0, "no sub view, no content view")
  checkEqual(scroller.state.contentView, nil, "no content view")
end
local knob = zebcontrols.NewKnob()
knob:UI_SetNodeID("knob")
checkEqual(zebhost.snapshot(zebcontrols.NewScrollView(0, knob)).state.contentView, "knob",
  "a knob is a control view, so a sub view")
local scroller
local content = zebcontrols.NewSubView()
content:UI_SetNodeID("content")
scroller = zebhost.snapshot(zebcontrols.NewScrollView(7, content))
checkEqual(scroller.state.contentView, "content", "a sub view is the content view")
checkEqual(scroller.children[1].id, "content", "and the scroll view's child")
checkEqual(scroller.state.flags, 7, "flags")
checkEqual(zebhost.snapshot(zebcontrols.NewScrollView(nil)).state.flags, 0, "nil flags")
raises("Bad user data", zebcontrols.NewScrollView, 0, "view")
raises("Bad user data", zebcontrols.NewScrollView, 0, nil)
raises("bad argument #1", zebcontrols.NewScrollView, "x")

-- NewPopupWindow: 100 by 100 at the origin; floating by truth of argument 2.
local popup = zebhost.snapshot(zebcontrols.NewPopupWindow(supplier))
checkEqual(zebhost.rectText(popup.rect), "0 0 100 100", "the structure rect")
checkEqual(popup.state.floating, false, "not floating by default")
checkEqual(state(zebcontrols.NewPopupWindow(supplier, "yes")).floating, true, "floating")
raises("bad argument #1", zebcontrols.NewPopupWindow)

-- The classes made with fixed arguments.
local splitter = state(zebcontrols.NewSplitterView())
checkEqual(string.format("%g %g %g", splitter.direction, splitter.split, splitter.barWidth),
  "0 0.5 6", "split direction 0, half, a bar of 6")
local section = state(zebcontrols.NewSectionView())
checkEqual(section.title, "", "an empty title")
checkEqual(section.opened, true, "opened")
checkEqual(state(zebcontrols.NewPopup()).popupType, 0, "popup type 0")
checkEqual(state(zebcontrols.NewPopupViewContainer()).popsUp, true, "a container that pops up")
print("controls_constructors: ok")

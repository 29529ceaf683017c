-- Scroll geometry as a script sees it: the viewable rect is the bounds less the bars, the
-- offset moves the content, ScrollIntoView scrolls the least distance, and each real
-- scroll is a change of the control's value.
require "zeblua.zebcontrols"
local check, checkEqual, text = zebhost.check, zebhost.checkEqual, zebhost.rectText
local rect, point = zeblua_CreateNewRectF32, zeblua_CreateNewPointF32
local C = zebcontrols


-- Bars by flags: 1 horizontal, 2 vertical; none without flags.
local content = C.NewSubView()
content:UI_SetNodeID("content")
content:UI_SetLocalRectF(rect(0, 0, 400, 300))
local scroller = C.NewScrollView(3, content)
scroller:UI_SetLocalRectF(rect(0, 0, 100, 100))
check(scroller:GetScrollBarX() and scroller:GetScrollBarY(), "both bars")
checkEqual(scroller:GetScrollBarSize(), 12, "bars 12 wide")
checkEqual(text(scroller:GetViewableRectF()), "0 0 88 88", "the bounds less the bars")
checkEqual(text(scroller:GetScrollBarX():UI_GetLocalRectF()), "0 88 88 12", "along the bottom")
checkEqual(text(scroller:GetScrollBarY():UI_GetLocalRectF()), "88 0 12 88", "along the right")
checkEqual(scroller:GetContentView():UI_GetNodeID(), "content", "the content view")
local plain = C.NewScrollView(0)
plain:UI_SetLocalRectF(rect(0, 0, 50, 40))
checkEqual(select("#", plain:GetContentView()), 0, "no content view: nothing")
checkEqual(select("#", plain:GetScrollBarX()) + select("#", plain:GetScrollBarY()), 0, "no bars")
checkEqual(text(plain:GetViewableRectF()), "0 0 50 40", "without bars, all of the bounds")

-- Every real scroll notifies; one that moves nothing does not.
local changes = 0
scroller:NotifyWhenChanged(function() changes = changes + 1 end)

-- The least distance: a rect beyond the bottom right comes in at the bottom right ...
scroller:ScrollIntoView(rect(200, 150, 20, 20))
checkEqual(text(scroller:GetContentRectF()), "-132 -82 400 300", "scrolled to show it at the edge")
checkEqual(text(scroller:GetViewedContentRectF()), "132 82 88 88", "the part of the content seen")
checkEqual(text(content:UI_GetLocalRectF()), "-132 -82 400 300", "the content view moved")
checkEqual(changes, 1, "a scroll is a change")
-- ... one partly left of the view comes in at the left, the other axis left alone ...
scroller:ScrollIntoView(rect(100, 100, 10, 10))
checkEqual(text(scroller:GetContentRectF()), "-100 -82 400 300", "only as far as needed")
-- ... and one in view moves nothing.
scroller:ScrollIntoView(rect(110, 90, 10, 10))
checkEqual(text(scroller:GetContentRectF()), "-100 -82 400 300", "already in view")
checkEqual(changes, 2, "no change, no notification")
local snap = zebhost.snapshot(scroller).state
checkEqual(snap.scrollX .. " " .. snap.scrollY, "100 82", "the snapshot reports the offset")

-- The flag (true when absent) keeps the content covering the view; false lets it go past.
scroller:ScrollIntoView(rect(390, 0, 50, 10))
checkEqual(scroller:GetContentRectF().left, -312, "stopped at the content's right end")
scroller:ScrollIntoView(rect(0, 0, 10, 10))
scroller:ScrollIntoView(rect(390, 0, 50, 10), false)
checkEqual(scroller:GetContentRectF().left, -352, "without the flag the rect comes fully in")

-- The scale divides the viewed content rect; setters answer the stack's top value.
scroller:SetContentRectF(rect(0, 0, 400, 300))
local scale = point(2, 4)
checkEqual(scroller:SetScale(scale), scale, "SetScale answers its own argument")
local s = scroller:GetScale()
checkEqual(s.x .. " " .. s.y, "2 4", "the scale")
checkEqual(text(scroller:GetViewedContentRectF()), "0 0 44 22", "viewed through the scale")
scroller:ScrollIntoView(rect(50, 0, 10, 10))
checkEqual(scroller:GetContentRectF().left, -32, "content units times the scale")
checkEqual(zebhost.snapshot(scroller).state.scaleY, 4, "the snapshot reports the scale")
checkEqual(scroller:SetScrollBarSize(20), 20, "SetScrollBarSize answers its argument")
checkEqual(text(scroller:GetViewableRectF()), "0 0 80 80", "wider bars, less to view")
checkEqual(scroller:Update(), scroller, "Update answers the wrapper itself")

-- A resize lays out the bars, not the content.
scroller:UI_SetLocalRectF(rect(0, 0, 120, 60))
checkEqual(text(scroller:GetScrollBarX():UI_GetLocalRectF()), "0 40 100 20", "the bar follows")
checkEqual(scroller:GetContentRectF().left, -32, "the content keeps its place")

-- Type faults.
local ok, message = pcall(scroller.SetScale, C.NewSubView(), scale)
check(not ok and message:find("Invalid type conversion.", 1, true), "a sub view is no scroll view")
print("containers_scroll: ok")

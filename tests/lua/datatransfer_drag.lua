-- Drags as a user finishes them: an answered effect, a cancel, an effect the drag does not
-- offer, a drop onto a plain view, and a send object released by a timer during its drag.
local check, checkEqual = zebhost.check, zebhost.checkEqual
local rect = zeblua_CreateNewRectF32

require "zeblua.datatransfer.OSSendData"
local Copy, Move, Link = OSSendData.DropEffectCopy, OSSendData.DropEffectMove, OSSendData.DropEffectLink

checkEqual(zebhost.lastDrag(), nil, "no drag yet")

-- The user picks an effect the drag offers: the drag returns it.
local send = OSSendData.NewSendData()
send:PutText("take 3")
zebhost.answer(Move)
checkEqual(send:DoDragAndDrop(Copy + Move), Move, "the answered effect")
local drag = zebhost.lastDrag()
checkEqual(drag.effect, Move, "lastDrag effect")
checkEqual(drag.allowed, Copy + Move, "lastDrag allowed")
checkEqual(drag.types[1], OSSendData.DropUnicodeTextType, "the drag carried the text type")
checkEqual(drag.cancelled, false, "not cancelled")
checkEqual(drag.depth, 0, "no drag runs any more")
checkEqual(drag.hadNativeEvent, false, "a headless script has no current native event")

-- Escape (a negative answer) cancels: 0. An effect the drag does not offer: 0. A release
-- outside anything (answer 0): 0 and not cancelled.
zebhost.answer(-1)
checkEqual(send:DoDragAndDrop(Copy), 0, "a cancelled drag answers none")
checkEqual(zebhost.lastDrag().cancelled, true, "and says so")
zebhost.answer(Link)
checkEqual(send:DoDragAndDrop(Copy + Move), 0, "link is not offered")
zebhost.answer(Copy + Move)
checkEqual(send:DoDragAndDrop(Copy + Move), 0, "two effects at once are no answer")
zebhost.answer(0)
checkEqual(send:DoDragAndDrop(Copy), 0, "let go over nothing")
checkEqual(zebhost.lastDrag().cancelled, false, "which is no cancel")

-- A drop onto a view that takes no drops ends with none.
local root = zebhost.newNode("UI_SubView", "root", rect(0, 0, 100, 100))
zebhost.newNode("UI_SubView", "plain", rect(10, 10, 50, 50), root)
zebhost.dropOn(root, 20, 20)
checkEqual(send:DoDragAndDrop(Copy + Move + Link), 0, "a plain view takes nothing")
checkEqual(zebhost.lastDrag().dropped, false, "nothing was dropped")
checkEqual(zebhost.lastDrag().target, "", "onto no target")

-- The drag is a nested run: a timer fires during it, and releasing the send object there
-- does not free it under the drag; the answer queued later with a delay ends it.
local dragged = OSSendData.NewSendData()
dragged:PutText("released while dragged")
local during = {}
local timer
timer = root:UI_InstallTimer(0.01, function()
  during.depth = zebhost.lastDrag().depth
  during.types = #zebhost.lastDrag().types
  dragged:Release()
  dragged:Release()
  during.text = tostring(dragged)
  root:UI_RemoveTimer(timer)
end)
zebhost.answer(Copy, "", 50)
checkEqual(dragged:DoDragAndDrop(Copy), Copy, "the drag still ends with its answer")
checkEqual(during.depth, 1, "the timer ran inside the drag")
checkEqual(during.types, 1, "and saw what it carries")
checkEqual(during.text, "OSSendData((nil))", "released there")
checkEqual(select("#", dragged:DoDragAndDrop(Copy)), 0, "a released object drags nothing")
collectgarbage()

-- The drag carries a copy: what is put after it started, or after it ended, is the
-- send object's own.
local later = OSSendData.NewClipboardSendData()
zebhost.answer(Copy)
later:DoDragAndDrop(Copy)
checkEqual(#zebhost.lastDrag().types, 0, "an empty drag carries no type")
later:PutText("after")
later:PutOnClipboard()
checkEqual(zebhost.clipboard()[OSSendData.DropUnicodeTextType], "after", "then published")

checkEqual(#zebhost.assertReports(), 0, "no assertion reports")
print("datatransfer_drag: ok")

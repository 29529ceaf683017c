-- Alerts and the input box as a person answers them: each box is a modal run that takes
-- the next queued answer; the argument rules answer nothing; silence answers nothing.
require "zeblua.uisupport.Alert"
local check, checkEqual, count = zebhost.check, zebhost.checkEqual, zebhost.count

-- The numbering of the constants.
local constants = {
  IconNone = 0, IconStop = 1, IconQuestion = 2, IconCaution = 3, IconNote = 4,
  TypeOk = 0, TypeOkCancel = 1, TypeAbortRetryIgnore = 2, TypeYesNoCancel = 3, TypeYesNo = 4,
  TypeRetryCancel = 5, TypeRetryQuit = 6,
  ResponseOk = 0, ResponseCancel = 1, ResponseAbort = 2, ResponseIgnore = 3, ResponseYes = 4,
  ResponseNo = 5, ResponseRetry = 6,
}
local seen = 0
for name, value in pairs(constants) do
  checkEqual(Alert[name], value, name)
  seen = seen + 1
end
checkEqual(seen, 19, "nineteen constants")

-- Wrong counts answer nothing and show nothing.
checkEqual(count(Alert.ShowNote("a")), 0, "ShowNote with one text")
checkEqual(count(Alert.ShowNote("a", "b", "c")), 0, "ShowNote with three texts")
checkEqual(count(Alert.ShowStop("a", nil)), 0, "a nil second text is no text")
checkEqual(count(Alert.Show(Alert.TypeOk, Alert.IconNone, "a")), 0, "Show with three")
checkEqual(count(Alert.Show(Alert.TypeOk, Alert.IconNone, "a", "b", "c")), 0, "Show with five")
checkEqual(count(Alert.SimpleInputBox("a", "b")), 0, "SimpleInputBox with two")
checkEqual(count(Alert.SimpleInputBox("a", "b", "c", "d")), 0, "SimpleInputBox with four")
checkEqual(count(Alert.ShowStop({}, "b")), 0, "a text that is no string")
checkEqual(#zebhost.shownAlerts(), 0, "no box appeared")

-- A note takes one answer, whatever it is, and answers true.
zebhost.answer(0)
local results = { Alert.ShowNote("Title", "Message") }
checkEqual(#results, 1, "ShowNote answers one value")
checkEqual(results[1], true, "and it is true")
local shown = zebhost.shownAlerts()[1]
checkEqual(shown.first, "Title", "the first text")
checkEqual(shown.second, "Message", "the second text")
checkEqual(shown.icon, Alert.IconNote, "a note's icon")
checkEqual(shown.parent, "mainTopLevelWindow", "over the application's main window")
checkEqual(zebhost.answer and #zebhost.shownAlerts(), 1, "one box")

zebhost.answer(0)
checkEqual(Alert.ShowStop("s", "t"), true, "ShowStop")
checkEqual(zebhost.shownAlerts()[2].icon, Alert.IconStop, "a stop's icon")
zebhost.answer(0)
checkEqual(Alert.ShowCaution("c", 12), true, "a number is a text")
checkEqual(zebhost.shownAlerts()[3].second, "12", "read as its text")
checkEqual(zebhost.shownAlerts()[3].icon, Alert.IconCaution, "a caution's icon")

-- Show answers the button pressed.
zebhost.answer(4)
checkEqual(Alert.Show(Alert.TypeYesNo, Alert.IconQuestion, "q", "?"), 4, "answered 4 gives 4")
zebhost.answer(Alert.ResponseRetry)
checkEqual(Alert.Show(Alert.TypeRetryCancel, Alert.IconCaution, "r", "!"), Alert.ResponseRetry,
  "a retry")
local last = zebhost.shownAlerts()[5]
checkEqual(last.type, Alert.TypeRetryCancel, "the type reached the box")
checkEqual(last.icon, Alert.IconCaution, "the icon reached the box")
-- Type and icon are read as integers: a fraction is cut.
zebhost.answer(5)
checkEqual(Alert.Show(4.9, "2", "a", "b"), 5, "fractions and numeric strings")
checkEqual(zebhost.shownAlerts()[6].type, 4, "4.9 is type 4")
checkEqual(zebhost.shownAlerts()[6].icon, 2, '"2" is icon 2')

-- A text is cut at its first zero byte.
zebhost.answer(0)
Alert.ShowNote("before\0after", "x")
checkEqual(zebhost.shownAlerts()[7].first, "before", "cut at the zero byte")

-- The input box: OK with a text confirms, anything else cancels.
zebhost.answer(1, "x")
local confirmed, text = Alert.SimpleInputBox("Name", "Enter a name", "initial")
checkEqual(confirmed, true, "confirmed")
checkEqual(text, "x", "the text entered")
zebhost.answer(1, "")
checkEqual(select(2, Alert.SimpleInputBox("a", "b", "c")), "", "an empty text is a text")
zebhost.answer(2048, "typed but cancelled")
results = { Alert.SimpleInputBox("a", "b", "c") }
checkEqual(#results, 1, "a cancel answers one value")
checkEqual(results[1], false, "and it is false")
zebhost.answer(1, "\xc3\xa9t\xc3\xa9")
checkEqual(select(2, Alert.SimpleInputBox("a", "b", "c")), "\xc3\xa9t\xc3\xa9",
  "UTF-8 both ways")

-- A box closed without an answer (nothing queued): a cancel, with its report.
zebhost.clearAssertReports()
checkEqual(Alert.Show(Alert.TypeOkCancel, Alert.IconNone, "a", "b"), Alert.ResponseCancel,
  "closed is cancelled")
checkEqual(Alert.SimpleInputBox("a", "b", "c"), false, "a closed input box is cancelled")
check(#zebhost.assertReports() >= 1, "the unanswered runs are reported")

-- Script runs while a box is up: a timer's callback runs inside the modal run.
local view = zebhost.newNode("UI_SubView", "timerView", zeblua_CreateNewRectF32(0, 0, 1, 1))
local ticks, timer = 0, nil
timer = view:UI_InstallTimer(0.01, function() ticks = ticks + 1; view:UI_RemoveTimer(timer) end)
zebhost.answer(6, "", 50)
checkEqual(Alert.Show(Alert.TypeRetryQuit, Alert.IconStop, "a", "b"), 6, "answered after a wait")
checkEqual(ticks, 1, "the timer fired while the box was up")

-- Silence: no value from any of the five, no box, no answer taken.
zebhost.clearAssertReports()
zebhost.setAlertsSilent(true)
zebhost.setAlertsSilent(true)
checkEqual(#zebhost.assertReports(), 2, "setting the switch is reported each time")
checkEqual(zebhost.assertReports()[1].expression, "0", "as the toolkit's unconditional report")
local before = #zebhost.shownAlerts()
zebhost.answer(4)
checkEqual(count(Alert.ShowNote("a", "b")), 0, "silent ShowNote")
checkEqual(count(Alert.ShowStop("a", "b")), 0, "silent ShowStop")
checkEqual(count(Alert.ShowCaution("a", "b")), 0, "silent ShowCaution")
checkEqual(count(Alert.Show(Alert.TypeOk, Alert.IconNone, "a", "b")), 0, "silent Show")
checkEqual(count(Alert.SimpleInputBox("a", "b", "c")), 0, "silent SimpleInputBox")
checkEqual(#zebhost.shownAlerts(), before, "no box appeared")
zebhost.setAlertsSilent(false)
checkEqual(Alert.Show(Alert.TypeOk, Alert.IconNone, "a", "b"), 4, "the queued answer is still there")

// The native services of the host's zebhost table: the event loop's clock, quitting,
// scripted user answers for modal interactions, the toolkit's input numbering, and
// offscreen drawing.
#pragma once

struct lua_State;

namespace zebhost {

// Adds the functions to the global table zebhost, made if missing; leaves the stack as
// it was.
//   zebhost.now()                        -> virtual time in milliseconds
//   zebhost.advance(ms)                  -- moves it forward, firing due timers
//   zebhost.quit()                       -- ends the event loop after the current call
//   zebhost.answer(code [, text [, ms]]) -- queues a user answer, taken ms or later
//   zebhost.inputCodes()                 -> the input constants (HostInputCodes.h), which
//                                           the script layer publishes as zebhost.mouse etc.
//   zebhost.canvas(w, h, fn [, pngPath]) -> true; fn(ink) draws (HostCanvas.h)
// and the test harness: newNode (HostNodes.h); sendMouse, click, drag, sendKey, type,
// assertReports, clearAssertReports (HostHarness.h); draw, compareImage (HostPicture.h);
// snapshot (HostSnapshot.h); the views from XML hooks (HostViews.h); clipboard,
// setClipboard, lastDrag, dropOn, withNativeEvent (HostDataTransfer.h).
void OpenHostFunctions(lua_State* L);

}  // namespace zebhost

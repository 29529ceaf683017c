// The test harness's input: mouse and key events injected into node trees, and the
// assertion reports a script can check.
#pragma once

struct lua_State;

namespace zebhost {

// Adds to the global table zebhost. Points are in the root's own coordinates, the same as
// the pixels of zebhost.draw(root). Each event goes through the node manager as a device's
// would (hit-testing, capture, enter and exit, focus, bubbling), and each function answers
// a new wrapper of the node that took the (last) event, or nil.
//   zebhost.sendMouse(root, event)          -- one mouse event table, as the constructor
//                                              zeblua_CreateNewZEBUIMouseEvent makes it
//   zebhost.click(root, x, y [, modifiers]) -- move, down, up with the left button;
//                                              answers what took the down
//   zebhost.drag(root, x0, y0, x1, y1 [, steps]) -- move, down at the start, steps drags
//                                              (default 1) to the end, up; answers what
//                                              took the down
//   zebhost.sendKey(event [, target])       -- event: {keyCode, character (a number or a
//                                              string), modKey, action (default down),
//                                              isRepeat}, to target or the focused node
//   zebhost.type(text)                      -- per character a down and an up to the
//                                              focused node; answers what took the last down
//   zebhost.assertReports()                 -> {{expression, message, file, line}, ...}
//   zebhost.clearAssertReports()
void OpenHostHarness(lua_State* L);

}  // namespace zebhost

// The host's side of the application services: what alerts, menus and URL opens a script
// caused, and the monitors the machine has.
#pragma once

struct lua_State;

namespace zebhost {

// Adds to the global table zebhost:
//   zebhost.shownAlerts()        -> {{type, icon, first, second, parent, response}, ...}
//                                   every alert box shown, oldest first (parent is the
//                                   parent's node id, "" without one)
//   zebhost.lastMenuRun()        -> {runs, node, place = rect, size, answer}: the last
//                                   popup or context menu run and how many ran
//   zebhost.openedURLs()         -> {"https://...", ...}: the addresses opened, oldest first
//   zebhost.setMonitors(rects)   -- the machine's monitors from now on, each {left, top,
//                                   width, height} (or a rect table); no argument: the
//                                   default two again
//   zebhost.setAlertsSilent(flag) -- the library's exported switch, with its report
// All of it is forgotten, and the silence and the themes reset, when the state closes.
void OpenHostServices(lua_State* L);

}  // namespace zebhost

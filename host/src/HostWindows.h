// Windows as the toolkit drives them from outside a script.
#pragma once

struct lua_State;

namespace zebhost {

// Adds to the global table zebhost:
//   zebhost.closeIfPopup(window) -> closed: asks the window whether a click elsewhere closes
//                                   it (UI_CloseIfPopup), as the toolkit does, and hides it
//                                   when the answer is true
void OpenHostWindows(lua_State* L);

}  // namespace zebhost

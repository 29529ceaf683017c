// The native services of the host's zebhost table: the event loop's clock, quitting,
// and scripted user answers for modal interactions.
#pragma once

struct lua_State;

namespace zebhost {

// Adds the functions to the global table zebhost, made if missing; leaves the stack as
// it was.
//   zebhost.now()                        -> virtual time in milliseconds
//   zebhost.quit()                       -- ends the event loop after the current call
//   zebhost.answer(code [, text [, ms]]) -- queues a user answer, taken ms or later
void OpenHostFunctions(lua_State* L);

}  // namespace zebhost

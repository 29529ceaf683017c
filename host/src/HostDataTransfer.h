// The test harness's reach into the clipboard and drag and drop.
#pragma once

struct lua_State;

namespace zebhost {

// Adds to the global table zebhost:
//   zebhost.clipboard()              -> {types = {name, ...}, [name] = bytes, ...}: what
//                                       the clipboard holds, text as UTF-8
//   zebhost.setClipboard(contents)   -- replaces it with {[name] = bytes, ...}; every key
//                                       and value must be a string; names must be known
//   zebhost.lastDrag()               -> nil before any drag, else {count, types, allowed,
//                                       effect, cancelled, dropped, hadNativeEvent,
//                                       target (node id), depth (drags running now)}
//   zebhost.dropOn(root, x, y [, ms]) -- queues a drop at a point of root's coordinates as
//                                       the next user answer: the running (or next) drag
//                                       drops onto the drop target there
//   zebhost.withNativeEvent(fn, ...) -> fn's results; fn runs with a native event current,
//                                       as inside the platform's handling of one
void OpenHostDataTransfer(lua_State* L);

}  // namespace zebhost

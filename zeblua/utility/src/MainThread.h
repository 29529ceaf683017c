// The state's main thread: the one thread on which native code may call Lua later.
#pragma once

struct lua_State;

namespace zeblua {
namespace utility {

// A coroutine may be suspended when a timer ticks, or collected while a binding made in it
// still lives, so every Lua function the library keeps is called on the main thread of its
// universe, never on the state that happened to hand it over.
//
// Remembers the main thread of L's universe when L is that thread. The openers of every
// module call it, so the main thread is known once the library has been opened on it.
void RecordMainThread(lua_State* L);

// The main thread of L's universe: the remembered one, or L itself when L is the main
// thread. Null only if the library has never run on the main thread (every module was
// opened from coroutines): callers then keep no state and report instead.
lua_State* GetMainThread(lua_State* L);

}  // namespace utility
}  // namespace zeblua

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
// From then until its state closes (a close sentinel in the registry forgets it inside
// lua_close) the thread is "remembered": native memory may keep it, since no other state
// can have a thread at its address meanwhile.
void RecordMainThread(lua_State* L);

// The main thread of L's universe: the remembered one, or L itself when L is the main
// thread. Null only if the library has never run on the main thread (every module was
// opened from coroutines): callers then keep no state and report instead.
lua_State* GetMainThread(lua_State* L);

// L is a remembered main thread (see RecordMainThread). A few states at a time; beyond
// them a main thread counts as not remembered. Raises no Lua error.
bool IsRememberedMainThread(lua_State* L);

// One integer registry reference that a hot path reads instead of a table keyed by a light
// userdata: lua_rawgeti on an integer key is the cheapest read of the registry. It is kept
// for one remembered main thread at a time, the last to keep any such reference; keeping one
// for another thread starts a new generation, so a reference from an earlier state is never
// read, even if a later state's thread has the same address.
//   static CachedRegistryReference sTable;
//   if (!sTable.Push(L)) { ...slow lookup of the table and its reference...; sTable.Keep(L, ref); }
class CachedRegistryReference {
public:
    constexpr CachedRegistryReference() = default;
    CachedRegistryReference(const CachedRegistryReference&) = delete;
    CachedRegistryReference& operator=(const CachedRegistryReference&) = delete;

    // Pushes registry[reference] and answers true when it was kept for L in the current
    // generation and the registry still holds there the value it held when kept (Lua 5.1
    // can lose integer keys of a table whose resize ran out of memory); pushes nothing and
    // answers false otherwise. Raises no Lua error.
    bool Push(lua_State* L) const;
    // Push would answer true: what was derived from the referenced value when it was kept
    // still holds for L.
    bool Holds(lua_State* L) const;
    // Keeps reference, and the address of the value the registry holds under it, for L when
    // L is a remembered main thread; forgets any kept one when reference is LUA_NOREF.
    // Raises no Lua error.
    void Keep(lua_State* L, int reference) const;

private:
    mutable int mReference = 0;
    mutable const void* mAddress = nullptr;
    mutable unsigned long long mGeneration = 0;
};

}  // namespace utility
}  // namespace zeblua

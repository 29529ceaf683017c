// Where the script stands while native code runs for it, for assertion reports.
#pragma once

struct lua_State;

namespace zeblua {
namespace utility {

// Marks L as running for the guard's lifetime: an assertion report made meanwhile names
// the innermost Lua frame of L ("script.lua:12") beside its native place.
//
// kNow is RunNative's, around every binding's C++ work, where a Lua error may skip the guard
// (longjmp runs no destructor) and L may be a coroutine that is collected later; the next
// guard at or above the skipped one's C stack frame drops its record. So it keeps L only
// when L is a main thread the library remembers (IsRememberedMainThread), which lives until
// its state closes, and reads the place when a report asks; on any other state it reads the
// place when the guard is made and copies it, so the record holds nothing of L.
//
// kAtReport keeps L and reads the place when a report asks, so a report from anywhere in
// the call (a binding that checks a proxy, not only RunNative's work) finds the line
// running then. Only for a guard around a protected call (lua_pcall returns, never jumps)
// on a state that lives through it: the callback forms and a host's run of a script.
class RunningScript {
public:
    enum Reading { kNow, kAtReport };

    explicit RunningScript(lua_State* L, Reading reading = kNow);
    ~RunningScript();
    RunningScript(const RunningScript&) = delete;
    RunningScript& operator=(const RunningScript&) = delete;
};

// L's state is closing (its main thread's close sentinel, see MainThread): no record reads
// L after this.
void ForgetRunningState(lua_State* L);

}  // namespace utility
}  // namespace zeblua

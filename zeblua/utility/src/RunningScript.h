// Where the script stands while native code runs for it, for assertion reports.
#pragma once

struct lua_State;

namespace zeblua {
namespace utility {

// Marks L as running native code for the guard's lifetime: an assertion report made
// meanwhile names the innermost Lua frame of L ("script.lua:12") beside its native place.
// The place is read when the guard is made and copied, so the record holds nothing of L:
// a guard that a Lua error skips (longjmp runs no destructor) leaves a record that the
// next guard at or above its frame drops, never a pointer into a state that may be gone.
// RunNative makes one around every binding's C++ work.
class RunningScript {
public:
    explicit RunningScript(lua_State* L);
    ~RunningScript();
    RunningScript(const RunningScript&) = delete;
    RunningScript& operator=(const RunningScript&) = delete;
};

}  // namespace utility
}  // namespace zeblua

// A state restorer that restores by calling a method of a script's table.
#pragma once

#include "zeblua/utility/src/StateBound.h"
#include "zebundo/StateRestorer.h"

struct lua_State;

namespace zeblua {
namespace undo {

// Owns the registry reference it is made with (released at destruction when above 0).
// RestoreState calls table:restoreState(); a disabled restorer makes no call at all.
// When the state closes first, it is detached and the undo history is cleared.
class LuaStateRestorer : public zebundo::StateRestorer, public utility::StateBound {
public:
    LuaStateRestorer(const int& ref, lua_State* L);
    ~LuaStateRestorer() override;

    void RestoreState() override;
    void DisableRestorer(const bool& disabled) { mDisabled = disabled; }
    bool IsDisabled() const { return mDisabled; }

    // Registers the empty global table zebLuaStateRestorer and leaves it on the stack;
    // returns 1.
    static int InitLua(lua_State* L);

protected:
    void OnStateClosing() override;

private:
    int mRef;
    bool mDisabled = false;
};

}  // namespace undo
}  // namespace zeblua

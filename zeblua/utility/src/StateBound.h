// Native objects that keep Lua references and must let go of them when their state closes.
#pragma once

struct lua_State;

namespace zeblua {
namespace utility {

// Process-wide holders of Lua references (an attachment of the application's command
// handler, an action in the undo history, a popup window set as the current handler) may
// outlive the state their references point into. Each such object is a StateBound: while
// the state closes, before anything in it is freed, every StateBound of that state is
// detached (GetLuaState() answers null from then on, so nothing calls into the state or
// releases a reference on it) and then told OnStateClosing, where its owner lets it go.
//
// A state is watched from the first StateBound made on it: a sentinel in the registry
// (PushOrMakeRegistryTable) runs the detach from lua_close. Watching allocates in Lua; it
// runs in a protected call of its own, so a constructor never raises. If even that fails,
// the object is made detached and never calls Lua.
class StateBound {
public:
    // Keeps the main thread of L's state (or L, where no opener recorded one).
    explicit StateBound(lua_State* L);
    virtual ~StateBound();
    StateBound(const StateBound&) = delete;
    StateBound& operator=(const StateBound&) = delete;

    // Null once detached.
    lua_State* GetLuaState() const { return mBoundState; }

protected:
    // Runs inside lua_close after the detach; the object may delete itself here (the
    // closing walk never touches it again). Nothing by default.
    virtual void OnStateClosing() {}

private:
    friend int DetachClosingState(lua_State* L);
    lua_State* mBoundState;
};

// The sentinel's finalizer: detaches every StateBound of L's state, then tells each.
int DetachClosingState(lua_State* L);

// How many live StateBounds hold L's state (for tests and reports).
int CountStateBound(lua_State* L);

}  // namespace utility
}  // namespace zeblua

// The wrapper every control reaches Lua through, and the userdata that holds it.
#pragma once

#include <map>

#include <boost/intrusive_ptr.hpp>

#include "zebui/ui/NodeFunctions.h"

struct lua_State;

namespace zeblua {
namespace ui {

// Ownership runs one way: the userdata (one word) owns the wrapper, the wrapper holds one
// reference to the node. There is no identity cache, so each push is a new wrapper.
//
// Timers belong to the wrapper: the Lua functions are registry references in mTimers,
// and the node reaches them through mTimerFunction, which holds a plain pointer to this
// wrapper. So a wrapper stops its timers and cuts that function off before it lets go of
// the node (ReleaseNode) and when it dies; a tick can then never reach freed memory.
//
// Method sets: each wrapper class has a static RegisterMethods that fills the metatable on
// top of the stack by calling the RegisterMethods of the sets of its chain in order, then
// luaL_register with its own static `methods`, so a later row replaces an earlier one of
// the same name. Every chain starts with the node set, whose "ControlWrapperIdentifier"
// marks the metatable as a wrapper's. The native base class says nothing about the chain.
class LuaControlWrapperBase {
public:
    LuaControlWrapperBase(const boost::intrusive_ptr<zebui::ui::UI_Node>& node, lua_State* L);
    LuaControlWrapperBase(const LuaControlWrapperBase&) = delete;
    LuaControlWrapperBase& operator=(const LuaControlWrapperBase&) = delete;
    virtual ~LuaControlWrapperBase();

    // The target of the node's timer ticks: calls the Lua function of a known id (notify
    // form, no arguments) and answers true; an id of someone else's answers false. The
    // Lua function may collect this very wrapper: nothing of it is touched after the call.
    virtual bool UI_DoTimerNotify(int id);
    // Starts a timer of interval seconds whose ticks call the function at reference.
    // False without a node; then the caller still owns the reference. Anchoring the state
    // can raise Lua's memory error, so the caller holds no C++ object across the call.
    virtual bool InstallTimer(float interval, int reference, int& idOut);
    // Stops the timer and releases its reference. Nothing without a node.
    virtual void RemoveTimer(int id);

    // Stops this wrapper's timers on the node and drops the node. The timers' references
    // stay until ReleaseTimerReferences.
    void ReleaseNode();
    // Releases the references of all timers on L, which must be a live thread of this
    // wrapper's Lua universe: the state that pushed the wrapper may be a coroutine that
    // the collector has already freed.
    void ReleaseTimerReferences(lua_State* L);

    const boost::intrusive_ptr<zebui::ui::UI_Node>& GetNode() const { return mNode; }

private:
    void stopTimers();
    // Ticks run on mState, which may be a coroutine: while timers run, the registry holds
    // that thread so the collector cannot free the state a tick is about to use.
    void anchorState();
    void releaseStateAnchor(lua_State* L);

    boost::intrusive_ptr<zebui::ui::UI_Node> mNode;
    lua_State* mState;
    zebui::ui::TimerNotifyFunctionP mTimerFunction;
    std::map<int, int> mTimers;  // timer id -> registry reference of the Lua function
    int mStateAnchor;            // registry reference of mState while timers run, or LUA_NOREF
};

// The wrapper at index, or null for a wrapper whose pointer was cleared (after __gc).
// Raises "Bad user data" for anything else: the mark of a wrapper is a function in the
// metatable field "ControlWrapperIdentifier", which every wrapper metatable holds.
LuaControlWrapperBase* GetControlUserData(lua_State* L, int index);

// __gc of every wrapper metatable: deletes the wrapper and clears the userdata, so a
// script's explicit second __gc does nothing.
int DoPtrBasedGC(lua_State* L);

// Pushes a userdata of one null word with the metatable registered under metatableName
// (none if the controls module isn't open: the wrapper is then never collected).
LuaControlWrapperBase** NewControlWrapperBlock(lua_State* L, const char* metatableName);

// Pushes a new T wrapper of node. The block and its metatable come first, so that
// nothing is allocated yet if Lua raises a memory error.
template <class T>
T* CreateAndPushControlWrapper(lua_State* L, const boost::intrusive_ptr<zebui::ui::UI_Node>& node) {
    LuaControlWrapperBase** block = NewControlWrapperBlock(L, T::GetMetatableName());
    T* wrapper = new T(node, L);
    *block = wrapper;
    return wrapper;
}

}  // namespace ui
}  // namespace zeblua

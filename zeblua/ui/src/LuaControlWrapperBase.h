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
// wrapper. Ticks run on the main thread of the state (a coroutine that pushed the wrapper
// may be suspended or collected by then). While timers run, the registry holds the
// wrapper's userdata, so a timer installed through a wrapper the script did not keep runs
// until it is removed, the wrapper is released, or the state closes; the wrapper's
// reference keeps the node, so the node cannot die first. When the wrapper does go, it
// stops its timers and cuts that function off, so a tick can never reach freed memory.
//
// Method sets: each wrapper class has a static RegisterMethods that fills the metatable on
// top of the stack by calling the RegisterMethods of the sets of its chain in order, then
// luaL_register with its own static `methods`, so a later row replaces an earlier one of
// the same name. Every chain starts with the node set, whose "ControlWrapperIdentifier"
// marks the metatable as a wrapper's. The native base class says nothing about the chain.
class LuaControlWrapperBase {
public:
    // L is the main thread of the state (GetMainThread), null when none is known: such a
    // wrapper refuses timers.
    LuaControlWrapperBase(const boost::intrusive_ptr<zebui::ui::UI_Node>& node, lua_State* L);
    LuaControlWrapperBase(const LuaControlWrapperBase&) = delete;
    LuaControlWrapperBase& operator=(const LuaControlWrapperBase&) = delete;
    virtual ~LuaControlWrapperBase();

    // The target of the node's timer ticks: calls the Lua function of a known id (notify
    // form, no arguments) and answers true; an id of someone else's answers false. The
    // Lua function may collect this very wrapper: nothing of it is touched after the call.
    virtual bool UI_DoTimerNotify(int id);
    // Starts a timer of interval seconds whose ticks call the function at reference.
    // False without a node or a main thread; then the caller still owns the reference.
    virtual bool InstallTimer(float interval, int reference, int& idOut);
    // Stops the timer and releases its reference. Nothing without a node.
    virtual void RemoveTimer(int id);

    // Holds the userdata at index (absolute), this wrapper's, in the registry until the
    // last timer goes; call it once a timer is installed. Raises only Lua's memory error,
    // and then the timer runs unheld, stopped at the latest when the collector takes the
    // wrapper.
    void KeepWhileTimersRun(lua_State* L, int index);
    // Stops this wrapper's timers, releases their references and the userdata's hold, and
    // drops the node. Raises no Lua error.
    void ReleaseNode();

    const boost::intrusive_ptr<zebui::ui::UI_Node>& GetNode() const { return mNode; }

private:
    void stopTimers();
    void releaseHold();

    boost::intrusive_ptr<zebui::ui::UI_Node> mNode;
    lua_State* mState;  // the main thread, or null
    zebui::ui::TimerNotifyFunctionP mTimerFunction;
    std::map<int, int> mTimers;  // timer id -> registry reference of the Lua function
};

// The wrapper at index, or null for a wrapper whose pointer was cleared (after __gc).
// Raises "Bad user data" for anything else: the mark of a wrapper is a function in the
// metatable field "ControlWrapperIdentifier", which every wrapper metatable holds, and
// the metatable is one that MarkWrapperMetatable recorded, so a script's look-alike (a
// newproxy with that field copied in) never has its block read as a wrapper pointer.
LuaControlWrapperBase* GetControlUserData(lua_State* L, int index);

// Records the metatable on top of the stack as a control wrapper's.
void MarkWrapperMetatable(lua_State* L);

// __gc of every wrapper metatable: deletes the wrapper and clears the userdata, so a
// script's explicit second __gc does nothing.
int DoPtrBasedGC(lua_State* L);

// Pushes a userdata of one null word with the metatable registered under metatableName,
// opening the controls module first if it is not open yet. Sets mainThread to the main
// thread of L's state (null if none is known).
LuaControlWrapperBase** NewControlWrapperBlock(lua_State* L, const char* metatableName,
                                               lua_State*& mainThread);

// Pushes a new T wrapper of node. The block, its metatable and the main thread come first,
// so that nothing is allocated yet if Lua raises a memory error.
template <class T>
T* CreateAndPushControlWrapper(lua_State* L, const boost::intrusive_ptr<zebui::ui::UI_Node>& node) {
    lua_State* mainThread = nullptr;
    LuaControlWrapperBase** block = NewControlWrapperBlock(L, T::GetMetatableName(), mainThread);
    T* wrapper = new T(node, mainThread);
    *block = wrapper;
    return wrapper;
}

}  // namespace ui
}  // namespace zeblua

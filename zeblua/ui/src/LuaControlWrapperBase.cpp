// The control wrapper base: node reference, timers, the wrapper test and collection.
#include "zeblua/ui/src/LuaControlWrapperBase.h"

#include <boost/bind/bind.hpp>
#include <boost/function.hpp>
#include <boost/make_shared.hpp>
#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/ui/src/LuaControls.h"
#include "zeblua/utility/src/LuaCallForms.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/MainThread.h"
#include "zeblua/utility/src/RegistryTables.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zeblua {
namespace ui {

namespace {

// Registry keys, by address.
char sWrapperMetatablesKey;  // [metatable] = true for every control wrapper metatable
char sTimerHoldsKey;         // [lightud(wrapper)] = its userdata, while its timers run

// Deletes the wrapper of a block and clears the block first, so a second __gc, or any
// method after it, finds a dead wrapper. Raises no Lua error.
void endWrapper(LuaControlWrapperBase** block) {
    LuaControlWrapperBase* wrapper = *block;
    *block = nullptr;
    delete wrapper;
}

// The close sentinel of the holds: the collector never took these wrappers, and a script
// may have removed their __gc, so they are ended here, before the state's memory goes and
// with it the state their ticks would run on.
int endHeldWrappers(lua_State* L) {
    utility::PushRegistryTable(L, &sTimerHoldsKey);
    if (!lua_istable(L, -1)) return 0;
    lua_pushnil(L);
    while (lua_next(L, -2)) { /* holds, key, userdata */
        auto** block = static_cast<LuaControlWrapperBase**>(lua_touserdata(L, -1));
        lua_pop(L, 1);
        if (block && *block) endWrapper(block); /* clears the current key: allowed in a walk */
    }
    return 0;
}

// Pushes the metatable of the value at index and answers true when it is one the controls
// module registered; pushes nothing and answers false otherwise. Raises no Lua error.
bool pushWrapperMetatable(lua_State* L, int index) {
    if (lua_type(L, index) != LUA_TUSERDATA || !lua_getmetatable(L, index)) return false;
    utility::PushRegistryTable(L, &sWrapperMetatablesKey);
    bool registered = false;
    if (lua_istable(L, -1)) {
        lua_pushvalue(L, -2);
        lua_rawget(L, -2);
        registered = lua_toboolean(L, -1) != 0;
        lua_pop(L, 1);
    }
    lua_pop(L, registered ? 1 : 2); /* the set; the metatable too when it is no wrapper's */
    return registered;
}

// A tick, under lua_cpcall: the main thread may be resuming a coroutine, and a memory
// error in its own pushes must not unwind into that coroutine's caller.
int callTimerFunction(lua_State* L) {
    lua_rawgeti(L, LUA_REGISTRYINDEX, *static_cast<const int*>(lua_touserdata(L, 1)));
    utility::CallNotify(L, 0);
    return 0;
}

}  // namespace

LuaControlWrapperBase::LuaControlWrapperBase(const boost::intrusive_ptr<zebui::ui::UI_Node>& node,
                                             lua_State* L)
    : mNode(node), mState(L),
      mTimerFunction(boost::make_shared<zebui::ui::TimerNotifyFunction>(
          boost::bind(&LuaControlWrapperBase::UI_DoTimerNotify, this, boost::placeholders::_1))) {}

LuaControlWrapperBase::~LuaControlWrapperBase() {
    ReleaseNode();
    // A tick already under way holds its own copy of the function: empty it too.
    mTimerFunction->clear();
}

bool LuaControlWrapperBase::UI_DoTimerNotify(int id) {
    const auto found = mTimers.find(id);
    if (found == mTimers.end()) return false;
    int reference = found->second;
    lua_State* L = mState;  // the call may delete this wrapper
    if (lua_cpcall(L, callTimerFunction, &reference) != 0) lua_pop(L, 1);
    return true;
}

bool LuaControlWrapperBase::InstallTimer(float interval, int reference, int& idOut) {
    const boost::intrusive_ptr<zebui::ui::UI_Node> node = mNode;
    if (!node) return false;
    ZEB_ASSERT_MSG(mState != nullptr, "No main thread: open the library on it before timers");
    if (!mState) return false;
    const int id = zebui::ui::UI_NodeManager::Get(false)->GetUniqueTimerID();
    node->UI_InstallTimer(interval, id);
    idOut = id;
    node->UI_InstallTimerNotifyFunction(mTimerFunction);
    mTimers[id] = reference;
    return true;
}

void LuaControlWrapperBase::RemoveTimer(int id) {
    const boost::intrusive_ptr<zebui::ui::UI_Node> node = mNode;
    if (!node) return;
    node->UI_RemoveTimer(id, true);
    const auto found = mTimers.find(id);
    if (found == mTimers.end()) return;
    const int reference = found->second;
    mTimers.erase(found);
    luaL_unref(mState, LUA_REGISTRYINDEX, reference);
    if (!mTimers.empty()) return;
    node->UI_RemoveTimerNotifyFunction(mTimerFunction);
    releaseHold();
}

void LuaControlWrapperBase::KeepWhileTimersRun(lua_State* L, int index) {
    if (mTimers.empty()) return;
    utility::PushOrMakeRegistryTable(L, &sTimerHoldsKey, nullptr, endHeldWrappers);
    lua_pushlightuserdata(L, this);
    lua_pushvalue(L, index);
    lua_rawset(L, -3); /* holds[lightud(this)] = userdata */
    lua_pop(L, 1);
}

void LuaControlWrapperBase::ReleaseNode() {
    stopTimers();
    for (const auto& timer : mTimers)
        luaL_unref(mState, LUA_REGISTRYINDEX, timer.second);
    if (!mTimers.empty()) releaseHold();
    mTimers.clear();
    mNode.reset();
}

void LuaControlWrapperBase::releaseHold() {
    utility::PushRegistryTable(mState, &sTimerHoldsKey);
    if (lua_istable(mState, -1)) {
        lua_pushlightuserdata(mState, this);
        utility::ClearPresentField(mState, lua_gettop(mState) - 1);
    }
    lua_pop(mState, 1);
}

void LuaControlWrapperBase::stopTimers() {
    if (!mNode) return;
    for (const auto& timer : mTimers)
        mNode->UI_RemoveTimer(timer.first, true);
    mNode->UI_RemoveTimerNotifyFunction(mTimerFunction);
}

LuaControlWrapperBase* GetControlUserData(lua_State* L, int index) {
    if (pushWrapperMetatable(L, index)) {
        lua_getfield(L, -1, "ControlWrapperIdentifier");
        const bool marked = lua_type(L, -1) == LUA_TFUNCTION;
        lua_pop(L, 2); /* field, metatable */
        if (marked) return *static_cast<LuaControlWrapperBase**>(lua_touserdata(L, index));
    }
    luaL_error(L, "Bad user data");
    return nullptr;
}

void MarkWrapperMetatable(lua_State* L) {
    utility::PushOrMakeRegistryTable(L, &sWrapperMetatablesKey, nullptr, nullptr);
    lua_pushvalue(L, -2);
    lua_pushboolean(L, 1);
    lua_rawset(L, -3); /* set[metatable] = true */
    lua_pop(L, 1);
}

// The collector's call ends a wrapper even when a script removed the metatable's
// "ControlWrapperIdentifier": raising there would leave the wrapper and its node to leak,
// and does nothing on a script's userdata that it was copied to (IsCopiedFinalizer).
int DoPtrBasedGC(lua_State* L) {
    if (pushWrapperMetatable(L, 1))
        lua_pop(L, 1);
    else if (utility::RunsAsFinalizerOfArgument(L))
        return 0; /* copied into a script's own metatable */
    else
        GetControlUserData(L, 1); /* raises "Bad user data" */
    endWrapper(static_cast<LuaControlWrapperBase**>(lua_touserdata(L, 1)));
    return 0;
}

LuaControlWrapperBase** NewControlWrapperBlock(lua_State* L, const char* metatableName,
                                               lua_State*& mainThread) {
    mainThread = utility::GetMainThread(L);
    return new (utility::NewProxyBlock(L, sizeof(LuaControlWrapperBase*), metatableName,
                                       luaopen_LuaControls)) LuaControlWrapperBase*(nullptr);
}

}  // namespace ui
}  // namespace zeblua

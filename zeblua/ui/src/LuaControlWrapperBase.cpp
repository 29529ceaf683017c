// The control wrapper base: node reference, timers, the wrapper test and collection.
#include "zeblua/ui/src/LuaControlWrapperBase.h"

#include <boost/bind/bind.hpp>
#include <boost/function.hpp>
#include <boost/make_shared.hpp>
#include <lua.hpp>

#include "zeblua/utility/src/LuaCallForms.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zeblua {
namespace ui {

LuaControlWrapperBase::LuaControlWrapperBase(const boost::intrusive_ptr<zebui::ui::UI_Node>& node,
                                             lua_State* L)
    : mNode(node), mState(L),
      mTimerFunction(boost::make_shared<zebui::ui::TimerNotifyFunction>(
          boost::bind(&LuaControlWrapperBase::UI_DoTimerNotify, this, boost::placeholders::_1))),
      mStateAnchor(LUA_NOREF) {}

LuaControlWrapperBase::~LuaControlWrapperBase() {
    stopTimers();
    // A tick already under way holds its own copy of the function: empty it too.
    mTimerFunction->clear();
}

bool LuaControlWrapperBase::UI_DoTimerNotify(int id) {
    const auto found = mTimers.find(id);
    if (found == mTimers.end()) return false;
    lua_State* L = mState;
    if (!lua_checkstack(L, 1)) return true;
    lua_rawgeti(L, LUA_REGISTRYINDEX, found->second);
    utility::CallNotify(L, 0);
    return true;
}

bool LuaControlWrapperBase::InstallTimer(float interval, int reference, int& idOut) {
    {
        const boost::intrusive_ptr<zebui::ui::UI_Node> node = mNode;
        if (!node) return false;
        const int id = zebui::ui::UI_NodeManager::Get(false)->GetUniqueTimerID();
        node->UI_InstallTimer(interval, id);
        idOut = id;
        node->UI_InstallTimerNotifyFunction(mTimerFunction);
        mTimers[id] = reference;
    }
    // Outside the block: anchoring can raise Lua's memory error, whose longjmp would skip
    // releasing the counted node.
    anchorState();
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
    if (mTimers.empty()) releaseStateAnchor(mState);
}

void LuaControlWrapperBase::ReleaseNode() {
    stopTimers();
    mNode.reset();
}

void LuaControlWrapperBase::ReleaseTimerReferences(lua_State* L) {
    for (const auto& timer : mTimers)
        luaL_unref(L, LUA_REGISTRYINDEX, timer.second);
    mTimers.clear();
    releaseStateAnchor(L);
}

void LuaControlWrapperBase::anchorState() {
    if (mStateAnchor != LUA_NOREF || !lua_checkstack(mState, 1)) return;
    lua_pushthread(mState);
    mStateAnchor = luaL_ref(mState, LUA_REGISTRYINDEX);
}

void LuaControlWrapperBase::releaseStateAnchor(lua_State* L) {
    luaL_unref(L, LUA_REGISTRYINDEX, mStateAnchor);
    mStateAnchor = LUA_NOREF;
}

void LuaControlWrapperBase::stopTimers() {
    if (!mNode) return;
    for (const auto& timer : mTimers)
        mNode->UI_RemoveTimer(timer.first, true);
    mNode->UI_RemoveTimerNotifyFunction(mTimerFunction);
}

LuaControlWrapperBase* GetControlUserData(lua_State* L, int index) {
    if (lua_type(L, index) == LUA_TUSERDATA && lua_getmetatable(L, index)) {
        lua_getfield(L, -1, "ControlWrapperIdentifier");
        const bool isWrapper = lua_type(L, -1) == LUA_TFUNCTION;
        lua_pop(L, 2); /* field, metatable */
        if (isWrapper) return *static_cast<LuaControlWrapperBase**>(lua_touserdata(L, index));
    }
    luaL_error(L, "Bad user data");
    return nullptr;
}

int DoPtrBasedGC(lua_State* L) {
    LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);
    if (!wrapper) return 0;
    *static_cast<LuaControlWrapperBase**>(lua_touserdata(L, 1)) = nullptr;
    wrapper->ReleaseNode();
    wrapper->ReleaseTimerReferences(L); /* L runs this __gc, so it is alive */
    delete wrapper;
    return 0;
}

LuaControlWrapperBase** NewControlWrapperBlock(lua_State* L, const char* metatableName) {
    return new (utility::NewProxyBlock(L, sizeof(LuaControlWrapperBase*), metatableName))
        LuaControlWrapperBase*(nullptr);
}

}  // namespace ui
}  // namespace zeblua

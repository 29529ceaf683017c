// The node set: lifetime, identity and timers of any wrapped node.
#include "zeblua/ui/src/LuaUI_NodeWrapper.h"

#include <lua.hpp>

#include "zebcore/utility/Strings.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {
namespace {

// node:Release(): drops the node now; the wrapper stays, and every method of it then
// answers with no result.
int nodeRelease(lua_State* L) {
    LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);
    if (!wrapper) return 0;
    wrapper->ReleaseNode();
    return 0;
}

// Never called: its presence in a metatable is what GetControlUserData looks for.
int nodeControlWrapperIdentifier(lua_State*) {
    return 0;
}

// id = node:UI_GetNodeID()
int nodeUI_GetNodeID(lua_State* L) {
    LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);
    if (!wrapper || !wrapper->GetNode()) return 0;
    const zebcore::UTF8String& id = wrapper->GetNode()->UI_GetNodeID();
    lua_pushlstring(L, id.data(), id.size());
    return 1;
}

// node:UI_SetNodeID(id): the bytes as they are.
int nodeUI_SetNodeID(lua_State* L) {
    LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);
    if (!wrapper) return 0;
    size_t length = 0;
    const char* id = luaL_checklstring(L, 2, &length);
    return utility::RunNative(L, "UI_SetNodeID", [&] {
        if (wrapper->GetNode()) wrapper->GetNode()->UI_SetNodeID(zebcore::UTF8String(id, length));
        return 0;
    });
}

// id = node:UI_InstallTimer(seconds, fn): fn() at each tick until removed; nothing if the
// wrapper has no node.
int nodeUI_InstallTimer(lua_State* L) {
    LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);
    if (!wrapper) return 0;
    const float interval = static_cast<float>(luaL_checknumber(L, 2));
    luaL_checktype(L, 3, LUA_TFUNCTION);
    lua_pushvalue(L, 3);
    const int reference = luaL_ref(L, LUA_REGISTRYINDEX);
    int id = 0;
    const bool installed = utility::RunNative(
        L, "UI_InstallTimer", [&] { return wrapper->InstallTimer(interval, reference, id); });
    if (!installed) {
        luaL_unref(L, LUA_REGISTRYINDEX, reference); /* no timer holds it */
        return 0;
    }
    wrapper->KeepWhileTimersRun(L, 1);
    if (id == 0) return 0;
    lua_pushnumber(L, id);
    return 1;
}

// node:UI_RemoveTimer(id)
int nodeUI_RemoveTimer(lua_State* L) {
    LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);
    if (!wrapper) return 0;
    wrapper->RemoveTimer(static_cast<int>(luaL_checkinteger(L, 2)));
    return 0;
}

}  // namespace

const luaL_Reg LuaUI_NodeWrapper::methods[] = {
    {"__gc", DoPtrBasedGC},
    {"Release", nodeRelease},
    {"ControlWrapperIdentifier", nodeControlWrapperIdentifier},
    {"UI_GetNodeID", nodeUI_GetNodeID},
    {"UI_SetNodeID", nodeUI_SetNodeID},
    {"UI_InstallTimer", nodeUI_InstallTimer},
    {"UI_RemoveTimer", nodeUI_RemoveTimer},
    {nullptr, nullptr},
};

const char* LuaUI_NodeWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUINode";
    return sMetatableName;
}

void LuaUI_NodeWrapper::RegisterMethods(lua_State* L) {
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

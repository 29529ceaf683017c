// The node set: lifetime, binding and timers here, the other groups in LuaNode*Methods,
// and the table that every wrapper metatable starts with.
#include "zeblua/ui/src/LuaUI_NodeWrapper.h"

#include <string>

#include <lua.hpp>

#include "zeblua/ui/src/LuaNodeFocusMethods.h"
#include "zeblua/ui/src/LuaNodeGeometryMethods.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/LuaNodeStateMethods.h"
#include "zeblua/ui/src/LuaNodeTreeMethods.h"
#include "zeblua/ui/src/ZebBinder.h"

namespace zeblua {
namespace ui {
namespace {

// node:Release(): drops the node now; the wrapper stays, and every method of it then
// answers with no result.
int nodeRelease(lua_State* L) {
    LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);
    if (wrapper) wrapper->ReleaseNode();
    return 0;
}

// Never called: its presence in a metatable is what GetControlUserData looks for.
int nodeControlWrapperIdentifier(lua_State*) {
    return 0;
}

// ok = node:BindZebOperation(name, fn): fn takes over the operation name ("uiDraw",
// "uiMouseEvent", ...) of the node for as long as the node lives, whatever becomes of this
// wrapper; binding a name again replaces the function. An unknown name is accepted and
// never called. false after Release. The reference goes to the value on top, so exactly
// three arguments are expected.
int nodeBindZebOperation(lua_State* L) {
    if (!GetControlUserData(L, 1)) {
        lua_pushboolean(L, 0);
        return 1;
    }
    size_t length = 0;
    const char* name = luaL_checklstring(L, 2, &length);
    luaL_checktype(L, 3, LUA_TFUNCTION);
    const int reference = luaL_ref(L, LUA_REGISTRYINDEX);
    zebui::ui::UI_Node* node = LiveNode(L, 1);
    const bool bound =
        node && utility::RunNative(L, "BindZebOperation", [&] {
            const NodeP held(node);
            return BindZEBOperation(L, held.get(), std::string(name, length), reference);
        });
    if (!bound) luaL_unref(L, LUA_REGISTRYINDEX, reference); /* nobody holds it */
    lua_pushboolean(L, bound);
    return 1;
}

// id = node:UI_InstallTimer(seconds, fn): fn() at each tick until removed; nothing if the
// wrapper has no node.
int nodeUI_InstallTimer(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const float interval = static_cast<float>(luaL_checknumber(L, 2));
    luaL_checktype(L, 3, LUA_TFUNCTION);
    lua_pushvalue(L, 3);
    const int reference = luaL_ref(L, LUA_REGISTRYINDEX);
    LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);
    int id = 0;
    const bool installed = wrapper && utility::RunNative(L, "UI_InstallTimer", [&] {
                               return wrapper->InstallTimer(interval, reference, id);
                           });
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
    if (!GetControlUserData(L, 1)) return 0;
    const auto id = static_cast<int>(luaL_checkinteger(L, 2));
    LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);
    if (wrapper) wrapper->RemoveTimer(id);
    return 0;
}

}  // namespace

const luaL_Reg LuaUI_NodeWrapper::methods[] = {
    // Lifetime and binding.
    {"__gc", DoPtrBasedGC},
    {"Release", nodeRelease},
    {"ControlWrapperIdentifier", nodeControlWrapperIdentifier},
    {"BindZebOperation", nodeBindZebOperation},
    // Tree.
    {"ChildPushBack", nodeChildPushBack},
    {"ChildSize", nodeChildSize},
    {"ChildGet", nodeChildGet},
    {"ChildRemove", nodeChildRemove},
    {"ChildSwapOrder", nodeChildSwapOrder},
    {"ChildMove", nodeChildMove},
    {"DeleteChildren", nodeDeleteChildren},
    {"UI_GetRootNode", nodeUI_GetRootNode},
    {"UI_GetParentNode", nodeUI_GetParentNode},
    {"GetDescendentByID", nodeGetDescendentByID},
    {"UI_GetNodeID", nodeUI_GetNodeID},
    {"UI_SetNodeID", nodeUI_SetNodeID},
    {"UI_GetIndex", nodeUI_GetIndex},
    {"SetViewIndex", nodeSetViewIndex},
    {"SetViewIndexToBack", nodeSetViewIndexToBack},
    {"SetViewIndexToFront", nodeSetViewIndexToFront},
    // Geometry.
    {"UI_GetLocalRectF", nodeUI_GetLocalRectF},
    {"UI_SetLocalRectF", nodeUI_SetLocalRectF},
    {"UI_LocalToGlobalRectF", nodeUI_LocalToGlobalRectF},
    {"UI_LocalToGlobalPointF", nodeUI_LocalToGlobalPointF},
    {"UI_GlobalToLocalRectF", nodeUI_GlobalToLocalRectF},
    {"UI_GlobalToLocalPointF", nodeUI_GlobalToLocalPointF},
    {"UI_GetRecommendedSize", nodeUI_GetRecommendedSize},
    {"UI_GetClipToSelfEnabled", nodeUI_GetClipToSelfEnabled},
    {"UI_SetClipToSelfEnabled", nodeUI_SetClipToSelfEnabled},
    // State and appearance.
    {"UI_Show", nodeUI_Show},
    {"UI_IsShown", nodeUI_IsShown},
    {"UI_SetEnabled", nodeUI_SetEnabled},
    {"UI_IsEnabled", nodeUI_IsEnabled},
    {"UI_Invalidate", nodeUI_Invalidate},
    {"UI_UpdateNow", nodeUI_UpdateNow},
    {"UI_GetDrawSupplier", nodeUI_GetDrawSupplier},
    {"UI_SetDrawCachePolicy", nodeUI_SetDrawCachePolicy},
    {"SetThemeName", nodeSetThemeName},
    {"UI_IsMouseOver", nodeUI_IsMouseOver},
    {"UI_DoMouseEvent", nodeUI_DoMouseEvent},
    // Focus and tool tips.
    {"UI_GainKeyboardFocus", nodeUI_GainKeyboardFocus},
    {"UI_HasKeyboardFocus", nodeUI_HasKeyboardFocus},
    {"UI_SetToolTip", nodeUI_SetToolTip},
    {"UI_SetToolTipAvoidsBounds", nodeUI_SetToolTipAvoidsBounds},
    {"UI_GetToolTipAvoidsBounds", nodeUI_GetToolTipAvoidsBounds},
    // Timers.
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

// The node set: lifetime, binding, tree, geometry, state, focus and timers of any node.
#include "zeblua/ui/src/LuaUI_NodeWrapper.h"

#include <memory>
#include <string>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "zebcore/utility/Strings.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/LuaInputEvents.h"
#include "zeblua/ui/src/ZebBinder.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {
namespace {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;

// The node of the wrapper at index, or null for a released or cleared wrapper. Reading a
// table argument can run script (__index) that releases or collects the very wrapper, so
// a method takes its node this way again after such a read.
zebui::ui::UI_Node* liveNode(lua_State* L, int index) {
    LuaControlWrapperBase* wrapper = GetControlUserData(L, index);
    return wrapper ? wrapper->GetNode().get() : nullptr;
}

// A flag argument that defaults to true: lua_toboolean if the stack holds it.
bool flagDefaultTrue(lua_State* L, int index) {
    return lua_gettop(L) >= index ? lua_toboolean(L, index) != 0 : true;
}

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

// ok = node:BindZebOperation(name, fn): fn takes over the operation name ("uiDraw",
// "uiMouseEvent", ...) of the node for as long as the node lives, whatever becomes of this
// wrapper; binding a name again replaces the function. An unknown name is accepted and
// never called. false after Release. The reference goes to the value on top, so exactly
// three arguments are expected.
int nodeBindZebOperation(lua_State* L) {
    LuaControlWrapperBase* wrapper = GetControlUserData(L, 1);
    if (!wrapper) {
        lua_pushboolean(L, 0);
        return 1;
    }
    size_t length = 0;
    const char* name = luaL_checklstring(L, 2, &length);
    luaL_checktype(L, 3, LUA_TFUNCTION);
    const int reference = luaL_ref(L, LUA_REGISTRYINDEX);
    const bool bound = utility::RunNative(L, "BindZebOperation", [&] {
        const NodeP node = wrapper->GetNode();
        return node && BindZEBOperation(L, node.get(), std::string(name, length), reference);
    });
    if (!bound) luaL_unref(L, LUA_REGISTRYINDEX, reference); /* nobody holds it */
    lua_pushboolean(L, bound);
    return 1;
}

// -- node:ChildPushBack(child)
int nodeChildPushBack(lua_State* L) {
    if (!liveNode(L, 1)) return 0;
    zebui::ui::UI_Node* child = liveNode(L, 2);
    zebui::ui::UI_Node* parent = liveNode(L, 1);
    return utility::RunNative(L, "ChildPushBack", [&] {
        if (parent && child) parent->ChildPushBack(NodeP(child));
        return 0;
    });
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

// -- rect = node:UI_GetLocalRectF([flag])
int nodeUI_GetLocalRectF(lua_State* L) {
    zebui::ui::UI_Node* node = liveNode(L, 1);
    if (!node) return 0;
    return inkwell::PushRectF32ToLua(L, node->UI_GetLocalRectF(lua_toboolean(L, 2) != 0));
}

// -- node:UI_SetLocalRectF(rect)
// Size listeners run Lua, so the node is held for the call.
int nodeUI_SetLocalRectF(lua_State* L) {
    if (!liveNode(L, 1)) return 0;
    zebcore::geom::RectT<float> rect;
    inkwell::GetRectF32FromLua(L, 2, rect);
    zebui::ui::UI_Node* node = liveNode(L, 1);
    if (!node) return 0;
    return utility::RunNative(L, "UI_SetLocalRectF", [&] {
        NodeP(node)->UI_SetLocalRectF(rect);
        return 0;
    });
}

// -- node:UI_Show([flag]): no argument shows, nil hides.
int nodeUI_Show(lua_State* L) {
    zebui::ui::UI_Node* node = liveNode(L, 1);
    if (node) node->UI_Show(flagDefaultTrue(L, 2));
    return 0;
}

// -- node:UI_SetEnabled([flag]): no argument enables, nil disables.
int nodeUI_SetEnabled(lua_State* L) {
    zebui::ui::UI_Node* node = liveNode(L, 1);
    if (node) node->UI_SetDisabled(!flagDefaultTrue(L, 2));
    return 0;
}

// -- node:UI_UpdateNow([flags]): draws the node at once, so a bound "uiDraw" runs before
// this returns. Flags default to all set.
int nodeUI_UpdateNow(lua_State* L) {
    zebui::ui::UI_Node* node = liveNode(L, 1);
    if (!node) return 0;
    const auto flags = static_cast<unsigned int>(luaL_optinteger(L, 2, -1));
    return utility::RunNative(L, "UI_UpdateNow", [&] {
        NodeP(node)->UI_UpdateNow(flags);
        return 0;
    });
}

// -- node:UI_DoMouseEvent(target, event): the node's own mouse handling, hooks and bound
// "uiMouseEvent" included; the answer is not passed on. A table that is no mouse event does
// nothing.
int nodeUI_DoMouseEvent(lua_State* L) {
    if (!liveNode(L, 1)) return 0;
    liveNode(L, 2);  // "Bad user data" for anything but a wrapper, before the table is read
    std::unique_ptr<zebui::ui::MouseEvent> event;
    if (!GetMouseEventFromLua(L, 3, event)) return 0;
    zebui::ui::UI_Node* node = liveNode(L, 1);
    zebui::ui::UI_Node* target = liveNode(L, 2);
    return utility::RunNative(L, "UI_DoMouseEvent", [&] {
        if (node) NodeP(node)->UI_DoMouseEvent(NodeP(target).get(), *event);
        return 0;
    });
}

// -- ok = node:UI_GainKeyboardFocus(reason)
// Focus listeners run Lua, so the node is held for the call.
int nodeUI_GainKeyboardFocus(lua_State* L) {
    zebui::ui::UI_Node* node = liveNode(L, 1);
    if (!node) return 0;
    const auto reason = static_cast<zebui::ui::FocusChangeReason>(luaL_checkinteger(L, 2));
    const bool gained = utility::RunNative(
        L, "UI_GainKeyboardFocus", [&] { return NodeP(node)->UI_GainKeyboardFocus(reason); });
    lua_pushboolean(L, gained);
    return 1;
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
    {"BindZebOperation", nodeBindZebOperation},
    {"ChildPushBack", nodeChildPushBack},
    {"UI_GetNodeID", nodeUI_GetNodeID},
    {"UI_SetNodeID", nodeUI_SetNodeID},
    {"UI_GetLocalRectF", nodeUI_GetLocalRectF},
    {"UI_SetLocalRectF", nodeUI_SetLocalRectF},
    {"UI_Show", nodeUI_Show},
    {"UI_SetEnabled", nodeUI_SetEnabled},
    {"UI_UpdateNow", nodeUI_UpdateNow},
    {"UI_DoMouseEvent", nodeUI_DoMouseEvent},
    {"UI_GainKeyboardFocus", nodeUI_GainKeyboardFocus},
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

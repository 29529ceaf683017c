// zebhost.snapshot and the per-class fillers of its state table.
#include "host/src/HostSnapshot.h"

#include <string>

#include <lua.hpp>

#include "host/src/HostNodes.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaResultString.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/controls/UI_ControlView.h"
#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/ui/UI_Node.h"

namespace zebhost {
namespace {

namespace zui = zebui::ui;
namespace controls = zebui::controls;

void setBoolean(lua_State* L, const char* name, bool value) {
    lua_pushboolean(L, value);
    lua_setfield(L, -2, name);
}

// Fills the state table on top with the fields of node's class, if node is one.
using StateFiller = void (*)(lua_State* L, const zui::UI_Node& node);

void fillControlViewState(lua_State* L, const zui::UI_Node& node) {
    const auto* control = dynamic_cast<const controls::UI_ControlView*>(&node);
    if (!control) return;
    setBoolean(L, "valueUnknown", control->IsValueUnknown());
    setBoolean(L, "suppressFocusDrawing", control->GetSuppressFocusDrawing());
}

void fillInteractiveControlViewState(lua_State* L, const zui::UI_Node& node) {
    const auto* control = dynamic_cast<const controls::UI_InteractiveControlView*>(&node);
    if (control) setBoolean(L, "inInteractiveChange", control->IsInInteractiveChange());
}

// One per class with state of its own, each adding only its own fields: value, bounds,
// text, opened, tabs, split and scroll join here as their classes gain them.
const StateFiller kStateFillers[] = {
    fillControlViewState,
    fillInteractiveControlViewState,
};

// A plain rect table, made here so that no constructor of the script layer runs.
void pushPlainRect(lua_State* L, const zebcore::geom::RectT<float>& rect) {
    lua_createtable(L, 0, 4);
    lua_pushnumber(L, rect.left);
    lua_setfield(L, -2, "left");
    lua_pushnumber(L, rect.top);
    lua_setfield(L, -2, "top");
    lua_pushnumber(L, rect.width);
    lua_setfield(L, -2, "width");
    lua_pushnumber(L, rect.height);
    lua_setfield(L, -2, "height");
}

// A UTF-16 text of the node as a UTF-8 field of the table on top. The conversion fills a
// string that Lua owns, so a memory error in the push leaves no C++ object behind.
void setConvertedText(lua_State* L, const char* name, const zebcore::UTF16String& text) {
    std::string* converted = zeblua::utility::PushResultString(L);
    zeblua::utility::RunNative(L, "zebhost.snapshot", [&] {
        *converted = zebcore::utility::UTF16to8(text);
        return 0;
    });
    lua_pushlstring(L, converted->data(), converted->size());
    lua_setfield(L, -3, name);
    lua_pop(L, 1); /* the owner of the converted string */
}

void setInteger(lua_State* L, const char* name, lua_Integer value) {
    lua_pushinteger(L, value);
    lua_setfield(L, -2, name);
}

// What UI_Invalidate and UI_UpdateNow were asked since the record was last cleared.
void pushRedrawRecord(lua_State* L, const zui::UI_Node::RedrawRecord& record) {
    lua_createtable(L, 0, 6);
    setInteger(L, "invalidations", static_cast<lua_Integer>(record.invalidateCount));
    setBoolean(L, "wholeNode", record.wholeNode);
    lua_createtable(L, static_cast<int>(record.rects.size()), 0);
    int index = 0;
    for (const zebcore::geom::RectT<int>& rect : record.rects) {
        pushPlainRect(L, zebcore::geom::RectT<float>(
                             static_cast<float>(rect.left), static_cast<float>(rect.top),
                             static_cast<float>(rect.width), static_cast<float>(rect.height)));
        lua_rawseti(L, -2, ++index);
    }
    lua_setfield(L, -2, "rects");
    setInteger(L, "invalidateFlags", record.invalidateFlags.GetValue());
    setInteger(L, "updates", static_cast<lua_Integer>(record.updateNowCount));
    setInteger(L, "updateFlags", record.updateNowFlags.GetValue());
}

// What every node has beside its geometry: tool tip, theme, draw cache policy (the
// toolkit's number), whether the last mouse event went to the node itself, and its
// redraw record.
void setNodeAppearance(lua_State* L, const zui::UI_Node& node) {
    setConvertedText(L, "toolTip", node.UI_GetToolTip());
    setInteger(L, "toolTipWidth", node.UI_GetToolTipWidth());
    setBoolean(L, "toolTipAvoidsBounds", node.UI_GetToolTipAvoidsBounds());
    setConvertedText(L, "themeName", node.GetThemeName());
    setInteger(L, "drawCachePolicy", node.UI_GetDrawCachePolicy());
    setBoolean(L, "clipToSelf", node.UI_GetClipToSelfEnabled());
    setBoolean(L, "mouseOver", node.UI_IsMouseOver(false));
    pushRedrawRecord(L, node.GetRedrawRecord());
    lua_setfield(L, -2, "redraw");
}

// Pushes node's table. Only plain pointers live here: no script runs, so the tree, which
// holds every node below the argument's wrapper, cannot change meanwhile.
void pushSnapshot(lua_State* L, const zui::UI_Node& node, lua_Integer depth) {
    luaL_checkstack(L, 4, "zebhost.snapshot: tree too deep");
    lua_createtable(L, 0, 12);
    char className[128];
    NodeClassName(node, className, sizeof className);
    lua_pushstring(L, className);
    lua_setfield(L, -2, "class");
    const zebcore::UTF8String& id = node.UI_GetNodeID();
    lua_pushlstring(L, id.data(), id.size());
    lua_setfield(L, -2, "id");
    if (node.UI_GetParentNode()) {
        lua_pushinteger(L, node.UI_GetIndex() + 1);
        lua_setfield(L, -2, "index");
    }
    setBoolean(L, "shown", node.UI_IsShown());
    setBoolean(L, "enabled", !node.UI_IsDisabled());
    const zebcore::geom::RectT<float> rect = node.UI_GetLocalRectF(false);
    pushPlainRect(L, rect);
    lua_setfield(L, -2, "rect");
    pushPlainRect(
        L, node.UI_LocalToGlobalF(zebcore::geom::RectT<float>(0, 0, rect.width, rect.height)));
    lua_setfield(L, -2, "globalRect");
    setBoolean(L, "focus", node.UI_HasKeyboardFocus(false));
    setNodeAppearance(L, node);
    lua_pushinteger(L, static_cast<lua_Integer>(node.ChildSize()));
    lua_setfield(L, -2, "childCount");
    lua_newtable(L);
    for (const StateFiller fill : kStateFillers)
        fill(L, node);
    lua_setfield(L, -2, "state");
    if (depth == 0) return;
    lua_createtable(L, static_cast<int>(node.ChildSize()), 0);
    int index = 0;
    for (auto child = node.ChildBegin(); child != node.ChildEnd(); ++child) {
        pushSnapshot(L, **child, depth - 1);
        lua_rawseti(L, -2, ++index);
    }
    lua_setfield(L, -2, "children");
}

int hostSnapshot(lua_State* L) {
    const zui::UI_Node* node = CheckNodeArgument(L, 1);
    const lua_Integer depth = luaL_optinteger(L, 2, -1);
    pushSnapshot(L, *node, depth);
    return 1;
}

const luaL_Reg kSnapshotFunctions[] = {
    {"snapshot", hostSnapshot},
    {nullptr, nullptr},
};

}  // namespace

void OpenHostSnapshot(lua_State* L) {
    zeblua::utility::RegisterFunctionModule(L, "zebhost", kSnapshotFunctions);
    lua_pop(L, 1);
}

}  // namespace zebhost

// The node set's tree methods.
#include "zeblua/ui/src/LuaNodeTreeMethods.h"

#include <cstring>
#include <vector>

#include "zebcore/utility/Strings.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::ui::UI_Node;

// call(parent, child) for the wrapper at 2; nothing when either wrapper was released.
template <class Call> int withChildArgument(lua_State* L, const char* name, Call call) {
    if (!GetControlUserData(L, 1)) return 0;
    UI_Node* child = LiveNode(L, 2);
    if (!child) return 0;
    return CallOnNode(L, name, [&](UI_Node& parent) { call(parent, NodeP(child)); });
}

// The first node of a depth-first walk below top, in child order, whose id is the bytes
// given; top itself never counts. The walk keeps its own stack, so no tree is too deep.
NodeP findDescendant(const UI_Node& top, const char* id, size_t length) {
    const zebcore::UTF8String wanted(id, length);
    std::vector<const UI_Node*> pending;
    const auto pushChildren = [&pending](const UI_Node& node) {
        for (auto child = node.ChildEnd(); child != node.ChildBegin();)
            pending.push_back((--child)->get());
    };
    pushChildren(top);
    while (!pending.empty()) {
        const UI_Node* node = pending.back();
        pending.pop_back();
        if (node->UI_GetNodeID() == wanted) return NodeP(const_cast<UI_Node*>(node));
        pushChildren(*node);
    }
    return NodeP();
}

// The parent's ChildMove from the node's place to to; nothing without a parent. A move to
// the place itself is made only when asked for by number.
void moveAmongSiblings(UI_Node& node, unsigned long to, bool evenInPlace) {
    UI_Node* parent = node.UI_GetParentNode();
    if (!parent) return;
    const auto current = static_cast<unsigned long>(node.UI_GetIndex());
    if (evenInPlace || current != to) parent->ChildMove(current, to);
}

}  // namespace

int nodeChildPushBack(lua_State* L) {
    return withChildArgument(L, "ChildPushBack", [](UI_Node& parent, const NodeP& child) {
        parent.ChildPushBack(child);
    });
}

int nodeChildSize(lua_State* L) {
    return AnswerOfNode(L, "ChildSize", [](UI_Node& node) { return node.ChildSize(); });
}

int nodeChildGet(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Integer index = luaL_checkinteger(L, 2);
    return PushFoundNode(L, "ChildGet", [index](UI_Node& node) {
        const bool inside = index >= 1 && index <= static_cast<lua_Integer>(node.ChildSize());
        return inside ? node.ChildGet(static_cast<unsigned long>(index - 1)) : NodeP();
    });
}

int nodeChildRemove(lua_State* L) {
    return withChildArgument(
        L, "ChildRemove", [](UI_Node& parent, const NodeP& child) { parent.ChildRemove(child); });
}

int nodeChildSwapOrder(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const auto first = static_cast<unsigned long>(lua_tointeger(L, 2));
    const auto second = static_cast<unsigned long>(lua_tointeger(L, 3));
    return CallOnNode(L, "ChildSwapOrder",
                      [=](UI_Node& node) { node.ChildSwapOrder(first, second); });
}

int nodeChildMove(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const auto from = static_cast<unsigned long>(lua_tointeger(L, 2));
    const auto to = static_cast<unsigned long>(lua_tointeger(L, 3));
    return CallOnNode(L, "ChildMove", [=](UI_Node& node) { node.ChildMove(from, to); });
}

int nodeDeleteChildren(lua_State* L) {
    return CallOnNode(L, "DeleteChildren", [](UI_Node& node) { node.DeleteChildren(); });
}

int nodeUI_GetRootNode(lua_State* L) {
    return PushFoundNode(L, "UI_GetRootNode",
                         [](UI_Node& node) { return NodeP(node.UI_GetRootNode()); });
}

int nodeUI_GetParentNode(lua_State* L) {
    return PushFoundNode(L, "UI_GetParentNode",
                         [](UI_Node& node) { return NodeP(node.UI_GetParentNode()); });
}

int nodeGetDescendentByID(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    size_t length = 0;
    const char* id = luaL_checklstring(L, 2, &length);
    return PushFoundNode(L, "GetDescendentByID",
                         [&](UI_Node& node) { return findDescendant(node, id, length); });
}

// The id is copied into a Lua block before the string is made: making either can run a
// script's finalizer, which may end this wrapper and with it the node and its id, so the
// node is taken again after each allocation.
int nodeUI_GetNodeID(lua_State* L) {
    for (const UI_Node* node = LiveNode(L, 1); node; node = LiveNode(L, 1)) {
        const size_t size = node->UI_GetNodeID().size();
        auto* copy = static_cast<char*>(lua_newuserdata(L, size));
        node = LiveNode(L, 1);
        if (!node) return 0;
        const zebcore::UTF8String& id = node->UI_GetNodeID();
        if (id.size() == size) {
            std::memcpy(copy, id.data(), size);
            lua_pushlstring(L, copy, size);
            return 1;
        }
        lua_pop(L, 1); /* the finalizer changed the id: again with its new size */
    }
    return 0;
}

int nodeUI_SetNodeID(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    size_t length = 0;
    const char* id = luaL_checklstring(L, 2, &length);
    return CallOnNode(L, "UI_SetNodeID",
                      [&](UI_Node& node) { node.UI_SetNodeID(zebcore::UTF8String(id, length)); });
}

int nodeUI_GetIndex(lua_State* L) {
    return AnswerOfNode(L, "UI_GetIndex", [](UI_Node& node) { return node.UI_GetIndex() + 1; });
}

int nodeSetViewIndex(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const auto to = static_cast<unsigned long>(luaL_checkinteger(L, 2));
    return CallOnNode(L, "SetViewIndex",
                      [to](UI_Node& node) { moveAmongSiblings(node, to, true); });
}

int nodeSetViewIndexToBack(lua_State* L) {
    return CallOnNode(L, "SetViewIndexToBack",
                      [](UI_Node& node) { moveAmongSiblings(node, 0, false); });
}

int nodeSetViewIndexToFront(lua_State* L) {
    return CallOnNode(L, "SetViewIndexToFront", [](UI_Node& node) {
        const UI_Node* parent = node.UI_GetParentNode();
        if (parent) moveAmongSiblings(node, parent->ChildSize() - 1, false);
    });
}

}  // namespace ui
}  // namespace zeblua

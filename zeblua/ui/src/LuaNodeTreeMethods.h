// The node set's tree methods: children, parents, ids and the order of siblings.
#pragma once

struct lua_State;

namespace zeblua {
namespace ui {

// Numbering differs by method, as scripts have always met it: ChildGet and UI_GetIndex
// count from 1; ChildMove, ChildSwapOrder and SetViewIndex take the toolkit's indexes
// from 0, so a script subtracts 1 from UI_GetIndex before passing it on.
//   node:ChildPushBack(child)      node:ChildRemove(child)      node:DeleteChildren()
//   n = node:ChildSize()           child = node:ChildGet(i)     (nothing out of 1..n)
//   node:ChildSwapOrder(a, b)      node:ChildMove(from, to)     (from 0, unchecked)
//   root = node:UI_GetRootNode()   parent = node:UI_GetParentNode()
//   found = node:GetDescendentByID(id)   (depth first, never the node itself)
//   id = node:UI_GetNodeID()       node:UI_SetNodeID(id)
//   i = node:UI_GetIndex()         (from 1; 0 without a parent)
//   node:SetViewIndex(i)           (from 0)
//   node:SetViewIndexToBack()      node:SetViewIndexToFront()
int nodeChildPushBack(lua_State* L);
int nodeChildSize(lua_State* L);
int nodeChildGet(lua_State* L);
int nodeChildRemove(lua_State* L);
int nodeChildSwapOrder(lua_State* L);
int nodeChildMove(lua_State* L);
int nodeDeleteChildren(lua_State* L);
int nodeUI_GetRootNode(lua_State* L);
int nodeUI_GetParentNode(lua_State* L);
int nodeGetDescendentByID(lua_State* L);
int nodeUI_GetNodeID(lua_State* L);
int nodeUI_SetNodeID(lua_State* L);
int nodeUI_GetIndex(lua_State* L);
int nodeSetViewIndex(lua_State* L);
int nodeSetViewIndexToBack(lua_State* L);
int nodeSetViewIndexToFront(lua_State* L);

}  // namespace ui
}  // namespace zeblua

// The tree's methods that move rows: sorting by a script's comparison, and the drop
// action constants a script reads off any tree.
#pragma once

#include <string>

struct lua_State;

namespace zeblua {
namespace ui {

// The operation name under which a tree keeps its sorting function among its bound
// functions; it has no toolkit callback of its own.
constexpr const char* kMCTRowSortingFunction = "mctRowSortingFunction";

class LuaMultiColumnTree;

// Installs the toolkit callback behind "mctSelectedRowsBeingDragged" or "mctDropSupport"
// on the first binding of that name; other names are left alone. The callbacks hold the
// tree by plain pointer and belong to it.
void InstallTreeDragCallback(LuaMultiColumnTree& tree, const std::string& name);

// Adds the methods and the kDropAction_... constants to the tree's metatable on top.
void RegisterTreeDragMethods(lua_State* L);

}  // namespace ui
}  // namespace zeblua

// What the tree's method sets share: answering rows and lists of rows from a held tree.
#pragma once

#include <cstddef>

#include <lua.hpp>

#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaMultiColumnTree.h"
#include "zeblua/ui/src/LuaMultiColumnTreeRowWrapper.h"
#include "zeblua/utility/src/RunNative.h"

namespace zeblua {
namespace ui {

// Both take the tree of argument 1 as ControlNodeCast.h says (so a method calls them once
// its arguments are read), hold it for the C++ work, and make every Lua value that can
// raise before any C++ object exists.

// A wrapper of the row that find(tree) answers, nothing for none: the block is made before
// the tree is taken (ControlNodeCast.h), so the work holds rows and raises nothing.
template <class Find> int PushFoundTreeRow(lua_State* L, const char* name, Find find) {
    if (!CastControlNode<LuaMultiColumnTree>(L, 1)) return 0;
    LuaMultiColumnTreeRowWrapper* block = NewEmptyTreeRow(L);
    LuaMultiColumnTree* tree =
        CastControlNode<LuaMultiColumnTree>(L, 1);  // the allocation may have run script
    const bool found = tree && utility::RunNative(L, name, [&] {
                           const auto held = HoldNode(tree);
                           return FillTreeRow(block, find(*tree));
                       });
    if (found) return 1;
    lua_pop(L, 1);
    return 0;
}

// A table of wrappers of the rows that query(tree) lists. The table and its empty wrappers
// are made first, for as many rows as the list held then; the work fills them, and if
// script that ran meanwhile changed the list, the rows beyond it are left out and the
// wrappers beyond the new list are taken out, so the table has no holes.
template <class Query> int PushTreeRowList(lua_State* L, const char* name, Query query) {
    LuaMultiColumnTree* tree = CastControlNode<LuaMultiColumnTree>(L, 1);
    if (!tree) return 0;
    const size_t count = utility::RunNative(L, name, [&] {
        const auto held = HoldNode(tree);
        return query(*tree).size();
    });
    luaL_checkstack(L, 3, "Cannot grow stack for a list of tree rows");
    lua_createtable(L, static_cast<int>(count), 0);
    for (size_t i = 1; i <= count; ++i) {
        NewEmptyTreeRow(L);
        lua_rawseti(L, -2, static_cast<int>(i));
    }
    tree = CastControlNode<LuaMultiColumnTree>(L, 1);
    if (!tree) return 1; /* released meanwhile: empty wrappers */
    utility::RunNative(L, name, [&] {
        const auto held = HoldNode(tree);
        const TreeRowList rows = query(*tree);
        size_t index = 1;
        for (const TreeRowP& row : rows) {
            if (index > count) break;
            lua_rawgeti(L, -1, static_cast<int>(index++));
            auto* block = static_cast<LuaMultiColumnTreeRowWrapper*>(lua_touserdata(L, -1));
            FillTreeRow(block, row); /* a plain row leaves its wrapper empty */
            lua_pop(L, 1);
        }
        for (; index <= count; ++index) {
            lua_pushnil(L);
            lua_rawseti(L, -2, static_cast<int>(index)); /* an existing slot: no allocation */
        }
        return 0;
    });
    return 1;
}

}  // namespace ui
}  // namespace zeblua

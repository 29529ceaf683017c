// The wrapper of a multi-column tree: its metatable name and method set.
#pragma once

#include "zeblua/ui/src/LuaControlWrapperBase.h"

struct lua_State;
struct luaL_Reg;

namespace zeblua {
namespace ui {

// "Zeb.MultiColumnTree": the sub view set, then the tree's own sets in this order, then
// the operation names as string fields. A tree has no interactive control set and no
// control view set. A further set (rows in drags, sorting) is one more table here, added
// to the list in RegisterMethods after the event set.
class LuaMultiColumnTreeWrapper : public LuaControlWrapperBase {
public:
    using LuaControlWrapperBase::LuaControlWrapperBase;

    static const char* GetMetatableName();
    static void RegisterMethods(lua_State* L);

    // Rows, layout, columns, selection, open state and lookup.
    static const luaL_Reg modelMethods[];
    // Binding, cell text, grid, border, spinner and custom colours.
    static const luaL_Reg eventMethods[];
};

}  // namespace ui
}  // namespace zeblua

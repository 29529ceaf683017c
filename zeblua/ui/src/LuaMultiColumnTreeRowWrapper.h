// The wrapper through which a tree row reaches Lua, and the row helpers of the tree's methods.
#pragma once

#include <list>

#include <boost/intrusive_ptr.hpp>

#include "zeblua/ui/src/LuaMultiColumnTreeRow.h"

struct lua_State;
struct luaL_Reg;

namespace zeblua {
namespace ui {

// Stands outside the control wrapper family: it lives by value inside its userdata (no
// heap object), GetControlUserData refuses it, and its metatable holds only __gc
// (DoObjectBasedGC), __index and the row methods. Each push makes a new wrapper with a
// reference of its own; an empty one answers every row method with no result.
class LuaMultiColumnTreeRowWrapper {
public:
    LuaMultiColumnTreeRowWrapper();
    explicit LuaMultiColumnTreeRowWrapper(const boost::intrusive_ptr<LuaMultiColumnTreeRow>& row);
    virtual ~LuaMultiColumnTreeRowWrapper();

    static const char* GetMetatableName();
    static const luaL_Reg* GetMethods();

    LuaMultiColumnTreeRow* GetRow() const { return mRow.get(); }

private:
    boost::intrusive_ptr<LuaMultiColumnTreeRow> mRow;
};

using TreeRowP = boost::intrusive_ptr<zebui::controls::UI_MultiColumnTreeRow>;
using TreeRowList = std::list<TreeRowP>;

// How a method finds the row a script hands it. The wrapper holds its row by a counted
// reference, so the row is never freed under it; a row that was removed is detached (its
// tree is null) and the toolkit answers for it as for any row outside the tree. Reading
// another argument can run script, which may end a wrapper in place with its __gc (leaving
// it empty), so a method takes its rows after every other argument, and keeps the row by
// a counted reference only once nothing can raise any more.
//
// The row of the row wrapper at index; null for an empty wrapper. Anything else raises
// luaL_checkudata's error naming "Zeb.UI_MultiColumnTreeRow".
LuaMultiColumnTreeRow* CheckTreeRow(lua_State* L, int index);
// The same for a userdata; any other value (nil included) is no row and raises nothing.
LuaMultiColumnTreeRow* OptionalTreeRow(lua_State* L, int index);

// A method that answers a row makes the wrapper's block first, the one step that can
// raise (nothing is held yet), and fills it once the C++ work found the row:
//   LuaMultiColumnTreeRowWrapper* block = NewEmptyTreeRow(L);
//   ...take the tree and the row arguments again...
//   const bool found = RunNative(L, "...", [&] { return FillTreeRow(block, find()); });
//   if (!found) lua_pop(L, 1);
LuaMultiColumnTreeRowWrapper* NewEmptyTreeRow(lua_State* L);
// Gives block a reference to row as the script's class; false, the block left empty, for
// an empty row or a plain one. Never raises.
bool FillTreeRow(LuaMultiColumnTreeRowWrapper* block, const TreeRowP& row);

// Inside a protected frame (callbacks), where a raise skips no C++ frame:
// pushes a new wrapper of row: nothing (answering 0) for an empty row or one of the plain
// toolkit class. Raises only Lua's memory error.
int PushTreeRow(lua_State* L, const TreeRowP& row);
// Always pushes a wrapper: an empty one for an empty row or a plain one. Answers 1.
int PushTreeRowWrapper(lua_State* L, const TreeRowP& row);
// A table of a wrapper for each row of the list, from 1 in list order, with no holes (a
// plain row stands as an empty wrapper). Answers 1.
int PushRowListToLua(lua_State* L, const TreeRowList& rows);

}  // namespace ui
}  // namespace zeblua

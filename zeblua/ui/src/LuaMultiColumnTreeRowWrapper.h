// The wrapper through which a tree row reaches Lua.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zeblua/ui/src/LuaMultiColumnTreeRow.h"

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

private:
    boost::intrusive_ptr<LuaMultiColumnTreeRow> mRow;
};

}  // namespace ui
}  // namespace zeblua

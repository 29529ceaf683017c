// The wrapper of a tab well: its metatable name and method set.
#pragma once

#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"

struct lua_State;
struct luaL_Reg;

namespace zeblua {
namespace ui {

// "zebTabWell": the sub view set, then its own rows.
class LuaUI_TabWellWrapper : public LuaUI_SubViewWrapper {
public:
    using LuaUI_SubViewWrapper::LuaUI_SubViewWrapper;

    static const char* GetMetatableName();
    static void RegisterMethods(lua_State* L);

    static const luaL_Reg methods[];
};

}  // namespace ui
}  // namespace zeblua

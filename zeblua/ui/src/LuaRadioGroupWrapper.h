// The wrapper of a radio group: its metatable name and method set.
#pragma once

#include "zeblua/ui/src/LuaControlViewWrapper.h"

struct lua_State;
struct luaL_Reg;

namespace zeblua {
namespace ui {

// "zebRadioGroup": the control view set, then its own rows.
class LuaRadioGroupWrapper : public LuaControlViewWrapper {
public:
    using LuaControlViewWrapper::LuaControlViewWrapper;

    static const char* GetMetatableName();
    static void RegisterMethods(lua_State* L);

    static const luaL_Reg methods[];
};

}  // namespace ui
}  // namespace zeblua

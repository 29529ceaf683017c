// The wrapper of a knob: its metatable name and method set.
#pragma once

#include "zeblua/ui/src/LuaControlWrapperBase.h"

struct lua_State;
struct luaL_Reg;

namespace zeblua {
namespace ui {

// "zebKnob": the interactive control view set, then its own rows.
class LuaUI_KnobWrapper : public LuaControlWrapperBase {
public:
    using LuaControlWrapperBase::LuaControlWrapperBase;

    static const char* GetMetatableName();
    static void RegisterMethods(lua_State* L);

    static const luaL_Reg methods[];
};

}  // namespace ui
}  // namespace zeblua

// The wrapper of any node, and the node set that every wrapper metatable starts with.
#pragma once

#include "zeblua/ui/src/LuaControlWrapperBase.h"

struct lua_State;
struct luaL_Reg;

namespace zeblua {
namespace ui {

// "zebUINode": the node set alone. Its presence in the registry marks the controls
// module as open in that state.
class LuaUI_NodeWrapper : public LuaControlWrapperBase {
public:
    using LuaControlWrapperBase::LuaControlWrapperBase;

    static const char* GetMetatableName();
    static void RegisterMethods(lua_State* L);

    static const luaL_Reg methods[];
};

}  // namespace ui
}  // namespace zeblua

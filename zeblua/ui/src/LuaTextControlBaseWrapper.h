// The text control set: methods mixed into the wrappers of controls that show a text.
#pragma once

struct lua_State;
struct luaL_Reg;

namespace zeblua {
namespace ui {

// A method set only: no wrapper object and no metatable of its own.
class LuaTextControlBaseWrapper {
public:
    static void RegisterMethods(lua_State* L);

    static const luaL_Reg methods[];
};

}  // namespace ui
}  // namespace zeblua

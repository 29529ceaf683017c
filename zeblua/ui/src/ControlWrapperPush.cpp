// The wrapper push that keeps Lua's memory error away from frames holding nodes.
#include "zeblua/ui/src/ControlWrapperPush.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaControlWrapperFactory.h"

namespace zeblua {
namespace ui {
namespace {

using NodeP = boost::intrusive_ptr<zebui::ui::UI_Node>;

// Runs inside the protected call of FinishWrapperPush: the held node at 1.
int pushWrapperProtected(lua_State* L) {
    const NodeP& node = *static_cast<const NodeP*>(lua_touserdata(L, 1));
    LuaControlWrapperFactory(node, L);
    return 1;
}

}  // namespace

void PrepareWrapperPush(lua_State* L) {
    luaL_checkstack(L, 2, "cannot grow the stack for a wrapper");
    lua_pushcfunction(L, pushWrapperProtected);
}

bool FinishWrapperPush(lua_State* L, const NodeP& node) {
    if (!node) {
        lua_pop(L, 1);
        lua_pushnil(L); /* in the slot just freed: no allocation */
        return true;
    }
    lua_pushlightuserdata(L, const_cast<NodeP*>(&node));
    return lua_pcall(L, 1, 1, 0) == 0;
}

}  // namespace ui
}  // namespace zeblua

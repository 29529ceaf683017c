// The binder base and the arguments of change functions.
#include "zeblua/ui/src/LuaBinder.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaControlWrapperFactory.h"
#include "zebui/controls/UI_InteractiveControlChangedMessage.h"
#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {

LuaBinder::~LuaBinder() = default;

void LuaBinder::PushControlMessage(lua_State*, zebui::controls::UI_ControlChangedMessage*, int&) {}

void LuaBinder::PushInteractiveControlMessage(
    lua_State* L, zebui::controls::UI_InteractiveControlChangedMessage* message,
    const boost::intrusive_ptr<zebui::ui::UI_Node>& control, int& count) {
    lua_createtable(L, 0, 2);
    lua_getfield(L, LUA_REGISTRYINDEX, "interactiveChangeMessage"); /* made by InitZebControls */
    lua_setmetatable(L, -2);
    if (LuaControlWrapperFactory(control, L)) lua_setfield(L, -2, "control");
    lua_pushinteger(L, message->GetChangeMessage());
    lua_setfield(L, -2, "changeMessage");
    ++count;
}

}  // namespace ui
}  // namespace zeblua

// The constructors of zebcontrols: each makes a toolkit object and answers its wrapper.
#pragma once

#include <lua.hpp>

namespace zebui {
namespace ui {
class UI_Node;
}  // namespace ui
}  // namespace zebui

namespace zeblua {
namespace ui {

// The rows of the global table zebcontrols, ending in a null row.
extern const luaL_Reg kControlConstructors[];

// Pushes a wrapper of the node that make answers, made with no script argument read, as
// the wrapper's one owner; returns 1. Lua's memory error during the push is raised once
// the node has gone with nobody holding it.
int PushNewControl(lua_State* L, zebui::ui::UI_Node* (*make)());

// A new T with its default arguments, for controlNew.
template <class T> zebui::ui::UI_Node* MakeByDefault() {
    return new T();
}

// controlNew<make>: the constructor of a class that takes no Lua argument.
template <zebui::ui::UI_Node* (*Make)()> int controlNew(lua_State* L) {
    return PushNewControl(L, Make);
}

}  // namespace ui
}  // namespace zeblua

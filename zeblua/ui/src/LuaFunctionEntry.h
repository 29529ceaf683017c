// A Lua function that native code keeps: the state to call it on and its registry reference.
#pragma once

struct lua_State;

namespace zeblua {
namespace ui {

// state is the main thread of the universe in which the function was bound, never the
// coroutine that bound it: a coroutine may be suspended or collected by the time the
// function runs. The registry holds the function until the reference is released.
struct LuaFunctionEntry {
    lua_State* state;
    int reference;
};

}  // namespace ui
}  // namespace zeblua

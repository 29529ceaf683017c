// The four ways a native caller ends a call into a script function.
#pragma once

struct lua_State;

namespace zeblua {
namespace utility {

// Every call from native code into Lua:
//   1. uses the lua_State stored with the binding, never one from a global;
//   2. pushes the function (LuaBindery::pushBoundFxn, lua_rawgeti of a registry
//      reference, or PushLuaMethod for a method of a Lua object);
//   3. pushes the arguments, adding what each push helper returns to the count;
//   4. ends in one of the forms below, which run lua_pcall with message handler 0:
//      no traceback, and the error goes nowhere. The Lua side never sees a native
//      error and the toolkit never sees a Lua one.
// In all of them "the frame" is that of the running native function: emptying it
// also drops the arguments of a script's own native call that led to the callback, so
// a native Lua method reads its arguments before any toolkit call that can call back.

// How a call's leftovers go once the answer has been read.
enum class CallCleanup {
    kPopTop,      // lua_settop(L, -2): only the answer (or error value) goes
    kEmptyFrame,  // lua_settop(L, 0): the whole frame goes
};

// Notify: no answer. lua_pcall(L, nargs, 0, 0); a failure's error value is popped.
// Stack: the function and its arguments go, nothing is left.
void CallNotify(lua_State* L, int nargs);

// Truthy answer: lua_pcall(L, nargs, 1, 0) with the status not looked at, then
// lua_toboolean of the top. A failing function leaves its error message there, and
// that is true: a handler that raises counts as having answered true.
// Stack: the function and its arguments go, then cleanup.
bool CallTruthy(lua_State* L, int nargs, CallCleanup cleanup);

// Checked: lua_pcall(L, nargs, nresults, 0) with the status tested. True: the results
// stand on top for the caller, who reads and removes them. False: the call failed,
// cleanup has removed the error value (or the frame), and the caller takes its default.
bool CallChecked(lua_State* L, int nargs, int nresults, CallCleanup cleanup);

// Strict answer: lua_pcall(L, nargs, 1, 0) with the status tested. True only if the
// call succeeded and its result is the boolean true: a truthy value of another type,
// or a failure, answers false. Always ends with lua_settop(L, 0).
bool CallStrict(lua_State* L, int nargs);

// For a method of a Lua object held by objectReference: pushes the field methodName
// of the object, then the object as first argument. Returns 1, the arguments pushed.
// A missing field (or an object that is not a table) pushes nil in its place, so the
// lua_pcall that follows fails like any other failure.
int PushLuaMethod(lua_State* L, int objectReference, const char* methodName);

}  // namespace utility
}  // namespace zeblua

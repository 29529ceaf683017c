// The callback forms: lua_pcall and what follows it.
#include "zeblua/utility/src/LuaCallForms.h"

#include <lua.hpp>

#include "zeblua/utility/src/RunningScript.h"

namespace zeblua {
namespace utility {
namespace {

void cleanUp(lua_State* L, CallCleanup cleanup) {
    lua_settop(L, cleanup == CallCleanup::kPopTop ? -2 : 0);
}

// lua_pcall with message handler 0; an assertion report made while the function runs
// names the line it is running.
int protectedCall(lua_State* L, int nargs, int nresults) {
    const RunningScript running(L, RunningScript::kAtReport);
    return lua_pcall(L, nargs, nresults, 0);
}

}  // namespace

void CallNotify(lua_State* L, int nargs) {
    if (protectedCall(L, nargs, 0) != 0) lua_pop(L, 1); /* drop the error value */
}

bool CallTruthy(lua_State* L, int nargs, CallCleanup cleanup) {
    protectedCall(L, nargs, 1); /* result or error message on top, either way */
    const bool answer = lua_toboolean(L, -1) != 0;
    cleanUp(L, cleanup);
    return answer;
}

bool CallChecked(lua_State* L, int nargs, int nresults, CallCleanup cleanup) {
    if (protectedCall(L, nargs, nresults) == 0) return true;
    cleanUp(L, cleanup);
    return false;
}

bool CallStrict(lua_State* L, int nargs) {
    const bool answer = protectedCall(L, nargs, 1) == 0 && lua_type(L, -1) == LUA_TBOOLEAN &&
                        lua_toboolean(L, -1) == 1;
    lua_settop(L, 0);
    return answer;
}

int PushLuaMethod(lua_State* L, int objectReference, const char* methodName) {
    lua_rawgeti(L, LUA_REGISTRYINDEX, objectReference);
    if (lua_istable(L, -1))
        lua_getfield(L, -1, methodName);
    else
        lua_pushnil(L);
    lua_insert(L, -2); /* method, object */
    return 1;
}

}  // namespace utility
}  // namespace zeblua

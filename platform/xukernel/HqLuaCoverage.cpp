// The coverage table and its line hook.
#include "xukernel/HqLuaCoverage.h"

#include <lua.hpp>

namespace {

// Its address is the registry key of the coverage table.
const char sCoverageKey = 0;

void pushCoverageTable(lua_State* L) {
    lua_pushlightuserdata(L, const_cast<char*>(&sCoverageKey));
    lua_rawget(L, LUA_REGISTRYINDEX);
}

// Runs inside the script's own execution, so an error here is the script's error.
void countLine(lua_State* L, lua_Debug* ar) {
    if (!lua_getinfo(L, "S", ar)) return;
    pushCoverageTable(L);
    lua_getfield(L, -1, "hits");
    if (!lua_istable(L, -1)) {
        lua_pop(L, 2);
        return;
    }
    lua_getfield(L, -1, ar->source);
    if (!lua_istable(L, -1)) {
        lua_pop(L, 1);
        lua_newtable(L);
        lua_pushvalue(L, -1);
        lua_setfield(L, -3, ar->source); /* hits[source] = {} */
    }
    lua_rawgeti(L, -1, ar->currentline);
    const lua_Integer count = lua_tointeger(L, -1);
    lua_pop(L, 1);
    lua_pushinteger(L, count + 1);
    lua_rawseti(L, -2, ar->currentline); /* lines[currentline] = count + 1 */
    lua_pop(L, 3);
}

int coverageStart(lua_State* L) {
    lua_sethook(L, countLine, LUA_MASKLINE, 0);
    return 0;
}

int coverageStop(lua_State* L) {
    lua_sethook(L, nullptr, 0, 0);
    return 0;
}

const luaL_Reg kCoverageFunctions[] = {
    {"start", coverageStart}, {"stop", coverageStop}, {nullptr, nullptr}};

}  // namespace

extern "C" void HqLuaCoverage_push(lua_State* L) {
    pushCoverageTable(L);
    if (lua_istable(L, -1)) return;
    lua_pop(L, 1);

    lua_newtable(L);
    luaL_register(L, nullptr, kCoverageFunctions);
    lua_newtable(L);
    lua_setfield(L, -2, "hits");
    lua_pushlightuserdata(L, const_cast<char*>(&sCoverageKey));
    lua_pushvalue(L, -2);
    lua_rawset(L, LUA_REGISTRYINDEX); /* registry[key] = coverage table */
}

// zebTypes: the platform flag constants.
#pragma once

struct lua_State;

extern "C" int luaopen_zeblua_zebcore_zebTypes(lua_State* L);

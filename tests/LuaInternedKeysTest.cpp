// Interned keys: the very strings lua_pushstring gives, one table per state, and field
// reads through them that fail exactly as reads by name do.
#include <string>

#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zeblua/utility/src/LuaInternedKeys.h"
#include "zeblua/utility/src/LuaTableFields.h"
#include "zeblua/utility/src/MainThread.h"

namespace zu = zeblua::utility;

namespace {

const char* const kNames[] = {"top", "left", "a rather longer key than the others"};
const zu::InternedKeys sKeys(kNames);

// -- readTop(t), readTopByName(t): CheckNumberField of "top" through either form.
int readTop(lua_State* L) {
    const int keys = sKeys.Push(L);
    lua_pushnumber(L, zu::CheckNumberField(L, 1, keys, 1));
    return 1;
}

int readTopByName(lua_State* L) {
    lua_pushnumber(L, zu::CheckNumberField(L, 1, "top"));
    return 1;
}

}  // namespace

class LuaInternedKeysTest : public LuaTest {};

TEST_F(LuaInternedKeysTest, KeysAreTheStatesOwnStringsMadeOncePerState) {
    const int keys = sKeys.Push(L);
    EXPECT_EQ(keys, 1);
    EXPECT_EQ(sKeys.Push(L), 2);
    EXPECT_TRUE(lua_rawequal(L, 1, 2)) << "one table per state, made once";
    for (int key = 1; key <= 3; ++key) {
        lua_rawgeti(L, keys, key);
        lua_pushstring(L, kNames[key - 1]);
        EXPECT_TRUE(lua_rawequal(L, -1, -2)) << kNames[key - 1];
        lua_pop(L, 2);
    }
    // Past the names, the table's own registry reference, by which a main thread finds it.
    lua_rawgeti(L, keys, 4);
    ASSERT_EQ(lua_type(L, -1), LUA_TNUMBER);
    lua_rawgeti(L, LUA_REGISTRYINDEX, static_cast<int>(lua_tointeger(L, -1)));
    EXPECT_TRUE(lua_rawequal(L, keys, -1));
    lua_pop(L, 2);
    lua_rawgeti(L, keys, 5);
    EXPECT_TRUE(lua_isnil(L, -1));
    lua_pop(L, 1);

    // A reference the registry lost (a resize that runs out of memory can hide its integer
    // keys) is never trusted, on the cached path either: the table is named again.
    zu::RecordMainThread(L);
    sKeys.Push(L); /* keeps the reference for this main thread */
    lua_pop(L, 1);
    lua_rawgeti(L, keys, 4);
    const int lost = static_cast<int>(lua_tointeger(L, -1));
    lua_newtable(L);
    lua_rawseti(L, LUA_REGISTRYINDEX, lost); /* registry[lost] = another table */
    lua_pop(L, 1);
    EXPECT_TRUE(lua_rawequal(L, keys, sKeys.Push(L)));
    lua_rawgeti(L, keys, 4);
    const int renamed = static_cast<int>(lua_tointeger(L, -1));
    EXPECT_NE(renamed, lost);
    lua_rawgeti(L, LUA_REGISTRYINDEX, renamed);
    EXPECT_TRUE(lua_rawequal(L, keys, -1));
    EXPECT_TRUE(lua_rawequal(L, keys, sKeys.Push(L))) << "the new reference, cached";
    lua_settop(L, 2);

    // Another state has its own table, not a stale reference into this one.
    lua_State* other = luaL_newstate();
    ASSERT_NE(other, nullptr);
    lua_pushnil(other);
    EXPECT_EQ(sKeys.Push(other), 2);
    lua_rawgeti(other, 2, 2);
    EXPECT_STREQ(lua_tostring(other, -1), "left");
    lua_close(other);

    // A state opened after the remembered one closed (often at its very address) and a
    // coroutine each get their own state's table.
    for (int round = 0; round < 2; ++round) {
        lua_State* next = luaL_newstate();
        ASSERT_NE(next, nullptr);
        const int nextKeys = sKeys.Push(next);
        EXPECT_EQ(sKeys.Push(next), nextKeys + 1);
        EXPECT_TRUE(lua_rawequal(next, nextKeys, nextKeys + 1));
        lua_rawgeti(next, nextKeys, 1);
        EXPECT_STREQ(lua_tostring(next, -1), "top");
        lua_close(next);
    }
    lua_State* coroutine = lua_newthread(L);
    const int threadKeys = sKeys.Push(coroutine);
    lua_pushvalue(coroutine, threadKeys);
    lua_xmove(coroutine, L, 1);
    EXPECT_TRUE(lua_rawequal(L, keys, -1)) << "a coroutine shares its state's table";
    lua_pop(L, 2);

    // The table lives in the registry, not on the stack it was first pushed on.
    lua_settop(L, 0);
    lua_gc(L, LUA_GCCOLLECT, 0);
    sKeys.Push(L);
    lua_rawgeti(L, 1, 3);
    EXPECT_STREQ(lua_tostring(L, -1), kNames[2]);
}

TEST_F(LuaInternedKeysTest, ReadsThroughAKeyBehaveAsReadsByName) {
    lua_register(L, "read", readTop);
    runLua("logged = setmetatable({}, {__index = function(_, key) seen = key return 7 end})");
    EXPECT_EQ(luaValue("read({top = 3})"), "3");
    EXPECT_EQ(luaValue("read(logged)"), "7");
    EXPECT_EQ(luaValue("rawequal(seen, 'top')"), "true");
    const char* const calls[] = {"read({})", "read({top = 'x'})", "read({top = {}})"};
    for (const char* call : calls) {
        lua_register(L, "read", readTopByName);
        const std::string byName = luaError(call);
        EXPECT_NE(byName.find("bad argument #-1 to 'read' (number expected"), std::string::npos)
            << byName;
        lua_register(L, "read", readTop);
        EXPECT_EQ(luaError(call), byName);
    }
}

// The shared test fixture: a state with the platform, the library and the script layer.
#include "tests/LuaTestFixture.h"

#include <lua.hpp>

#include "host/src/Session.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/ui/src/LuaControlWrapperBase.h"
#include "zeblua/ui/src/LuaControlWrapperFactory.h"

void LuaTest::SetUp() {
    zebcore::debug::ClearRecordedAssertReports();
    L = luaL_newstate();
    ASSERT_NE(L, nullptr);
    zebhost::SessionOptions options;
    options.resourcesDir = ZEBHOST_DEFAULT_RESOURCES;
    options.moduleDir = ZEBLUA_MODULE_DIR;
    std::string error;
    ASSERT_TRUE(zebhost::OpenSession(L, options, error)) << error;
    lua_settop(L, 0);
}

void LuaTest::TearDown() {
    if (L) lua_close(L);
    L = nullptr;
}

void LuaTest::runLua(const std::string& code) {
    const int top = lua_gettop(L);
    if (luaL_loadbuffer(L, code.data(), code.size(), "=test") != 0 || lua_pcall(L, 0, 0, 0) != 0) {
        const char* message = lua_tostring(L, -1);
        ADD_FAILURE() << "Lua error: " << (message ? message : "(not a string)")
                      << "\nin: " << code;
    }
    lua_settop(L, top);
}

std::string LuaTest::luaError(const std::string& code) {
    const int top = lua_gettop(L);
    std::string message;
    if (luaL_loadbuffer(L, code.data(), code.size(), "=test") != 0 || lua_pcall(L, 0, 0, 0) != 0) {
        const char* text = lua_tostring(L, -1);
        message = text ? text : "(error object is not a string)";
    } else {
        ADD_FAILURE() << "expected a Lua error from: " << code;
    }
    lua_settop(L, top);
    return message;
}

std::string LuaTest::luaValue(const std::string& expression) {
    const int top = lua_gettop(L);
    const std::string code = "return tostring((" + expression + "))";
    std::string result;
    if (luaL_loadbuffer(L, code.data(), code.size(), "=test") != 0 || lua_pcall(L, 0, 1, 0) != 0) {
        const char* message = lua_tostring(L, -1);
        ADD_FAILURE() << "Lua error: " << (message ? message : "(not a string)")
                      << "\nin: " << code;
    } else {
        size_t length = 0;
        const char* text = lua_tolstring(L, -1, &length);
        result.assign(text ? text : "", text ? length : 0);
    }
    lua_settop(L, top);
    return result;
}

int LuaTest::resultCount(const std::string& expression) {
    return std::stoi(luaValue("select('#', " + expression + ")"));
}

std::string MethodCallOn(const MethodRow& row, const char* self) {
    const std::string call = row.call;
    const size_t open = call.find('(');
    const std::string args = call.substr(open + 1);
    return "w." + call.substr(2, open - 2) + "(" + self + (args == ")" ? "" : ", ") + args;
}

void LuaTest::expectEndedWrapperAnswersNothing(const MethodRow& row) {
    SCOPED_TRACE(row.call);
    runLua(std::string("w = ") + row.maker + "; w:Release()");
    EXPECT_EQ(resultCount(row.call), 0);
    runLua(std::string("w = ") + row.maker + "; getmetatable(w).__gc(w)");
    EXPECT_EQ(resultCount(row.call), 0);
}

void LuaTest::collectGarbage() {
    lua_gc(L, LUA_GCCOLLECT, 0);
}

zebui::ui::UI_Node* LuaTest::wrappedNode(const char* global) {
    lua_getglobal(L, global);
    zeblua::ui::LuaControlWrapperBase* wrapper = zeblua::ui::GetControlUserData(L, -1);
    lua_pop(L, 1);
    return wrapper ? wrapper->GetNode().get() : nullptr;
}

void LuaTest::setWrapper(const char* name, const boost::intrusive_ptr<zebui::ui::UI_Node>& node) {
    ASSERT_NE(zeblua::ui::LuaControlWrapperFactory(node, L), nullptr);
    lua_setglobal(L, name);
}

int LuaTest::reportCount(const std::string& message) {
    int count = 0;
    for (const auto& report : zebcore::debug::RecordedAssertReports())
        if (report.message == message) ++count;
    return count;
}

void LuaTest::pushSentinels() {
    lua_pushstring(L, "a");
    lua_pushinteger(L, 2);
    lua_pushboolean(L, 1);
}

void LuaTest::expectSentinels() {
    ASSERT_EQ(lua_gettop(L), 3);
    EXPECT_STREQ(lua_tostring(L, 1), "a");
    EXPECT_EQ(lua_tointeger(L, 2), 2);
    EXPECT_TRUE(lua_toboolean(L, 3));
    lua_settop(L, 0);
}

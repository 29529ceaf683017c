// Root registration, the embedded code searcher, script folders and the registration forms.
#include <gmock/gmock.h>
#include <lua.hpp>

#include "os/CoreFoundation.h"
#include "tests/LuaTestFixture.h"
#include "vex/app/App.h"
#include "zebcore/filesupport/CommonDirs.h"
#include "zeblua/core/ZebTypes.h"
#include "zeblua/utility/src/ScriptLocation.h"
#include "zeblua/utility/src/ZebLua.h"
#include "zebui/utility/ResourceManager.h"

namespace fs = zebcore::filesupport;
using ::testing::HasSubstr;
using ::testing::Not;
using zebcore::utility::UTF16to8;

class ModuleEntryTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        manager()->AddFolder(fixtures());
    }
    void TearDown() override {
        manager()->RemoveFolder(fixtures());
        LuaTest::TearDown();
    }
    static zebui::utility::ResourceManager* manager() {
        return vex::app::App::GetApp()->GetAppResourceManager();
    }
    static fs::Dir fixtures() { return fs::Dir(zebcore::utility::UTF8to16(ZEBLUA_TEST_FIXTURES)); }
};

TEST_F(ModuleEntryTest, RequireOfTheRootGivesTheStringTableWhileTheGlobalHoldsNumeric) {
    // InitLua leaves both tables, zeblua below zebString, and answers 1.
    EXPECT_EQ(zeblua::InitLua(L), 1);
    ASSERT_EQ(lua_gettop(L), 2);
    lua_getglobal(L, "zeblua");
    EXPECT_TRUE(lua_rawequal(L, 1, -1));
    lua_getglobal(L, "zebString");
    EXPECT_TRUE(lua_rawequal(L, 2, -1));
    lua_settop(L, 0);

    // The session registered the root already; a host that had not, requires it afresh.
    // require then keeps the zebString table as package.loaded.zeblua.
    runLua("package.loaded.zeblua = nil; zeblua = nil; root = require 'zeblua'");
    EXPECT_EQ(luaValue("root == zebString"), "true");
    EXPECT_EQ(luaValue("package.loaded.zeblua == zebString"), "true");
    EXPECT_EQ(luaValue("type(zeblua.numeric.unmatrix)"), "function");
    EXPECT_EQ(luaValue("rawget(zeblua, 'zebString')"), "nil");
}

TEST_F(ModuleEntryTest, EmbeddedSearcherMapsDotsAndKeepsTheDottedChunkName) {
    runLua("m = require 'plainmodule'");
    EXPECT_EQ(luaValue("m.name"), "plainmodule");
    EXPECT_EQ(luaValue("m.loadedAs"), "plainmodule");

    runLua("d = require 'fixture.dotted.name'");
    EXPECT_EQ(luaValue("d.sawGlobal"), "true");  // the chunk runs with the globals table
    EXPECT_EQ(luaValue("select(2, pcall(d.fail))"), "fixture.dotted.name:3: boom");

    // No other byte than "." changes: "fixture_dotted.name" is the same resource.
    EXPECT_EQ(luaValue("require('fixture_dotted.name').sawGlobal"), "true");
    // "/" is no separator for resources, so this name finds nothing.
    EXPECT_NE(luaError("require 'fixture/dotted/name'").find("not found"), std::string::npos);
}

TEST_F(ModuleEntryTest, MissingResourceLeavesRequireToItsOwnMessage) {
    const std::string message = luaError("require 'no.such.module'");
    EXPECT_NE(message.find("module 'no.such.module' not found"), std::string::npos) << message;

    // The searcher itself answers nothing and checks its argument as a string.
    EXPECT_EQ(resultCount("package.loaders[#package.loaders]('no_such_module')"), 0);
    EXPECT_NE(luaError("package.loaders[#package.loaders]({})").find("bad argument #1"),
              std::string::npos);

    // A chunk that does not compile is an error as Lua's own loaders raise it: the syntax
    // error with the chunk's name and line, not "module not found".
    const std::string syntax = luaError("require 'badsyntax'");
    EXPECT_THAT(syntax, HasSubstr("error loading module 'badsyntax' from resource 'badsyntax':\n\t"
                                  "badsyntax:3: unexpected symbol near '<eof>'"));
    EXPECT_THAT(syntax, Not(HasSubstr("not found")));
}

TEST_F(ModuleEntryTest, ClassFormLeavesItsMetatableInTheRegistry) {
    runLua("t = require 'zeblua.zebcore.zebTypes'");
    EXPECT_EQ(luaValue("t == zebTypes"), "true");
    EXPECT_EQ(luaValue("zebTypes.ZEB_OS_Flag_WIN"), "1");
    EXPECT_EQ(luaValue("zebTypes.ZEB_OS_Flag_MAC"), "2");
    EXPECT_EQ(luaValue("zebTypes.ZEB_OS_Flag_THIS_ONE"), "2");
    EXPECT_EQ(luaValue("zebTypes.ZEB_OS_Flag_ALL"), "-1");

    luaL_getmetatable(L, "zeblua.core.zebTypes");
    ASSERT_TRUE(lua_istable(L, -1));
    lua_getfield(L, -1, "__index");
    EXPECT_TRUE(lua_rawequal(L, -1, -2));  // its own __index, no chain
    lua_settop(L, 0);

    // The opener leaves the metatable below the library table and answers 1.
    EXPECT_EQ(luaopen_zeblua_zebcore_zebTypes(L), 1);
    EXPECT_EQ(lua_gettop(L), 2);
    lua_settop(L, 0);
}

TEST_F(ModuleEntryTest, ScriptFoldersResolveBelowTheResourcesFolder) {
    namespace lu = zeb::lua::utility;
    const fs::Dir savedResources = fs::commondirs::ResourcesDir();

    fs::commondirs::SetResourcesDir(fixtures());
    lu::SetLuaScriptsDirOverride(fs::Dir());
    EXPECT_EQ(UTF16to8(lu::GetLuaScriptsDir("tools").FullPath()),
              std::string(ZEBLUA_TEST_FIXTURES) + "/scripts/lua/tools");

    // A missing base gives the empty Dir, so a name lands directly below nothing.
    fs::commondirs::SetResourcesDir(fs::Dir(u"/no/such/resources"));
    lu::SetLuaScriptsDirOverride(fs::Dir());
    EXPECT_TRUE(lu::GetLuaScriptsDir(fs::Dir(u"/no/such/resources")).FullPath().empty());
    EXPECT_TRUE(lu::GetLuaScriptsDir("tools").Parent().FullPath().empty());

    lu::SetLuaScriptsDirOverride(fs::Dir(u"/opt/scripts"));
    EXPECT_EQ(UTF16to8(lu::GetLuaScriptsDir("x").FullPath()), "/opt/scripts/x");
    lu::SetLuaScriptsDirOverride(fs::Dir());
    fs::commondirs::SetResourcesDir(savedResources);
}

TEST_F(ModuleEntryTest, CommonScriptsFolderComesFromTheBundleOrTheAppFolder) {
    namespace lu = zeb::lua::utility;
    // Without the bundle the folder below the application is asked for, and it is absent.
    EXPECT_TRUE(lu::GetCommonLuaScriptsDir("x").FullPath().empty());

    // With the bundle, its module's folder + Resources/scripts/lua, looked up afresh each call.
    const std::string module = std::string(ZEBLUA_TEST_FIXTURES) + "/bundle/zeblua.so";
    os::RegisterBundle(lu::kZebLuaBundleIdentifier, module);
    EXPECT_EQ(UTF16to8(lu::GetCommonLuaScriptsDir("tools").FullPath()),
              std::string(ZEBLUA_TEST_FIXTURES) + "/bundle/Resources/scripts/lua/tools");
    os::UnregisterBundle(lu::kZebLuaBundleIdentifier);
}

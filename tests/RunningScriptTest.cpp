// Assertion reports name the script's place while native code runs for it.
#include <string>

#include <gtest/gtest.h>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/utility/src/LuaCallForms.h"
#include "zeblua/utility/src/MainThread.h"
#include "zeblua/utility/src/RunNative.h"

namespace {

using zeblua::utility::RunNative;

// -- report(): a report made by a binding's C++ work
int report(lua_State* L) {
    return RunNative(L, "report", [] {
        ZEB_ASSERT_MSG(false, "from native");
        return 0;
    });
}

// -- callThenReport(fn): native code that calls back into Lua, then reports
int callThenReport(lua_State* L) {
    return RunNative(L, "callThenReport", [L] {
        lua_pushvalue(L, 1);
        lua_pcall(L, 0, 0, 0);
        ZEB_ASSERT_MSG(false, "after the callback");
        return 0;
    });
}

// -- reportUnguarded(): a report made by a binding before any RunNative, as a proxy check's
int reportUnguarded(lua_State*) {
    ZEB_ASSERT_MSG(false, "outside RunNative");
    return 0;
}

// -- failInside(): a Lua error raised from inside the work, skipping RunNative's guard
int failInside(lua_State* L) {
    return RunNative(L, "failInside", [L] { return luaL_error(L, "skipped"); });
}

class RunningScriptTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        zebcore::debug::ClearRecordedAssertReports();
        lua_register(L, "report", report);
        lua_register(L, "callThenReport", callThenReport);
        lua_register(L, "failInside", failInside);
        lua_register(L, "reportUnguarded", reportUnguarded);
    }

    static std::vector<std::string> places() {
        std::vector<std::string> found;
        for (const auto& record : zebcore::debug::RecordedAssertReports())
            found.push_back(record.scriptPlace);
        return found;
    }
};

TEST_F(RunningScriptTest, AReportNamesTheInnermostScriptLineAndTheNativePlace) {
    runLua("local x = 1\n"
           "report()\n"
           "pcall(report)\n"  // pcall, a C function, stands between the script and report
           "callThenReport(function()\n"
           "  report()\n"
           "end)\n");
    EXPECT_EQ(places(), (std::vector<std::string>{"test:2", "test:3", "test:5", "test:4"}));
    const auto& first = zebcore::debug::RecordedAssertReports().front();
    EXPECT_EQ(first.file, "tests/RunningScriptTest.cpp");  // no absolute build path
    EXPECT_EQ(first.message, "from native");
    EXPECT_EQ(first.function, "operator()");

    // Outside any binding no script is running, whatever ran before.
    zebcore::debug::ClearRecordedAssertReports();
    ZEB_ASSERT_MSG(false, "from the test");
    EXPECT_EQ(places(), std::vector<std::string>{""});
}

// A Lua error from inside the work skips the guard's destructor; the next guard drops the
// stale record, so later reports do not name the failed call's line.
TEST_F(RunningScriptTest, AGuardSkippedByALuaErrorLeavesNoStalePlace) {
    runLua("pcall(failInside)\n"
           "\n"
           "report()\n");
    ZEB_ASSERT_MSG(false, "from the test");
    EXPECT_EQ(places(), (std::vector<std::string>{"test:3", ""}));
}

// A callback form keeps its state and reads the place when a report asks, so a binding's
// report outside RunNative names the line running in the callback; a plain lua_pcall of
// the test fixture has no guard, so the same report there names no place.
TEST_F(RunningScriptTest, ACallbackNamesTheLineRunningWhenTheReportIsMade) {
    runLua("function callback()\n"
           "  local x = 1\n"
           "  reportUnguarded()\n"
           "  pcall(report)\n"
           "end\n");
    lua_getglobal(L, "callback");
    zeblua::utility::CallNotify(L, 0);
    runLua("reportUnguarded()");
    EXPECT_EQ(places(), (std::vector<std::string>{"test:3", "test:4", ""}));
}

// On a main thread the library knows, a guard reads the place only when a report asks, so
// it keeps the state: when that state closes, a record a Lua error left behind forgets it,
// and a later report names no place instead of reading a closed state.
TEST_F(RunningScriptTest, AClosedStateIsNeverReadForAPlace) {
    lua_State* other = luaL_newstate();
    luaL_openlibs(other);
    zeblua::utility::RecordMainThread(other); /* as every opener does */
    lua_register(other, "failInside", failInside);
    lua_register(other, "report", report);
    ASSERT_EQ(luaL_dostring(other, "report()\npcall(failInside)"), 0);
    lua_close(other);
    ZEB_ASSERT_MSG(false, "after the close");
    EXPECT_EQ(places(), (std::vector<std::string>{"[string \"report()...\"]:1", ""}));
}

}  // namespace

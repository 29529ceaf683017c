// Undo steps and restorers in Lua from the native side: the reference as decimal text,
// empty data, a disabled restorer that leaves the stack alone, references released or
// never released, the history's order, and a closed state the history lets go of.
#include <string>

#include <boost/intrusive_ptr.hpp>
#include <gtest/gtest.h>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zebcore/utility/StringToNumber.h"
#include "zeblua/undo/src/LuaAction.h"
#include "zeblua/undo/src/LuaStateRestorer.h"
#include "zeblua/utility/src/StateBound.h"
#include "zebundo/UndoHistory.h"

namespace {

using zeblua::undo::LuaAction;
using zeblua::undo::LuaStateRestorer;
using zebundo::UndoHistory;

class UndoActionTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        UndoHistory::Get()->Clear();
        runLua(R"(
            log = {}
            t = { name = "t" }
            function t:handleActionUndo(...) log[#log + 1] = "undo:" .. self.name .. select("#", ...) end
            function t:handleActionRedo(...) log[#log + 1] = "redo:" .. self.name .. select("#", ...) end
            function t:restoreState(...) log[#log + 1] = "restore:" .. self.name .. select("#", ...) end
            weak = setmetatable({ t }, { __mode = "v" })
        )");
    }
    void TearDown() override {
        UndoHistory::Get()->Clear();
        LuaTest::TearDown();
    }
    int refTable() {
        lua_getglobal(L, "t");
        return luaL_ref(L, LUA_REGISTRYINDEX);
    }
    std::string log() {
        std::string text = luaValue("table.concat(log, ' ')");
        runLua("log = {}");
        return text;
    }
    bool tableAlive() {
        runLua("t = nil");
        collectGarbage();
        return luaValue("weak[1] ~= nil") == "true";
    }
};

TEST_F(UndoActionTest, TheReferenceTravelsAsDecimalTextAndIsReleasedWithTheAction) {
    const int ref = refTable();
    boost::intrusive_ptr<LuaAction> action(
        new LuaAction(true, false, "Move", std::to_string(ref), L));
    EXPECT_TRUE(action->GetActionString() == u"Move") << "the description in UTF-16";
    EXPECT_TRUE(action->GetUndoDescription() == u"Undo Move");
    pushSentinels();
    action->Undo();
    action->Redo();
    expectSentinels();
    EXPECT_EQ(log(), "undo:t0 redo:t0") << "the table is the only argument";
    EXPECT_TRUE(tableAlive()) << "the action holds the table";
    action.reset();
    collectGarbage();
    EXPECT_EQ(luaValue("weak[1] == nil"), "true") << "released with the action";
}

TEST_F(UndoActionTest, EmptyDataCallsNothingAndReleasesNothing) {
    const int ref = refTable();
    {
        boost::intrusive_ptr<LuaAction> action(new LuaAction(true, true, "", "", L));
        action->Undo();
        action->Redo();
    }
    EXPECT_EQ(log(), "");
    lua_rawgeti(L, LUA_REGISTRYINDEX, ref);
    EXPECT_TRUE(lua_istable(L, -1)) << "the reference nobody handed over is still there";
    lua_pop(L, 1);
}

TEST_F(UndoActionTest, AReferenceToNoTableMakesNoCall) {
    lua_pushinteger(L, 7);
    const int ref = luaL_ref(L, LUA_REGISTRYINDEX);
    boost::intrusive_ptr<LuaAction> action(new LuaAction(true, true, "", std::to_string(ref), L));
    action->Undo();
    EXPECT_EQ(log(), "");
}

TEST_F(UndoActionTest, ADisabledRestorerTouchesNothingAndCanBeEnabledAgain) {
    boost::intrusive_ptr<LuaStateRestorer> restorer(new LuaStateRestorer(refTable(), L));
    restorer->DisableRestorer(true);
    pushSentinels();
    restorer->RestoreState();
    expectSentinels();
    EXPECT_EQ(log(), "");
    restorer->DisableRestorer(false);
    restorer->RestoreState();
    EXPECT_EQ(log(), "restore:t0");
}

TEST_F(UndoActionTest, ARestorerWithReferenceZeroOrLessReleasesNothing) {
    // Slot 0 of the registry heads Lua's free list: releasing "reference 0" would overwrite
    // it. Free one reference so the head holds a known number, then watch it.
    lua_pushboolean(L, 1);
    const int freed = luaL_ref(L, LUA_REGISTRYINDEX);
    luaL_unref(L, LUA_REGISTRYINDEX, freed);
    { boost::intrusive_ptr<LuaStateRestorer> zero(new LuaStateRestorer(0, L)); }
    { boost::intrusive_ptr<LuaStateRestorer> negative(new LuaStateRestorer(-2, L)); }
    lua_rawgeti(L, LUA_REGISTRYINDEX, 0);
    EXPECT_EQ(lua_tointeger(L, -1), freed) << "the free list is as it was";
    lua_pop(L, 1);
}

TEST_F(UndoActionTest, TheHistoryRunsStepsAndRestorersInOrder) {
    UndoHistory* history = UndoHistory::Get();
    history->AddAction(new LuaAction(true, true, "one", std::to_string(refTable()), L));
    history->AddStateRestorer(new LuaStateRestorer(refTable(), L));
    EXPECT_EQ(history->GetUndoCount(), 1u) << "the restorer joined the step";
    EXPECT_TRUE(history->Undo());
    EXPECT_EQ(log(), "undo:t0 restore:t0");
    EXPECT_TRUE(history->Redo());
    EXPECT_EQ(log(), "redo:t0 restore:t0");
    history->Clear();
    history->AddStateRestorer(new LuaStateRestorer(refTable(), L));
    EXPECT_EQ(history->GetUndoCount(), 1u) << "a restorer alone is a step of its own";
    EXPECT_TRUE(history->Undo());
    EXPECT_EQ(log(), "restore:t0");
}

TEST_F(UndoActionTest, ClosingTheStateClearsTheHistoryAndDetachesHeldObjects) {
    UndoHistory* history = UndoHistory::Get();
    history->AddAction(new LuaAction(true, true, "one", std::to_string(refTable()), L));
    history->AddStateRestorer(new LuaStateRestorer(refTable(), L));
    boost::intrusive_ptr<LuaAction> kept(
        new LuaAction(true, true, "kept", std::to_string(refTable()), L));
    EXPECT_EQ(zeblua::utility::CountStateBound(L), 3);
    lua_close(L);
    L = nullptr;
    EXPECT_EQ(history->GetUndoCount(), 0u) << "the history was cleared before the state went";
    EXPECT_FALSE(history->Undo());
    EXPECT_EQ(kept->GetLuaState(), nullptr) << "an action held elsewhere is detached";
    kept->Undo();  // calls nothing
    kept.reset();  // releases nothing
}

TEST(StringToNumber, DecimalTextOnly) {
    struct Row {
        const char16_t* text;
        bool ok;
        int value;
    } rows[] = {
        {u"42", true, 42},
        {u" -7 ", true, -7},
        {u"+3", true, 3},
        {u"", false, 99},
        {u"4x", false, 99},
        {u"2147483648", false, 99},
        {u"-2147483648", true, -2147483647 - 1},
    };
    for (const Row& row : rows) {
        int value = 99;
        EXPECT_EQ(zebcore::utility::StringToNumber(value, row.text, 1), row.ok);
        EXPECT_EQ(value, row.value);
    }
}

}  // namespace

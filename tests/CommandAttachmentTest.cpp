// The command chain and script attachments from the native side: the order of the walk,
// handlers and attachments that go away mid-walk, the enable answers written or left
// alone, the caller's stack kept, and a closed state that nothing calls into any more.
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "vex/app/App.h"
#include "vex/uisupport/CommandHandler.h"
#include "vex/uisupport/SyntheticCmdMgr.h"
#include "zeblua/uisupport/src/LuaCmdAttachment.h"
#include "zeblua/utility/src/StateBound.h"

namespace {

using vex::uisupport::CommandAttachment;
using vex::uisupport::CommandHandler;
using vex::uisupport::CommandHandlerBase;

std::vector<std::string> gLog;

// A native handler that logs its own turn and handles one command.
class LoggingHandler : public CommandHandler {
public:
    LoggingHandler(std::string name, int handles, CommandHandlerBase* parent = nullptr)
        : CommandHandler(parent), mName(std::move(name)), mHandles(handles) {}

protected:
    bool DoHandleCommand(int id) override {
        gLog.push_back(mName);
        return id == mHandles;
    }

private:
    std::string mName;
    int mHandles;
};

// An attachment that logs and may handle; it can run a step of its own while asked.
class LoggingAttachment : public CommandAttachment {
public:
    LoggingAttachment(std::string name, int handles) : mName(std::move(name)), mHandles(handles) {}
    bool DoHandleCommand(int id) override {
        gLog.push_back(mName);
        if (duringCall) duringCall();
        return id == mHandles;
    }
    bool DoCommandEnabled(int id, bool& enabled, bool&, zebcore::UTF16String&) override {
        gLog.push_back(mName + "?");
        enabled = true;
        return id == mHandles;
    }
    std::function<void()> duringCall;

private:
    std::string mName;
    int mHandles;
};

std::string takeLog() {
    std::string text;
    for (const auto& entry : gLog)
        text += (text.empty() ? "" : " ") + entry;
    gLog.clear();
    return text;
}

class CommandChainTest : public ::testing::Test {
protected:
    void SetUp() override {
        gLog.clear();
        vex::app::App::GetApp()->ClearCommandsReached();
    }
    void TearDown() override { CommandHandlerBase::SetCurrentCommandHandler(nullptr); }
    size_t appReached() { return vex::app::App::GetApp()->GetCommandsReached().size(); }
};

TEST_F(CommandChainTest, CurrentThenParentsThenTheApplicationAttachmentsFirstInOrder) {
    LoggingHandler window("window", 3);
    LoggingHandler view("view", 2, &window);
    view.AddAttachment(new LoggingAttachment("a1", 1));
    view.AddAttachment(new LoggingAttachment("a2", 1));
    CommandHandlerBase::SetCurrentCommandHandler(&view);

    EXPECT_TRUE(CommandHandlerBase::CallCommandChain(1));
    EXPECT_EQ(takeLog(), "a1") << "the first attachment handles it: nothing after it is asked";
    EXPECT_TRUE(CommandHandlerBase::CallCommandChain(2));
    EXPECT_EQ(takeLog(), "a1 a2 view") << "attachments in order, then the handler itself";
    EXPECT_TRUE(CommandHandlerBase::CallCommandChain(3));
    EXPECT_EQ(takeLog(), "a1 a2 view window") << "then the parent";
    EXPECT_EQ(appReached(), 0u);
    EXPECT_FALSE(CommandHandlerBase::CallCommandChain(4));
    EXPECT_EQ(takeLog(), "a1 a2 view window");
    EXPECT_EQ(appReached(), 1u) << "an unhandled command ends at the application";

    bool enabled = false, checked = false;
    zebcore::UTF16String text = u"kept";
    EXPECT_TRUE(CommandHandlerBase::CommandEnabledChain(1, enabled, checked, text));
    EXPECT_EQ(takeLog(), "a1?");
    EXPECT_TRUE(enabled);
}

TEST_F(CommandChainTest, AHandlerThatDiesLeavesTheChainAndItsChildren) {
    auto* window = new LoggingHandler("window", 0);
    LoggingHandler view("view", 0, window);
    CommandHandlerBase::SetCurrentCommandHandler(window);
    delete window;
    EXPECT_EQ(CommandHandlerBase::GetCurrentCommandHandler(), nullptr) << "no longer current";
    EXPECT_EQ(view.GetParentHandler(), nullptr) << "its child lost its parent";
    EXPECT_FALSE(CommandHandlerBase::CallCommandChain(5));
    EXPECT_EQ(appReached(), 1u) << "the application alone";

    // A parent that dies while its child is asked is skipped.
    auto* parent = new LoggingHandler("parent", 0);
    view.SetParentHandler(parent);
    auto* killer = new LoggingAttachment("killer", 0);
    killer->duringCall = [&parent] {
        delete parent;
        parent = nullptr;
    };
    view.AddAttachment(killer);
    CommandHandlerBase::SetCurrentCommandHandler(&view);
    EXPECT_FALSE(CommandHandlerBase::CallCommandChain(6));
    EXPECT_EQ(takeLog(), "killer view") << "the dead parent was not asked";
}

TEST_F(CommandChainTest, AnAttachmentRemovedWhileAskedIsDeletedAfterTheWalk) {
    LoggingHandler view("view", 0);
    auto* self = new LoggingAttachment("self", 0);
    self->duringCall = [&view, self] { view.RemoveAttachment(self); };
    view.AddAttachment(self);
    view.AddAttachment(new LoggingAttachment("next", 0));
    CommandHandlerBase::SetCurrentCommandHandler(&view);
    CommandHandlerBase::CallCommandChain(7);
    EXPECT_EQ(takeLog(), "self next view");
    EXPECT_EQ(view.GetAttachmentCount(), 1u);
    CommandHandlerBase::CallCommandChain(7);
    EXPECT_EQ(takeLog(), "next view") << "gone from the next walk";
}

// Synthetic numbers: each once, blocks contiguous, nothing for an empty or oversized block,
// and only handed-out numbers count as synthetic.
TEST(SyntheticCmdMgr, HandsOutEachNumberOnce) {
    using vex::uisupport::SyntheticCmdMgr;
    SyntheticCmdMgr* manager = SyntheticCmdMgr::Get();
    const int one = manager->ReserveCmd();
    const int block = manager->ReserveCmdRange(3);
    const int next = manager->ReserveCmd();
    EXPECT_GE(one, SyntheticCmdMgr::kFirstSyntheticCmd);
    EXPECT_EQ(block, one + 1);
    EXPECT_EQ(next, block + 3) << "the block's three numbers are its own";
    EXPECT_EQ(manager->ReserveCmdRange(0), 0);
    EXPECT_EQ(manager->ReserveCmdRange(-4), 0);
    EXPECT_EQ(manager->ReserveCmdRange(SyntheticCmdMgr::kLastSyntheticCmd), 0);
    EXPECT_EQ(manager->ReserveCmd(), next + 1) << "a refused block reserved nothing";
    EXPECT_TRUE(manager->IsSyntheticCmdID(block + 2));
    EXPECT_FALSE(manager->IsSyntheticCmdID(next + 2)) << "not handed out yet";
    EXPECT_FALSE(manager->IsSyntheticCmdID(42)) << "a built-in number";
}

class CommandAttachmentTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        gLog.clear();
        runLua(R"(
            require "zeblua.zebCmdAttachment"
            log = {}
            t = {}
            function t:doCmdEnable(id)
              log[#log + 1] = "enable" .. id
              if id == 1 then return { isHandled = true, isEnabled = true, isChecked = true, newDisplayString = "Caf\195\169\0tail" } end
              if id == 2 then return { isHandled = false, isEnabled = true, isChecked = true, newDisplayString = "no" } end
              if id == 3 then return { isHandled = true } end
              return "not a table"
            end
            function t:doCmdHandle(id)
              log[#log + 1] = "handle" .. id .. tostring(self == t)
              return { isHandled = id == 1 }
            end
        )");
    }
    vex::uisupport::UnifiedDispatchBase* attach(lua_State* state) {
        lua_getglobal(state, "t");
        const int ref = luaL_ref(state, LUA_REGISTRYINDEX);
        auto* attachment = new zeb::lua::uisupport::LuaCmdAttachment(ref, state);
        handler.AddAttachment(attachment);
        return attachment;
    }
    std::string log() { return luaValue("table.concat(log, ' ')"); }

    CommandHandler handler;
};

TEST_F(CommandAttachmentTest, EnableAnswersAreWrittenOnlyWhenHandled) {
    auto* attachment = attach(L);
    struct Row {
        int id;
        bool answer, enabled, checked;
        zebcore::UTF16String text;
    } rows[] = {
        {1, true, true, true, u"Caf\u00e9"},  // up to the first zero byte
        {2, false, false, false, u"old"},     // not handled: all left alone
        {3, true, false, false, u"old"},      // handled, no fields: false, text kept
        {4, false, false, false, u"old"},     // no table
    };
    for (const Row& row : rows) {
        bool enabled = false, checked = false;
        zebcore::UTF16String text = u"old";
        vex::uisupport::UnifiedDispatchBase::EnableOuts outs{&enabled, &checked, &text};
        EXPECT_EQ(attachment->UnifiedDispatch(row.id, &outs), row.answer) << row.id;
        EXPECT_EQ(enabled, row.enabled) << row.id;
        EXPECT_EQ(checked, row.checked) << row.id;
        EXPECT_TRUE(text == row.text) << row.id;
    }
    EXPECT_TRUE(attachment->UnifiedDispatch(1, nullptr));
    EXPECT_FALSE(attachment->UnifiedDispatch(9, nullptr));
    EXPECT_EQ(log(), "enable1 enable2 enable3 enable4 handle1true handle9true");
}

TEST_F(CommandAttachmentTest, TheCallersStackIsKeptAndTheTableLivesWithTheAttachment) {
    auto* attachment = attach(L);
    pushSentinels();
    EXPECT_TRUE(attachment->UnifiedDispatch(1, nullptr));
    expectSentinels();

    runLua("weak = setmetatable({ t }, { __mode = 'v' }); t = nil");
    collectGarbage();
    EXPECT_EQ(luaValue("weak[1] ~= nil"), "true") << "the attachment keeps the table alive";
    handler.RemoveAttachment(dynamic_cast<CommandAttachment*>(attachment));
    collectGarbage();
    EXPECT_EQ(luaValue("weak[1] == nil"), "true") << "deleting it released the table";
}

TEST_F(CommandAttachmentTest, AClosedStateIsNeverCalledAgain) {
    vex::app::App* app = vex::app::App::GetApp();
    const size_t before = app->GetAttachmentCount();
    runLua("zebCmdAttachment.registerCmdAttachment(t); zebCmdAttachment.registerCmdAttachment(t)");
    attach(L);
    EXPECT_EQ(app->GetAttachmentCount(), before + 2);
    EXPECT_EQ(zeblua::utility::CountStateBound(L), 3);
    lua_State* closing = L;
    lua_close(closing);
    L = nullptr;
    EXPECT_EQ(app->GetAttachmentCount(), before) << "the application let its attachments go";
    EXPECT_EQ(handler.GetAttachmentCount(), 0u) << "so did the handler";
    app->ClearCommandsReached();
    EXPECT_FALSE(CommandHandlerBase::CallCommandChain(1)) << "nothing answers from a closed state";
    EXPECT_EQ(app->GetCommandsReached().size(), 1u);
    bool enabled = false, checked = false;
    zebcore::UTF16String text;
    EXPECT_FALSE(CommandHandlerBase::CommandEnabledChain(1, enabled, checked, text));
}

}  // namespace

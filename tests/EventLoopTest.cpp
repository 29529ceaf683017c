// The virtual-clock event loop: node timers, runs, nested modal runs and user answers.
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include <boost/any.hpp>
#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include "zebcore/debug/Debug.h"
#include "zebui/ui/EventLoop.h"
#include "zebui/ui/UI_NodeManager.h"
#include "zebui/ui/UI_SubView.h"

namespace {

using namespace zebui::ui;
namespace debug = zebcore::debug;

// A node whose ticks are logged as "name@ms", and that can run code in a tick.
class TickingNode : public UI_SubView {
public:
    TickingNode(const std::string& name, std::vector<std::string>& log) : mName(name), mLog(log) {}
    bool UI_DoTimerNotify(int id) override {
        mLog.push_back(mName + "@" + std::to_string(EventLoop::Get()->Now() - sStart));
        if (onTick) onTick(id);
        return true;
    }
    boost::function<void(int)> onTick;
    static VirtualTime sStart;

private:
    std::string mName;
    std::vector<std::string>& mLog;
};
VirtualTime TickingNode::sStart = 0;

class EventLoopTest : public ::testing::Test {
protected:
    void SetUp() override {
        debug::ClearRecordedAssertReports();
        loop()->ClearUserAnswers();
        TickingNode::sStart = loop()->Now();
    }
    void TearDown() override {
        loop()->SetModalWaitLimit(EventLoop::kDefaultModalWaitLimitMs);
        EXPECT_EQ(loop()->GetTimerCount(), 0u) << "a test left a timer behind";
    }
    static EventLoop* loop() { return EventLoop::Get(); }
    boost::intrusive_ptr<TickingNode> node(const std::string& name) {
        return boost::intrusive_ptr<TickingNode>(new TickingNode(name, log));
    }
    static int timerID() { return UI_NodeManager::Get(false)->GetUniqueTimerID(); }

    std::vector<std::string> log;
};

TEST_F(EventLoopTest, TimerIdsAreUniqueAndNeverZero) {
    std::set<int> ids;
    for (int i = 0; i < 100; ++i)
        ids.insert(timerID());
    EXPECT_EQ(ids.size(), 100u);
    EXPECT_EQ(ids.count(0), 0u);
}

TEST_F(EventLoopTest, IntervalsAreSecondsTurnedIntoWholeMilliseconds) {
    const struct {
        float seconds;
        VirtualTime ms;
    } cases[] = {{0.5f, 500}, {1.0f, 1000}, {0.0016f, 2}, {0.0004f, 1},
                 {0.0f, 1},   {-3.0f, 1},   {NAN, 1},     {1e30f, 1000000000000000LL}};
    for (const auto& c : cases)
        EXPECT_EQ(EventLoop::IntervalToMs(c.seconds), c.ms) << c.seconds;
}

TEST_F(EventLoopTest, TimersFireInTimeOrderWithTiesInInstallOrder) {
    auto a = node("a");
    auto b = node("b");
    auto c = node("c");
    a->UI_InstallTimer(0.03f, timerID());
    b->UI_InstallTimer(0.02f, timerID());
    c->UI_InstallTimer(0.03f, timerID());
    EXPECT_EQ(loop()->AdvanceTime(19), EventLoop::kRunTimeLimit);
    EXPECT_TRUE(log.empty());
    loop()->AdvanceTime(41);
    EXPECT_EQ(log,
              (std::vector<std::string>{"b@20", "a@30", "c@30", "b@40", "a@60", "b@60", "c@60"}));
    EXPECT_EQ(loop()->Now() - TickingNode::sStart, 60);
}

TEST_F(EventLoopTest, ATimerRemovedInATickNeverFiresAgain) {
    auto self = node("self");
    auto other = node("other");
    const int selfID = timerID();
    const int otherID = timerID();
    self->UI_InstallTimer(0.01f, selfID);
    other->UI_InstallTimer(0.01f, otherID);
    // Both are due at 10; the first removes its own timer and the second's.
    self->onTick = [&](int id) {
        self->UI_RemoveTimer(id, true);
        other->UI_RemoveTimer(otherID, true);
    };
    loop()->AdvanceTime(100);
    EXPECT_EQ(log, std::vector<std::string>{"self@10"});
    EXPECT_FALSE(loop()->HasTimer(other.get(), otherID));

    // Installing an id again restarts it rather than adding a second timer.
    other->UI_InstallTimer(0.05f, otherID);
    loop()->AdvanceTime(30);
    other->UI_InstallTimer(0.05f, otherID);
    loop()->AdvanceTime(60);
    EXPECT_EQ(log, (std::vector<std::string>{"self@10", "other@180"}));
    EXPECT_EQ(loop()->GetTimerCount(), 1u);
    other->UI_RemoveTimer(otherID, false);
}

TEST_F(EventLoopTest, ATickThatDropsTheLastReferenceToItsNodeIsSafe) {
    bool destroyed = false;
    struct Flag : zebcore::utility::RefCountedObject {
        explicit Flag(bool& f) : flag(f) {}
        ~Flag() override { flag = true; }
        bool& flag;
    };
    auto holder = node("held");
    holder->SetUserData(boost::intrusive_ptr<Flag>(new Flag(destroyed)));
    TickingNode* raw = holder.get();
    raw->UI_InstallTimer(0.005f, timerID());
    raw->onTick = [&](int) {
        holder.reset();
        EXPECT_FALSE(destroyed) << "the tick holds its node";
        raw->UI_SetNodeID("still usable");
    };
    loop()->AdvanceTime(20);
    EXPECT_TRUE(destroyed);
    EXPECT_EQ(log, std::vector<std::string>{"held@5"}) << "the dead node's timer went with it";
}

TEST_F(EventLoopTest, NotifyFunctionsAreAskedInOrderUntilOneTakesTheTick) {
    boost::intrusive_ptr<UI_SubView> view(new UI_SubView);
    const int mine = timerID();
    const auto first = boost::make_shared<TimerNotifyFunction>([&](int id) {
        log.push_back("first " + std::to_string(id == mine));
        return id == mine;
    });
    const auto second = boost::make_shared<TimerNotifyFunction>([&](int) {
        log.push_back("second");
        return true;
    });
    view->UI_InstallTimerNotifyFunction(first);
    view->UI_InstallTimerNotifyFunction(second);
    view->UI_InstallTimerNotifyFunction(first);  // kept once
    EXPECT_TRUE(view->UI_DoTimerNotify(mine));
    EXPECT_TRUE(view->UI_DoTimerNotify(mine + 1));
    view->UI_RemoveTimerNotifyFunction(second);
    EXPECT_FALSE(view->UI_DoTimerNotify(mine + 1));
    EXPECT_EQ(log, (std::vector<std::string>{"first 1", "first 0", "second", "first 0"}));

    // A node that dies with a running timer takes the timer along.
    view->UI_InstallTimer(1.0f, mine);
    EXPECT_TRUE(loop()->HasTimer(view.get(), mine));
    view.reset();
    EXPECT_EQ(loop()->GetTimerCount(), 0u);
}

TEST_F(EventLoopTest, RunUntilIdleStopsWhenIdleAtItsLimitOrOnQuit) {
    auto counted = node("counted");
    const int id = timerID();
    int ticks = 0;
    counted->onTick = [&](int tick) {
        if (++ticks == 3) counted->UI_RemoveTimer(tick, true);
    };
    counted->UI_InstallTimer(0.1f, id);
    EXPECT_EQ(loop()->RunUntilIdle(10000), EventLoop::kRunIdle);
    EXPECT_EQ(loop()->Now() - TickingNode::sStart, 300);

    const VirtualTime start = loop()->Now();
    counted->onTick.clear();
    counted->UI_InstallTimer(0.1f, id);
    EXPECT_EQ(loop()->RunUntilIdle(1050), EventLoop::kRunTimeLimit);
    EXPECT_EQ(loop()->Now() - start, 1050);

    counted->onTick = [&](int) { loop()->Quit(); };
    EXPECT_EQ(loop()->RunUntilIdle(10000), EventLoop::kRunQuit);
    EXPECT_EQ(loop()->Now() - start, 1100);
    EXPECT_FALSE(loop()->IsQuitRequested()) << "the outermost run clears the request";
    counted->UI_RemoveTimer(id, true);
}

TEST_F(EventLoopTest, ModalRunsNestTwoDeepAndEndInOrderTakingQueuedAnswers) {
    loop()->QueueUserAnswer({1, "open inner", 0});
    loop()->QueueUserAnswer({2, "inner answer", 50});
    loop()->QueueUserAnswer({3, "outer answer", 0});
    ModalResult inner;
    const ModalResult outer = loop()->RunModal([&](const UserAnswer& answer) {
        log.push_back("outer got " + answer.text);
        if (answer.code == 1) {
            EXPECT_EQ(loop()->GetModalDepth(), 1);
            inner = loop()->RunModal();  // the default handler ends with the answer
            log.push_back("inner ended");
        } else {
            loop()->EndModal(answer.code * 10, answer.text);
        }
    });
    EXPECT_EQ(log, (std::vector<std::string>{"outer got open inner", "inner ended",
                                             "outer got outer answer"}));
    EXPECT_FALSE(inner.cancelled);
    EXPECT_EQ(inner.code, 2);
    EXPECT_EQ(inner.text, "inner answer");
    EXPECT_EQ(outer.code, 30);
    EXPECT_EQ(loop()->Now() - TickingNode::sStart, 50) << "the delayed answer waited";
    EXPECT_EQ(loop()->GetModalDepth(), 0);
    EXPECT_EQ(loop()->GetPendingUserAnswerCount(), 0u);
    EXPECT_TRUE(debug::RecordedAssertReports().empty());
}

TEST_F(EventLoopTest, EndingTwiceFromTheInnerRunEndsBothLevelsInnermostFirst) {
    loop()->QueueUserAnswer({1, "", 0});
    loop()->QueueUserAnswer({2, "", 0});
    loop()->QueueUserAnswer({99, "left for later", 0});
    ModalResult inner;
    const ModalResult outer = loop()->RunModal([&](const UserAnswer&) {
        inner = loop()->RunModal([&](const UserAnswer&) {
            EXPECT_EQ(loop()->GetModalDepth(), 2);
            loop()->EndModal(5);
            loop()->EndModal(6);
        });
    });
    EXPECT_EQ(inner.code, 5);
    EXPECT_EQ(outer.code, 6);
    EXPECT_EQ(loop()->GetPendingUserAnswerCount(), 1u);
    loop()->ClearUserAnswers();

    loop()->EndModal(7);  // no run to end
    ASSERT_EQ(debug::RecordedAssertReports().size(), 1u);
    EXPECT_EQ(debug::RecordedAssertReports()[0].message, "EndModal without a modal run to end");
}

TEST_F(EventLoopTest, TimersRunInsideAModalRunAndMayEndIt) {
    auto ticker = node("ticker");
    const int id = timerID();
    ticker->onTick = [&](int) {
        if (log.size() == 3) loop()->EndModal(42);
    };
    ticker->UI_InstallTimer(0.25f, id);
    const ModalResult result = loop()->RunModal();
    EXPECT_EQ(result.code, 42);
    EXPECT_EQ(log, (std::vector<std::string>{"ticker@250", "ticker@500", "ticker@750"}));
    ticker->UI_RemoveTimer(id, true);
}

TEST_F(EventLoopTest, AModalRunWithNothingToWaitForEndsCancelledWithAReport) {
    const ModalResult empty = loop()->RunModal();
    EXPECT_TRUE(empty.cancelled);
    EXPECT_EQ(empty.code, EventLoop::kModalCancelledCode);
    ASSERT_EQ(debug::RecordedAssertReports().size(), 1u);
    EXPECT_EQ(debug::RecordedAssertReports()[0].message,
              "a modal run has no timer and no user answer to wait for: cancelled");

    // A timer that never ends the run counts as waiting forever once past the limit.
    debug::ClearRecordedAssertReports();
    auto ticker = node("ticker");
    const int id = timerID();
    ticker->UI_InstallTimer(0.04f, id);
    loop()->SetModalWaitLimit(100);
    const ModalResult limited = loop()->RunModal();
    EXPECT_TRUE(limited.cancelled);
    EXPECT_EQ(log, (std::vector<std::string>{"ticker@40", "ticker@80"}));
    ASSERT_EQ(debug::RecordedAssertReports().size(), 1u);
    EXPECT_EQ(debug::RecordedAssertReports()[0].message,
              "a modal run waited past its limit: cancelled");

    // A quit cancels quietly, and the outer run ends on it too.
    debug::ClearRecordedAssertReports();
    ticker->onTick = [&](int) {
        const ModalResult quitted = loop()->RunModal([&](const UserAnswer&) { loop()->Quit(); });
        log.push_back(quitted.cancelled ? "modal cancelled" : "modal ended");
    };
    loop()->QueueUserAnswer({0, "", 0});
    EXPECT_EQ(loop()->RunUntilIdle(1000), EventLoop::kRunQuit);
    EXPECT_EQ(log.back(), "modal cancelled");
    EXPECT_TRUE(debug::RecordedAssertReports().empty());
    EXPECT_FALSE(loop()->IsQuitRequested());
    ticker->UI_RemoveTimer(id, true);
}

}  // namespace

// The host's zebhost.quit and zebhost.answer, and its event loop run.
#include <lua.hpp>

#include "host/src/HostLoop.h"
#include "tests/LuaTestFixture.h"
#include "zebui/ui/EventLoop.h"

namespace {

using zebui::ui::EventLoop;

class HostFunctionsTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        loop()->ClearUserAnswers();
    }
    void TearDown() override {
        loop()->ClearUserAnswers();
        LuaTest::TearDown();
    }
    static EventLoop* loop() { return EventLoop::Get(); }
};

TEST_F(HostFunctionsTest, QuitEndsTheHostRunAtOnceAndIsClearedAfterIt) {
    runLua("zebhost.quit()");
    EXPECT_TRUE(loop()->IsQuitRequested());
    const auto before = loop()->Now();
    EXPECT_EQ(zebhost::RunEventLoop(-1), 0);
    EXPECT_EQ(loop()->Now(), before);
    EXPECT_FALSE(loop()->IsQuitRequested());

    EXPECT_EQ(zebhost::RunEventLoop(400), 0);
    EXPECT_EQ(loop()->Now() - before, 400) << "--run-for moves the clock even when idle";
}

TEST_F(HostFunctionsTest, AnswersQueuedFromLuaFeedTheNextModalRun) {
    runLua("zebhost.answer(3, 'chosen.txt', 20); zebhost.answer(0)");
    EXPECT_EQ(loop()->GetPendingUserAnswerCount(), 2u);
    const auto before = loop()->Now();
    const zebui::ui::ModalResult first = loop()->RunModal();
    EXPECT_EQ(first.code, 3);
    EXPECT_EQ(first.text, "chosen.txt");
    EXPECT_EQ(loop()->Now() - before, 20);
    const zebui::ui::ModalResult second = loop()->RunModal();
    EXPECT_EQ(second.code, 0);
    EXPECT_EQ(second.text, "");

    EXPECT_NE(luaError("zebhost.answer('yes')").find("bad argument #1 to 'answer'"),
              std::string::npos);
    EXPECT_EQ(loop()->GetPendingUserAnswerCount(), 0u);
}

TEST_F(HostFunctionsTest, RunForAcceptsOnlyWholeNonNegativeMilliseconds) {
    const struct {
        const char* text;
        bool ok;
        long long ms;
    } cases[] = {{"0", true, 0},     {"1500", true, 1500}, {"-1", false, 0},
                 {"12ms", false, 0}, {"", false, 0},       {"99999999999999999999", false, 0}};
    for (const auto& c : cases) {
        long long ms = -7;
        EXPECT_EQ(zebhost::ParseRunFor(c.text, ms), c.ok) << c.text;
        EXPECT_EQ(ms, c.ok ? c.ms : -7) << c.text;
    }
}

}  // namespace

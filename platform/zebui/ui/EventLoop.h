// The toolkit's event loop on a virtual clock: node timers, nested modal runs and the
// scripted user answers that stand in for a person at the screen.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

#include "zebcore/utility/Strings.h"

namespace zebui {
namespace ui {

class UI_Node;

// Virtual time in milliseconds. It starts at 0 and moves only when a run asks it to;
// nothing ever sleeps.
using VirtualTime = int64_t;

// What a person would do in a modal interaction: press a button (code), type or pick
// something (text). An answer can be taken delayMs after it was queued, not before.
struct UserAnswer {
    int code = 0;
    zebcore::UTF8String text;
    VirtualTime delayMs = 0;
};

// How a modal run ended. cancelled: it was given up (a quit, or nothing left to wait
// for); code is then kModalCancelledCode and text empty.
struct ModalResult {
    bool cancelled = false;
    int code = 0;
    zebcore::UTF8String text;
};

// One loop for the whole process, on the UI thread. All of it is re-entrant: a timer
// notification may install or remove timers (its own too), run a modal loop, or drop
// the last reference to its node.
//
// Timers: UI_Node::UI_InstallTimer gives the interval in seconds, the toolkit's unit;
// it becomes whole milliseconds here, at least 1. A timer repeats every interval from
// its install until removed. Due timers fire in time order, ties in install order; a
// timer removed before its turn never fires again. Timers don't hold their node: a
// dying node removes its own. The node is held for the length of each tick.
//
// Modal runs nest inside native calls and end innermost first. When none of its timers
// is due, a modal run hands the oldest available user answer to its answer handler.
class EventLoop {
public:
    using AnswerHandler = std::function<void(const UserAnswer&)>;

    enum RunEnd {
        kRunIdle,       // no timer left
        kRunTimeLimit,  // the time given is used up
        kRunQuit,       // Quit was called
    };

    static constexpr double kMillisecondsPerIntervalUnit = 1000.0;  // intervals are seconds
    static constexpr int kModalCancelledCode = -1;
    static constexpr VirtualTime kDefaultModalWaitLimitMs = 10 * 60 * 1000;

    static EventLoop* Get();

    EventLoop(const EventLoop&) = delete;
    EventLoop& operator=(const EventLoop&) = delete;

    VirtualTime Now() const { return mNow; }

    // Timers, as UI_Node uses them.
    static VirtualTime IntervalToMs(float interval);
    void InstallTimer(UI_Node* node, int id, VirtualTime intervalMs);
    void RemoveTimer(const UI_Node* node, int id);
    void RemoveTimers(const UI_Node* node);
    bool HasTimer(const UI_Node* node, int id) const;
    size_t GetTimerCount() const { return mTimers.size(); }

    // Runs. Both fire due timers in order and stop early on Quit. A quit request is
    // cleared when the outermost run returns because of it.
    // Moves the clock forward by ms.
    RunEnd AdvanceTime(VirtualTime ms);
    // Runs until no timer is left, but no longer than limitMs of virtual time.
    RunEnd RunUntilIdle(VirtualTime limitMs);
    void Quit() { mQuitRequested = true; }
    bool IsQuitRequested() const { return mQuitRequested; }

    // A nested loop that returns when EndModal ends it. onAnswer gets each user answer
    // the run takes; without one, an answer ends the run with its code and text. A run
    // that has neither a timer nor an answer to wait for, or that waits past the wait
    // limit, ends cancelled with an assertion report; so does nothing ever hang.
    ModalResult RunModal(const AnswerHandler& onAnswer = AnswerHandler());
    // Ends the innermost modal run that hasn't ended yet; so two calls end two levels.
    void EndModal(int code, const zebcore::UTF8String& text = zebcore::UTF8String());
    // Ends the open run at depth (1 the outermost, GetModalDepth() the innermost). Runs
    // inside it go on until they end; then it returns at once. Nothing for a depth with no
    // open run.
    void EndModalAt(int depth, int code, const zebcore::UTF8String& text = zebcore::UTF8String());
    int GetModalDepth() const { return static_cast<int>(mModalRuns.size()); }
    void SetModalWaitLimit(VirtualTime ms) { mModalWaitLimitMs = ms; }

    // Answers are taken first in, first out, by whichever modal run is innermost.
    void QueueUserAnswer(const UserAnswer& answer);
    size_t GetPendingUserAnswerCount() const { return mAnswers.size(); }
    void ClearUserAnswers() { mAnswers.clear(); }

private:
    struct Timer {
        UI_Node* node;
        int id;
        VirtualTime intervalMs;
        VirtualTime due;
        uint64_t order;  // install order, for ties
    };
    struct PendingAnswer {
        UserAnswer answer;
        VirtualTime availableAt;
    };
    struct ModalRun {
        bool ended = false;
        ModalResult result;
    };
    static constexpr VirtualTime kNever = INT64_MAX;

    EventLoop() = default;
    std::vector<Timer>::iterator findTimer(const UI_Node* node, int id);
    VirtualTime nextTimerDue() const;
    // Fires the earliest timer due at or before limit; false if there is none.
    bool fireNextTimer(VirtualTime limit);

    VirtualTime mNow = 0;
    std::vector<Timer> mTimers;
    uint64_t mNextOrder = 0;
    std::deque<PendingAnswer> mAnswers;
    std::vector<ModalRun*> mModalRuns;  // innermost last; each lives in its RunModal frame
    VirtualTime mModalWaitLimitMs = kDefaultModalWaitLimitMs;
    int mRunDepth = 0;
    bool mQuitRequested = false;
};

}  // namespace ui
}  // namespace zebui

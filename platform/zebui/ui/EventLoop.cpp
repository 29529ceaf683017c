// The virtual-clock event loop.
#include "zebui/ui/EventLoop.h"

#include <algorithm>
#include <cmath>

#include "zebcore/debug/Debug.h"
#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace ui {

namespace {

// Sums of times saturate, so that a huge limit or interval means "never".
VirtualTime later(VirtualTime time, VirtualTime delay) {
    if (delay <= 0) return time;
    return delay > INT64_MAX - time ? INT64_MAX : time + delay;
}

// Counts a run for as long as its frame lives, exceptions included.
class RunDepthScope {
public:
    explicit RunDepthScope(int& depth) : mDepth(depth) { ++mDepth; }
    ~RunDepthScope() { --mDepth; }
    RunDepthScope(const RunDepthScope&) = delete;
    RunDepthScope& operator=(const RunDepthScope&) = delete;

private:
    int& mDepth;
};

}  // namespace

EventLoop* EventLoop::Get() {
    // Never destroyed, so a node that dies during static destruction still finds it.
    static EventLoop* sLoop = new EventLoop;
    return sLoop;
}

VirtualTime EventLoop::IntervalToMs(float interval) {
    const double ms = static_cast<double>(interval) * kMillisecondsPerIntervalUnit;
    if (!(ms >= 1.0)) return 1;        // NaN too: a timer can't run faster than the clock ticks
    constexpr double kLongest = 1e15;  // some thirty thousand years
    return ms >= kLongest ? static_cast<VirtualTime>(kLongest) : std::llround(ms);
}

std::vector<EventLoop::Timer>::iterator EventLoop::findTimer(const UI_Node* node, int id) {
    return std::find_if(mTimers.begin(), mTimers.end(),
                        [&](const Timer& timer) { return timer.node == node && timer.id == id; });
}

void EventLoop::InstallTimer(UI_Node* node, int id, VirtualTime intervalMs) {
    if (!node) return;
    RemoveTimer(node, id);
    const VirtualTime interval = std::max<VirtualTime>(intervalMs, 1);
    mTimers.push_back({node, id, interval, later(mNow, interval), mNextOrder++});
}

void EventLoop::RemoveTimer(const UI_Node* node, int id) {
    const auto found = findTimer(node, id);
    if (found != mTimers.end()) mTimers.erase(found);
}

void EventLoop::RemoveTimers(const UI_Node* node) {
    mTimers.erase(std::remove_if(mTimers.begin(), mTimers.end(),
                                 [&](const Timer& timer) { return timer.node == node; }),
                  mTimers.end());
}

bool EventLoop::HasTimer(const UI_Node* node, int id) const {
    return std::any_of(mTimers.begin(), mTimers.end(),
                       [&](const Timer& timer) { return timer.node == node && timer.id == id; });
}

VirtualTime EventLoop::nextTimerDue() const {
    VirtualTime next = kNever;
    for (const Timer& timer : mTimers)
        next = std::min(next, timer.due);
    return next;
}

bool EventLoop::fireNextTimer(VirtualTime limit) {
    const auto next =
        std::min_element(mTimers.begin(), mTimers.end(), [](const Timer& a, const Timer& b) {
            return a.due < b.due || (a.due == b.due && a.order < b.order);
        });
    if (next == mTimers.end() || next->due > limit) return false;
    mNow = std::max(mNow, next->due);
    UI_Node* node = next->node;
    const int id = next->id;
    // Rescheduled before the tick: the tick may remove or reinstall it, and the entry
    // is never touched again after the call.
    next->due = later(next->due, next->intervalMs);
    const auto keep = KeepNodeAlive(node);
    node->UI_DoTimerNotify(id);
    return true;
}

EventLoop::RunEnd EventLoop::AdvanceTime(VirtualTime ms) {
    RunEnd end = kRunTimeLimit;
    {
        const RunDepthScope counted(mRunDepth);
        const VirtualTime until = later(mNow, ms);
        for (;;) {
            if (mQuitRequested) {
                end = kRunQuit;
                break;
            }
            if (!fireNextTimer(until)) {
                mNow = std::max(mNow, until);
                break;
            }
        }
    }
    if (end == kRunQuit && mRunDepth == 0) mQuitRequested = false;
    return end;
}

EventLoop::RunEnd EventLoop::RunUntilIdle(VirtualTime limitMs) {
    RunEnd end = kRunIdle;
    {
        const RunDepthScope counted(mRunDepth);
        const VirtualTime deadline = later(mNow, limitMs);
        for (;;) {
            if (mQuitRequested) {
                end = kRunQuit;
                break;
            }
            if (mTimers.empty()) break;
            if (!fireNextTimer(deadline)) {
                mNow = std::max(mNow, deadline);
                end = kRunTimeLimit;
                break;
            }
        }
    }
    if (end == kRunQuit && mRunDepth == 0) mQuitRequested = false;
    return end;
}

ModalResult EventLoop::RunModal(const AnswerHandler& onAnswer) {
    ModalRun run;
    // Takes the run off the stack however the frame ends.
    class ModalScope {
    public:
        ModalScope(std::vector<ModalRun*>& runs, ModalRun& run) : mRuns(runs) {
            mRuns.push_back(&run);
        }
        ~ModalScope() { mRuns.pop_back(); }
        ModalScope(const ModalScope&) = delete;
        ModalScope& operator=(const ModalScope&) = delete;

    private:
        std::vector<ModalRun*>& mRuns;
    };
    const ModalScope stacked(mModalRuns, run);
    const RunDepthScope counted(mRunDepth);

    const auto cancel = [&run] {
        run.ended = true;
        run.result = ModalResult{true, kModalCancelledCode, zebcore::UTF8String()};
    };
    const VirtualTime deadline = later(mNow, mModalWaitLimitMs);
    while (!run.ended) {
        if (mQuitRequested) {
            cancel();
            break;
        }
        if (fireNextTimer(mNow)) continue;
        if (!mAnswers.empty() && mAnswers.front().availableAt <= mNow) {
            const UserAnswer answer = mAnswers.front().answer;
            mAnswers.pop_front();
            if (onAnswer)
                onAnswer(answer);
            else
                EndModal(answer.code, answer.text);
            continue;
        }
        const VirtualTime nextAnswer = mAnswers.empty() ? kNever : mAnswers.front().availableAt;
        const VirtualTime next = std::min(nextTimerDue(), nextAnswer);
        ZEB_ASSERT_MSG(next != kNever,
                       "a modal run has no timer and no user answer to wait for: cancelled");
        ZEB_ASSERT_MSG(next == kNever || next <= deadline,
                       "a modal run waited past its limit: cancelled");
        if (next == kNever || next > deadline) {
            cancel();
            break;
        }
        mNow = next;
    }
    return run.result;
}

void EventLoop::EndModal(int code, const zebcore::UTF8String& text) {
    const auto open = std::find_if(mModalRuns.rbegin(), mModalRuns.rend(),
                                   [](const ModalRun* run) { return !run->ended; });
    ZEB_ASSERT_MSG(open != mModalRuns.rend(), "EndModal without a modal run to end");
    if (open == mModalRuns.rend()) return;
    (*open)->ended = true;
    (*open)->result = ModalResult{false, code, text};
}

void EventLoop::EndModalAt(int depth, int code, const zebcore::UTF8String& text) {
    if (depth < 1 || depth > GetModalDepth()) return;
    ModalRun* run = mModalRuns[static_cast<size_t>(depth - 1)];
    if (run->ended) return;
    run->ended = true;
    run->result = ModalResult{false, code, text};
}

void EventLoop::QueueUserAnswer(const UserAnswer& answer) {
    mAnswers.push_back({answer, later(mNow, answer.delayMs)});
}

}  // namespace ui
}  // namespace zebui

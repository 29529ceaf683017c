// The host's event loop run.
#include "host/src/HostLoop.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "zebui/ui/EventLoop.h"

namespace zebhost {

int RunEventLoop(long long runForMs) {
    using zebui::ui::EventLoop;
    EventLoop* loop = EventLoop::Get();
    try {
        if (runForMs >= 0) {
            loop->AdvanceTime(runForMs);
        } else if (loop->RunUntilIdle(kIdleRunLimitMs) == EventLoop::kRunTimeLimit) {
            std::fprintf(stderr,
                         "zebhost: stopped after %lld ms of virtual time with %zu timer(s) "
                         "still running\n",
                         kIdleRunLimitMs, loop->GetTimerCount());
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "zebhost: %s\n", error.what());
        return 1;
    }
    return 0;
}

bool ParseRunFor(const char* text, long long& runForMs) {
    char* end = nullptr;
    errno = 0;
    const long long value = std::strtoll(text, &end, 10);
    if (errno != 0 || end == text || *end != '\0' || value < 0) return false;
    runForMs = value;
    return true;
}

}  // namespace zebhost

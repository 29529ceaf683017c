// Assertion reports: echoed to stderr and kept for inspection.
#include "zebcore/debug/Debug.h"

#include <cstdio>
#include <fstream>

namespace zebcore {
namespace debug {
namespace {

std::vector<AssertReport>& reports() {
    static std::vector<AssertReport> sReports;
    return sReports;
}

bool& echoEnabled() {
    static bool sEcho = true;
    return sEcho;
}

}  // namespace

bool BreakAfterAssertDialog(bool& disabledFlag, const char* expression, const char* message,
                            const char* file, int line, const char* function) {
    if (disabledFlag) return false;
    reports().push_back({expression ? expression : "", message ? message : "", file ? file : "",
                         line, function ? function : ""});
    if (echoEnabled())
        std::fprintf(stderr, "zeb assertion: %s %s (%s:%d in %s)\n", expression ? expression : "",
                     message ? message : "", file ? file : "?", line, function ? function : "?");
    // A headless run has nobody to answer "break?": only a debugger makes it stop.
    return true;
}

bool IsDebuggerAttached() {
    std::ifstream status("/proc/self/status");
    std::string key;
    while (status >> key) {
        if (key == "TracerPid:") {
            int pid = 0;
            status >> pid;
            return pid != 0;
        }
    }
    return false;
}

const std::vector<AssertReport>& RecordedAssertReports() {
    return reports();
}

void ClearRecordedAssertReports() {
    reports().clear();
}

void SetAssertEchoEnabled(bool enabled) {
    echoEnabled() = enabled;
}

}  // namespace debug
}  // namespace zebcore

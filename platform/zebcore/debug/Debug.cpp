// Assertion reports: echoed to stderr and kept for inspection.
#include "zebcore/debug/Debug.h"

#include <cstdio>
#include <cstring>
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

ScriptPlaceProvider sScriptPlaceProvider = nullptr;

// The build passes absolute source paths (or paths relative to the build folder, under a
// compiler cache); a report names files from the source tree's root, which this file's own
// path gives. A name that climbs above the root (a site's own literal "../../../x.h") is no
// path of the tree and stays as it is.
std::string sourceRelative(const char* file) {
    static const std::string sRoot = [] {
        const std::string self = __FILE__;
        const std::string tail = "platform/zebcore/debug/Debug.cpp";
        const bool rooted = self.size() >= tail.size() &&
                            self.compare(self.size() - tail.size(), tail.size(), tail) == 0;
        return rooted ? self.substr(0, self.size() - tail.size()) : std::string();
    }();
    if (!sRoot.empty() && std::strncmp(file, sRoot.c_str(), sRoot.size()) == 0 &&
        std::strncmp(file + sRoot.size(), "../", 3) != 0)
        return file + sRoot.size();
    return file;
}

std::string scriptPlace() {
    char place[256];
    if (!sScriptPlaceProvider || !sScriptPlaceProvider(place, sizeof place)) return std::string();
    return place;
}

}  // namespace

bool BreakAfterAssertDialog(bool& disabledFlag, const char* expression, const char* message,
                            const char* file, int line, const char* function) {
    if (disabledFlag) return false;
    const AssertReport& report = reports().emplace_back(AssertReport{
        expression ? expression : "", message ? message : "", file ? sourceRelative(file) : "",
        line, function ? function : "", scriptPlace()});
    if (echoEnabled())
        std::fprintf(stderr, "zeb assertion: %s %s (%s:%d in %s)%s%s\n", report.expression.c_str(),
                     report.message.c_str(), file ? report.file.c_str() : "?", line,
                     function ? function : "?",
                     report.scriptPlace.empty() ? "" : " in the script at ",
                     report.scriptPlace.c_str());
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

void SetScriptPlaceProvider(ScriptPlaceProvider provider) {
    sScriptPlaceProvider = provider;
}

ScriptPlaceProvider GetScriptPlaceProvider() {
    return sScriptPlaceProvider;
}

}  // namespace debug
}  // namespace zebcore

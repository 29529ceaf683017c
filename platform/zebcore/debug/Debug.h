// Developer diagnostics: assertion reports that never stop a headless run.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace zebcore {
namespace debug {

struct AssertReport {
    std::string expression;
    std::string message;
    std::string file;  // relative to the source tree, as "platform/zebcore/debug/Debug.cpp"
    int line = 0;
    std::string function;
    // Where the running script stands, as "script.lua:12", or "" when no script runs
    // native code.
    std::string scriptPlace;
};

// Writes the place of the innermost script frame that is running native code into place
// (size bytes, NUL-terminated) and answers whether there is one. The Lua library registers
// one, since only it knows which state is running; a report asks it each time.
using ScriptPlaceProvider = bool (*)(char* place, std::size_t size);
void SetScriptPlaceProvider(ScriptPlaceProvider provider);
ScriptPlaceProvider GetScriptPlaceProvider();

// Shows the report (stderr here) with the script's place when a script is running, and
// records it. Returns true when the developer
// asked to break; a site whose disabledFlag is set stays silent and is not recorded.
bool BreakAfterAssertDialog(bool& disabledFlag, const char* expression, const char* message,
                            const char* file, int line, const char* function);
bool IsDebuggerAttached();

// The recorded reports, oldest first, so tests can check that a report was made.
const std::vector<AssertReport>& RecordedAssertReports();
void ClearRecordedAssertReports();
// Whether reports are echoed to stderr; tests that provoke reports on purpose turn it off.
void SetAssertEchoEnabled(bool enabled);

}  // namespace debug
}  // namespace zebcore

#define ZEB_DEBUG_BREAK() __builtin_trap()

// Each site has its own disabled flag; execution always goes on behind the assertion.
// The condition's text is taken in each public macro, before any expansion of NULL and
// the like, so a report reads as the source does.
#define ZEB_ASSERT_REPORT_(condition, text, message, file)                                         \
    do {                                                                                           \
        static bool sAssertDisabled = false;                                                       \
        if (!(condition) && !sAssertDisabled &&                                                    \
            ::zebcore::debug::BreakAfterAssertDialog(sAssertDisabled, text, message, file,         \
                                                     __LINE__, __func__) &&                        \
            ::zebcore::debug::IsDebuggerAttached())                                                \
            ZEB_DEBUG_BREAK();                                                                     \
    } while (0)

#define ZEB_ASSERT_MSG(condition, message)                                                         \
    ZEB_ASSERT_REPORT_(condition, #condition, message, __FILE__)
// For a site whose report must name a fixed file.
#define ZEB_ASSERT_MSG_IN_FILE(condition, message, file)                                           \
    ZEB_ASSERT_REPORT_(condition, #condition, message, file)
#define ZEB_ASSERT(condition) ZEB_ASSERT_REPORT_(condition, #condition, "", __FILE__)

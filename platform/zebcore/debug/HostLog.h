// The host's log: messages that scripts and the library hand to whoever listens.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "zebcore/utility/Strings.h"

namespace zebcore {
namespace debug {

// Where messages go besides the record; an empty sink drops them.
using LogSink = std::function<void(const UTF16String&)>;

// Records the message, then hands it to the sink. Whatever the sink throws reaches the caller.
void LogMessage(const UTF16String& message);

// Installs the sink and returns the one it replaces, so a caller can put it back.
LogSink SetLogSink(LogSink sink);

// The latest messages, oldest first. Only the last kRecordedLogLimit are kept, so a
// long session does not grow without bound.
constexpr size_t kRecordedLogLimit = 256;
const std::vector<UTF16String>& RecordedLogMessages();
void ClearRecordedLogMessages();

}  // namespace debug
}  // namespace zebcore

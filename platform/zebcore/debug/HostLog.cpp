// The host log's record and its replaceable sink.
#include "zebcore/debug/HostLog.h"

#include <utility>

namespace zebcore {
namespace debug {
namespace {

LogSink& sink() {
    static LogSink sSink;
    return sSink;
}

std::vector<UTF16String>& record() {
    static std::vector<UTF16String> sRecord;
    return sRecord;
}

}  // namespace

void LogMessage(const UTF16String& message) {
    std::vector<UTF16String>& messages = record();
    if (messages.size() == kRecordedLogLimit) messages.erase(messages.begin());
    messages.push_back(message);
    if (sink()) sink()(message);
}

LogSink SetLogSink(LogSink newSink) {
    return std::exchange(sink(), std::move(newSink));
}

const std::vector<UTF16String>& RecordedLogMessages() {
    return record();
}

void ClearRecordedLogMessages() {
    record().clear();
}

}  // namespace debug
}  // namespace zebcore

// Where the script stands while native code runs for it, for assertion reports.
#include "zeblua/utility/src/RunningScript.h"

#include <cstdint>
#include <cstdio>

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/utility/src/MainThread.h"

namespace zeblua {
namespace utility {
namespace {

// One record per guard, innermost last. Deeper nesting than this still runs; it just
// reports the place of the deepest recorded guard.
constexpr int kDeepestRecord = 32;

struct Record {
    std::uintptr_t frame;     // the guard's own address: where on the C stack it lived
    lua_State* readAtReport;  // the state to read when a report asks; null: place copied
    char source[LUA_IDSIZE];
    int line;  // -1: no Lua frame
};

Record sRecords[kDeepestRecord];
int sDepth = 0;

// Drops the records at or below frame. The C stack grows downwards and a live enclosing
// guard always lies above, so these are the guard's own and any that a Lua error skipped.
void dropFrom(std::uintptr_t frame) {
    while (sDepth > 0 && sDepth <= kDeepestRecord && sRecords[sDepth - 1].frame <= frame)
        --sDepth;
}

// The innermost Lua function's place: a binding is a C function, and one called through
// pcall has pcall, another, between it and the script. Out of line, so that the guard's
// common path (a remembered main thread, read only if a report asks) carries no lua_Debug
// frame.
[[gnu::noinline]] void readPlace(lua_State* L, Record& record) {
    record.line = -1;
    lua_Debug ar;
    for (int level = 0; lua_getstack(L, level, &ar); ++level) {
        lua_getinfo(L, "Sl", &ar);
        if (ar.currentline >= 0) {
            std::snprintf(record.source, sizeof record.source, "%s", ar.short_src);
            record.line = ar.currentline;
            return;
        }
    }
}

bool innermostPlace(char* place, std::size_t size) {
    for (int depth = sDepth < kDeepestRecord ? sDepth : kDeepestRecord; depth > 0; --depth) {
        Record record = sRecords[depth - 1];
        if (record.readAtReport) readPlace(record.readAtReport, record);
        if (record.line < 0) continue;
        std::snprintf(place, size, "%s:%d", record.source, record.line);
        return true;
    }
    return false;
}

// Registered while this library is loaded: a stock interpreter unloads it at lua_close,
// and a report after that must not call into unmapped code.
struct ProviderRegistration {
    ProviderRegistration() { zebcore::debug::SetScriptPlaceProvider(innermostPlace); }
    ~ProviderRegistration() {
        if (zebcore::debug::GetScriptPlaceProvider() == innermostPlace)
            zebcore::debug::SetScriptPlaceProvider(nullptr);
    }
};
const ProviderRegistration sRegistration;

}  // namespace

RunningScript::RunningScript(lua_State* L, Reading reading) {
    const auto frame = reinterpret_cast<std::uintptr_t>(this);
    dropFrom(frame);
    if (sDepth < kDeepestRecord) {
        Record& record = sRecords[sDepth];
        record.frame = frame;
        record.readAtReport = reading == kAtReport || IsRememberedMainThread(L) ? L : nullptr;
        record.line = -1;
        if (!record.readAtReport) readPlace(L, record);
    }
    ++sDepth;
}

RunningScript::~RunningScript() {
    if (sDepth > kDeepestRecord)
        --sDepth;
    else
        dropFrom(reinterpret_cast<std::uintptr_t>(this));
}

void ForgetRunningState(lua_State* L) {
    for (Record& record : sRecords)
        if (record.readAtReport == L) record.readAtReport = nullptr;  // line stays -1: no place
}

}  // namespace utility
}  // namespace zeblua

// Where the script stands while native code runs for it, for assertion reports.
#include "zeblua/utility/src/RunningScript.h"

#include <cstdint>
#include <cstdio>

#include <lua.hpp>

#include "zebcore/debug/Debug.h"

namespace zeblua {
namespace utility {
namespace {

// One record per guard, innermost last. Deeper nesting than this still runs; it just
// reports the place of the deepest recorded guard.
constexpr int kDeepestRecord = 32;

struct Record {
    std::uintptr_t frame;  // the guard's own address: where on the C stack it lived
    char source[LUA_IDSIZE];
    int line;  // -1: no Lua frame (native code called from native code)
};

Record sRecords[kDeepestRecord];
int sDepth = 0;

// Records of guards that a Lua error skipped lie at or below a new guard's address, since
// the C stack grows downwards and a live enclosing guard is always above.
void dropSkipped(std::uintptr_t frame) {
    while (sDepth > 0 && sDepth <= kDeepestRecord && sRecords[sDepth - 1].frame <= frame)
        --sDepth;
}

// The innermost Lua function's place: a binding called through pcall has pcall, a C
// function, between it and the script.
void readPlace(lua_State* L, Record& record) {
    record.line = -1;
    lua_Debug ar;
    for (int level = 1; lua_getstack(L, level, &ar); ++level) {
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
        const Record& record = sRecords[depth - 1];
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

RunningScript::RunningScript(lua_State* L) {
    const auto frame = reinterpret_cast<std::uintptr_t>(this);
    dropSkipped(frame);
    if (sDepth < kDeepestRecord) {
        sRecords[sDepth].frame = frame;
        readPlace(L, sRecords[sDepth]);
    }
    ++sDepth;
}

RunningScript::~RunningScript() {
    if (sDepth > 0) --sDepth;
}

}  // namespace utility
}  // namespace zeblua

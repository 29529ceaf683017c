// The edge between a binding and its C++ work: exceptions stop here, Lua errors start after.
#pragma once

#include <cstddef>
#include <exception>

#include "zeblua/utility/src/RunningScript.h"

struct lua_State;

namespace zeblua {
namespace utility {

constexpr std::size_t kNativeMessageSize = 512;

// "<functionName>: <what>", cut to the buffer.
void FormatNativeMessage(char (&message)[kNativeMessageSize], const char* functionName,
                         const char* what);

// luaL_error(L, "%s", message): a longjmp, so only from a frame without C++ objects.
void RaiseNativeMessage(lua_State* L, const char* message);

// Runs the C++ part of a binding once its arguments are checked, and answers what work
// answers. work holds the C++ objects, so they are gone before anything is raised: an
// exception (a bad pattern, a failed allocation, a throwing toolkit call) is caught here
// and raised as the Lua error "<functionName>: <what>" only once the try block has
// unwound, because Lua's longjmp skips destructors and must never meet a C++ exception.
//   return RunNative(L, "ToUpper", [&] { ...; return 1; });
// work may push its results. A push can raise only Lua's memory error, which would skip
// the destructors of what work still holds, so work pushes last.
// While work runs, an assertion report names the script's place (RunningScript).
template <typename Work> auto RunNative(lua_State* L, const char* functionName, Work work) {
    char message[kNativeMessageSize];
    {
        const RunningScript running(L);  // gone before the raise below
        try {
            return work();
        } catch (const std::exception& error) {
            FormatNativeMessage(message, functionName, error.what());
        } catch (...) {
            FormatNativeMessage(message, functionName, "unknown exception");
        }
    }
    RaiseNativeMessage(L, message);
    return decltype(work())();  // never reached: the raise does not return
}

}  // namespace utility
}  // namespace zeblua

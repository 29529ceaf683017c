// The message and the raise of RunNative's error path.
#include "zeblua/utility/src/RunNative.h"

#include <cstdio>

#include <lua.hpp>

namespace zeblua {
namespace utility {

void FormatNativeMessage(char (&message)[kNativeMessageSize], const char* functionName,
                         const char* what) {
    std::snprintf(message, kNativeMessageSize, "%s: %s", functionName, what);
}

void RaiseNativeMessage(lua_State* L, const char* message) {
    luaL_error(L, "%s", message);
}

}  // namespace utility
}  // namespace zeblua

// The typed method idiom's error path.
#include "zeblua/ui/src/ControlNodeCast.h"

#include <cstdio>

#include <lua.hpp>

namespace zeblua {
namespace ui {

void CopyCastMessage(const char* text, char (&message)[kCastMessageSize]) {
    std::snprintf(message, kCastMessageSize, "%s", text);
}

void RaiseCastError(lua_State* L, const char* message) {
    luaL_error(L, "%s", message);
}

}  // namespace ui
}  // namespace zeblua

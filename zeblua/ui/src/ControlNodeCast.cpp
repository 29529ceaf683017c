// The node of a wrapper argument, and the typed method idiom's error path.
#include "zeblua/ui/src/ControlNodeCast.h"

#include <cstdio>

#include <lua.hpp>

namespace zeblua {
namespace ui {

zebui::ui::UI_Node* LiveNode(lua_State* L, int index) {
    const LuaControlWrapperBase* wrapper = GetControlUserData(L, index);
    return wrapper ? wrapper->GetNode().get() : nullptr;
}

void CopyCastMessage(const char* text, char (&message)[kCastMessageSize]) {
    std::snprintf(message, kCastMessageSize, "%s", text);
}

void RaiseCastError(lua_State* L, const char* message) {
    luaL_error(L, "%s", message);
}

}  // namespace ui
}  // namespace zeblua

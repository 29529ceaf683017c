// The web view wrapper.
#include "zeblua/ui/src/LuaUI_WebViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_NodeWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_WebViewWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_WebViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebWebView";
    return sMetatableName;
}

void LuaUI_WebViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_NodeWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The popup window wrapper.
#include "zeblua/ui/src/LuaPopupWindowWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaOS_WindowWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaPopupWindowWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaPopupWindowWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebLuaPopupWindow";
    return sMetatableName;
}

void LuaPopupWindowWrapper::RegisterMethods(lua_State* L) {
    LuaOS_WindowWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

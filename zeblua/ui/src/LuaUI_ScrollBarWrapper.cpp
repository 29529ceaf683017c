// The scroll bar wrapper.
#include "zeblua/ui/src/LuaUI_ScrollBarWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_ScrollBarWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_ScrollBarWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_ScrollBar";
    return sMetatableName;
}

void LuaUI_ScrollBarWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

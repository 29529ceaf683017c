// The scroll view wrapper.
#include "zeblua/ui/src/LuaUI_ScrollViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_ScrollViewWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_ScrollViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebScrollView";
    return sMetatableName;
}

void LuaUI_ScrollViewWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

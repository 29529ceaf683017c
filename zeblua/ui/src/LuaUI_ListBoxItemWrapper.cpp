// The list box item wrapper.
#include "zeblua/ui/src/LuaUI_ListBoxItemWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_ListBoxItemWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_ListBoxItemWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_ListBoxItem";
    return sMetatableName;
}

void LuaUI_ListBoxItemWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

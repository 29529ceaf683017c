// The list box wrapper.
#include "zeblua/ui/src/LuaUI_ListBoxWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_ListBoxWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_ListBoxWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebListBox";
    return sMetatableName;
}

void LuaUI_ListBoxWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

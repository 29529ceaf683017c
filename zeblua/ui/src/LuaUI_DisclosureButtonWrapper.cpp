// The disclosure triangle button wrapper.
#include "zeblua/ui/src/LuaUI_DisclosureButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_TextButtonWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_DisclosureButtonWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_DisclosureButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_DisclosureTriangleButton";
    return sMetatableName;
}

void LuaUI_DisclosureButtonWrapper::RegisterMethods(lua_State* L) {
    LuaUI_TextButtonWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

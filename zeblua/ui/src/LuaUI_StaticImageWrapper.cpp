// The static image wrapper.
#include "zeblua/ui/src/LuaUI_StaticImageWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaControlViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_StaticImageWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_StaticImageWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_StaticImage";
    return sMetatableName;
}

void LuaUI_StaticImageWrapper::RegisterMethods(lua_State* L) {
    LuaControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

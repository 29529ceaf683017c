// The picture button wrapper.
#include "zeblua/ui/src/LuaUI_PictureButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_ButtonWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_PictureButtonWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_PictureButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_PictureButton";
    return sMetatableName;
}

void LuaUI_PictureButtonWrapper::RegisterMethods(lua_State* L) {
    LuaUI_ButtonWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

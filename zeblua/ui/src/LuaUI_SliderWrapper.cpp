// The slider wrapper.
#include "zeblua/ui/src/LuaUI_SliderWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_SliderWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_SliderWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_Slider";
    return sMetatableName;
}

void LuaUI_SliderWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

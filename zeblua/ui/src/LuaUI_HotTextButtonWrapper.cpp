// The hot text button wrapper.
#include "zeblua/ui/src/LuaUI_HotTextButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_HotTextButtonWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_HotTextButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebHotTextButton";
    return sMetatableName;
}

void LuaUI_HotTextButtonWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

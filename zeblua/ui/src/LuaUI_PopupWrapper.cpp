// The popup menu wrapper.
#include "zeblua/ui/src/LuaUI_PopupWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zeblua/ui/src/LuaUI_ButtonWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_PopupWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_PopupWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_Popup";
    return sMetatableName;
}

void LuaUI_PopupWrapper::RegisterMethods(lua_State* L) {
    LuaUI_ButtonWrapper::RegisterMethods(L);
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The overlay sub view wrapper.
#include "zeblua/ui/src/LuaOverlaySubViewWrapper.h"

#include <lua.hpp>

namespace zeblua {
namespace ui {

const luaL_Reg LuaOverlaySubViewWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaOverlaySubViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebOverlaySubView";
    return sMetatableName;
}

void LuaOverlaySubViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

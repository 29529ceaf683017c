// The search box wrapper.
#include "zeblua/ui/src/LuaUI_SearchBoxWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_SearchBoxWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_SearchBoxWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebSearchBox";
    return sMetatableName;
}

void LuaUI_SearchBoxWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The hot text number wrapper.
#include "zeblua/ui/src/LuaUI_HotTextNumberWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_HotTextNumberWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_HotTextNumberWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebHotTextNumber";
    return sMetatableName;
}

void LuaUI_HotTextNumberWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

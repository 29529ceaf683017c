// The radio button wrapper.
#include "zeblua/ui/src/LuaRadioButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaRadioButtonWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaRadioButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebRadioButton";
    return sMetatableName;
}

void LuaRadioButtonWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

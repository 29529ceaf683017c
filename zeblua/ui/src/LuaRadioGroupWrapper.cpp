// The radio group wrapper.
#include "zeblua/ui/src/LuaRadioGroupWrapper.h"

#include <lua.hpp>

namespace zeblua {
namespace ui {

const luaL_Reg LuaRadioGroupWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaRadioGroupWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebRadioGroup";
    return sMetatableName;
}

void LuaRadioGroupWrapper::RegisterMethods(lua_State* L) {
    LuaControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

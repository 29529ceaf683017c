// The check box wrapper.
#include "zeblua/ui/src/LuaCheckboxWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaCheckboxWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaCheckboxWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebCheckbox";
    return sMetatableName;
}

void LuaCheckboxWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

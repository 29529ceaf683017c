// The knob wrapper.
#include "zeblua/ui/src/LuaUI_KnobWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_KnobWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_KnobWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebKnob";
    return sMetatableName;
}

void LuaUI_KnobWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

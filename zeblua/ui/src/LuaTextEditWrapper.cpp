// The text edit wrapper.
#include "zeblua/ui/src/LuaTextEditWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaTextEditWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaTextEditWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebEditText";
    return sMetatableName;
}

void LuaTextEditWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

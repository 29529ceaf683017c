// The static text wrapper.
#include "zeblua/ui/src/LuaStaticTextWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaStaticTextWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaStaticTextWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebStaticText";
    return sMetatableName;
}

void LuaStaticTextWrapper::RegisterMethods(lua_State* L) {
    LuaControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

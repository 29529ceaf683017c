// The dialog wrapper.
#include "zeblua/ui/src/LuaDialogWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaOS_WindowWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaDialogWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaDialogWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebLuaDialog";
    return sMetatableName;
}

void LuaDialogWrapper::RegisterMethods(lua_State* L) {
    LuaOS_WindowWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

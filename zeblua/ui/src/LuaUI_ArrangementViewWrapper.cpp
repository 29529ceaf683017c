// The arrangement view wrapper.
#include "zeblua/ui/src/LuaUI_ArrangementViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_ArrangementViewWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_ArrangementViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebArrangementView";
    return sMetatableName;
}

void LuaUI_ArrangementViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

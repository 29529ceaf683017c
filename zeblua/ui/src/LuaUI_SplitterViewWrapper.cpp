// The splitter view wrapper.
#include "zeblua/ui/src/LuaUI_SplitterViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_SplitterViewWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_SplitterViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebSplitterView";
    return sMetatableName;
}

void LuaUI_SplitterViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The section view wrapper.
#include "zeblua/ui/src/LuaUI_SectionViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_SectionViewWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_SectionViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebSectionView";
    return sMetatableName;
}

void LuaUI_SectionViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

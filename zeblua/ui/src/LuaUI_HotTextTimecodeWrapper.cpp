// The timecode hot text wrapper.
#include "zeblua/ui/src/LuaUI_HotTextTimecodeWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_HotTextNumberWrapper.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_HotTextTimecodeWrapper::methods[] = {
    {nullptr, nullptr},
};

const char* LuaUI_HotTextTimecodeWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebHotTextTimecode";
    return sMetatableName;
}

void LuaUI_HotTextTimecodeWrapper::RegisterMethods(lua_State* L) {
    LuaUI_HotTextNumberWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

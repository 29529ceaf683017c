// The wrapper of a timecode hot text: its metatable name and method set.
#pragma once

#include "zeblua/ui/src/LuaControlWrapperBase.h"

struct lua_State;
struct luaL_Reg;

namespace zeblua {
namespace ui {

extern const char* const kZebHotTextTimecodeMetatable;

// "zebHotTextTimecode": the hot text number set, then its own rows, whose value and
// editing methods take the place of the number set's.
class LuaUI_HotTextTimecodeWrapper : public LuaControlWrapperBase {
public:
    using LuaControlWrapperBase::LuaControlWrapperBase;

    static const char* GetMetatableName();
    static void RegisterMethods(lua_State* L);

    static const luaL_Reg methods[];
};

}  // namespace ui
}  // namespace zeblua

// The wrapper of a text edit: its metatable name and method set.
#pragma once

#include "zeblua/ui/src/LuaControlWrapperBase.h"

struct lua_State;
struct luaL_Reg;

namespace zeblua {
namespace ui {

// "zebEditText": the interactive control view set, the text control set, then its own rows.
class LuaTextEditWrapper : public LuaControlWrapperBase {
public:
    using LuaControlWrapperBase::LuaControlWrapperBase;

    static const char* GetMetatableName();
    static void RegisterMethods(lua_State* L);

    static const luaL_Reg methods[];
};

// Shared with the search box, which is a text edit.
// -- edit:SetStringValue(text): a change of value when the text differs; the caret goes to
// the end.
int texteditSetStringValue(lua_State* L);
// -- text = edit:GetStringValue()
int texteditGetStringValue(lua_State* L);

}  // namespace ui
}  // namespace zeblua

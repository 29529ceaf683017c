// The radio group wrapper: which of its buttons is on.
#include "zeblua/ui/src/LuaRadioGroupWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zebui/controls/UI_RadioButton.h"
#include "zebui/controls/UI_RadioGroup.h"
namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_RadioGroup;

// -- radio = group:GetSelectedRadioButton(): a new wrapper at each call, nothing when no
// button of the group is on.
int controlGetSelectedRadioButton(lua_State* L) {
    return PushFoundNode<UI_RadioGroup>(L, "GetSelectedRadioButton", [](UI_RadioGroup& group) {
        return NodeP(group.GetSelectedRadioButton());
    });
}

}  // namespace

const luaL_Reg LuaRadioGroupWrapper::methods[] = {
    {"GetSelectedRadioButton", controlGetSelectedRadioButton},
    {nullptr, nullptr},
};

const char* LuaRadioGroupWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebRadioGroup";
    return sMetatableName;
}

void LuaRadioGroupWrapper::RegisterMethods(lua_State* L) {
    LuaControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

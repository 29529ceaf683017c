// The check box wrapper: checked or not.
#include "zeblua/ui/src/LuaCheckboxWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zebui/controls/UI_Checkbox.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_Checkbox;

// -- box:SetChecked([flag]): no argument checks the box, nil clears it; a change of value
// when it differs, so the change function runs before this returns.
int controlSetChecked(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool checked = FlagDefaultTrue(L, 2);
    return CallOnControl<UI_Checkbox>(L, "SetChecked",
                                      [checked](UI_Checkbox& box) { box.SetChecked(checked); });
}

// -- checked = box:IsChecked()
int controlIsChecked(lua_State* L) {
    return AnswerOfControl<UI_Checkbox>(L, "IsChecked",
                                        [](UI_Checkbox& box) { return box.IsChecked(); });
}

}  // namespace

const luaL_Reg LuaCheckboxWrapper::methods[] = {
    {"IsChecked", controlIsChecked},
    {"SetChecked", controlSetChecked},
    {nullptr, nullptr},
};

const char* LuaCheckboxWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebCheckbox";
    return sMetatableName;
}

void LuaCheckboxWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The radio button wrapper: on or off, and the group kept exclusive.
#include "zeblua/ui/src/LuaRadioButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zebui/controls/UI_RadioButton.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_RadioButton;

// -- radio:SetValue([flag]): on or off. Switching on switches the other buttons of its
// group off first; each change runs its change function before this returns.
int controlSetValue(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool on = FlagDefaultTrue(L, 2);
    return CallOnControl<UI_RadioButton>(L, "SetValue", [on](UI_RadioButton& radio) {
        radio.SetValue(on ? zebui::controls::kRadioValue_On : zebui::controls::kRadioValue_Off);
    });
}

// -- on = radio:GetValue(): false for a mixed value too.
int controlGetValue(lua_State* L) {
    return AnswerOfControl<UI_RadioButton>(L, "GetValue", [](UI_RadioButton& radio) {
        return radio.GetValue() == zebui::controls::kRadioValue_On;
    });
}

}  // namespace

const luaL_Reg LuaRadioButtonWrapper::methods[] = {
    {"SetValue", controlSetValue},
    {"GetValue", controlGetValue},
    {nullptr, nullptr},
};

const char* LuaRadioButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebRadioButton";
    return sMetatableName;
}

void LuaRadioButtonWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

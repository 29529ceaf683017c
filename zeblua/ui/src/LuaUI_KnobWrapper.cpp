// The knob wrapper.
#include "zeblua/ui/src/LuaUI_KnobWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_Knob.h"

namespace zeblua {
namespace ui {

const luaL_Reg LuaUI_KnobWrapper::methods[] = {
    {"GetNumericValue", NumericValueOf<zebui::controls::UI_Knob>},
    {"SetNumericValue", SetNumericValueOf<zebui::controls::UI_Knob>},
    {"SetMinValue", SetMinValueOf<zebui::controls::UI_Knob>},
    {"SetMaxValue", SetMaxValueOf<zebui::controls::UI_Knob>},
    {nullptr, nullptr},
};

const char* LuaUI_KnobWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebKnob";
    return sMetatableName;
}

void LuaUI_KnobWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

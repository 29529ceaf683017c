// The slider wrapper.
#include "zeblua/ui/src/LuaUI_SliderWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_Slider.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_Slider;

// -- first, second = slider:GetExtent()
int sliderGetExtent(lua_State* L) {
    return PairOfControl<UI_Slider>(L, "GetExtent",
                                    [](UI_Slider& slider) { return slider.GetExtent(); });
}

// -- second = slider:SetExtent(first, second): answers its last argument, the stack's top.
int sliderSetExtent(lua_State* L) {
    return SetPairOfControl<UI_Slider>(L, "SetExtent",
                                       [](UI_Slider& slider, lua_Number first, lua_Number second) {
                                           slider.SetExtent(first, second);
                                       });
}

}  // namespace

const luaL_Reg LuaUI_SliderWrapper::methods[] = {
    {"GetNumericValue", NumericValueOf<UI_Slider>},
    {"SetNumericValue", SetNumericValueOf<UI_Slider>},
    {"GetExtent", sliderGetExtent},
    {"SetExtent", sliderSetExtent},
    {nullptr, nullptr},
};

const char* LuaUI_SliderWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_Slider";
    return sMetatableName;
}

void LuaUI_SliderWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The scroll bar wrapper.
#include "zeblua/ui/src/LuaUI_ScrollBarWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_ScrollBar.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_ScrollBar;
using Pair = UI_ScrollBar::Pair;

// -- lowest, highest = bar:GetValueRange(): the starts the pair can have.
int controlGetValueRange(lua_State* L) {
    return PairOfControl<UI_ScrollBar>(L, "GetValueRange",
                                       [](UI_ScrollBar& bar) { return bar.GetValueRange(); });
}

// -- start, end = bar:GetNumericValuePair()
int controlGetNumericValuePair(lua_State* L) {
    return PairOfControl<UI_ScrollBar>(L, "GetNumericValuePair",
                                       [](UI_ScrollBar& bar) { return bar.GetValue(); });
}

// -- last = bar:SetNumericValuePair(start, end): answers the stack's top.
int controlSetNumericValuePair(lua_State* L) {
    return SetPairOfControl<UI_ScrollBar>(
        L, "SetNumericValuePair", [](UI_ScrollBar& bar, lua_Number start, lua_Number end) {
            bar.SetValue(Pair(static_cast<float>(start), static_cast<float>(end)));
        });
}

// -- first, second = bar:GetExtent()
int scrollbarGetExtent(lua_State* L) {
    return PairOfControl<UI_ScrollBar>(L, "GetExtent",
                                       [](UI_ScrollBar& bar) { return bar.GetExtent(); });
}

// -- second = bar:SetExtent(first, second): answers the stack's top.
int scrollbarSetExtent(lua_State* L) {
    return SetPairOfControl<UI_ScrollBar>(
        L, "SetExtent", [](UI_ScrollBar& bar, lua_Number first, lua_Number second) {
            bar.SetExtent(static_cast<float>(first), static_cast<float>(second));
        });
}

// -- bar:DoScroll(forward, byPage, amount): the flags by truth, amount an integer the
// toolkit takes as a float.
int scrollbarDoScroll(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool forward = lua_toboolean(L, 2) != 0;
    const bool byPage = lua_toboolean(L, 3) != 0;
    const auto amount = static_cast<float>(luaL_checkinteger(L, 4));
    return CallOnControl<UI_ScrollBar>(
        L, "DoScroll", [&](UI_ScrollBar& bar) { bar.DoScroll(forward, byPage, amount); });
}

}  // namespace

const luaL_Reg LuaUI_ScrollBarWrapper::methods[] = {
    {"GetValueRange", controlGetValueRange},
    {"GetNumericValuePair", controlGetNumericValuePair},
    {"SetNumericValuePair", controlSetNumericValuePair},
    {"GetExtent", scrollbarGetExtent},
    {"SetExtent", scrollbarSetExtent},
    {"DoScroll", scrollbarDoScroll},
    {nullptr, nullptr},
};

const char* LuaUI_ScrollBarWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_ScrollBar";
    return sMetatableName;
}

void LuaUI_ScrollBarWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The hot text number wrapper.
#include "zeblua/ui/src/LuaUI_HotTextNumberWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInputEvents.h"
#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_HotTextNumber.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_HotTextNumber;

// -- number:SetNumericInput([flag]): no argument switches it on, nil off.
int hottextnumberSetNumericInput(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool numeric = FlagDefaultTrue(L, 2);
    return CallOnControl<UI_HotTextNumber>(
        L, "SetNumericInput",
        [numeric](UI_HotTextNumber& number) { number.SetNumericInput(numeric); });
}

// -- numeric = number:GetNumericInput()
int hottextnumberGetNumericInput(lua_State* L) {
    return AnswerOfControl<UI_HotTextNumber>(
        L, "GetNumericInput", [](UI_HotTextNumber& number) { return number.GetNumericInput(); });
}

// -- number:SetDecimalPlaces(places): truncated toward zero, so 2.9 sets 2.
int hottextnumberSetDecimalPlaces(lua_State* L) {
    return SetNumberOfControl<UI_HotTextNumber>(L, "SetDecimalPlaces",
                                                [](UI_HotTextNumber& number, lua_Number places) {
                                                    number.SetDecimalPlaces(TruncatedInt(places));
                                                });
}

// -- step = number:GetIncrement()
int hottextnumberGetIncrement(lua_State* L) {
    return AnswerOfControl<UI_HotTextNumber>(
        L, "GetIncrement", [](UI_HotTextNumber& number) { return number.GetIncrement(); });
}

// -- number:SetIncrement(step): what one step of a drag adds.
int hottextnumberSetIncrement(lua_State* L) {
    return SetNumberOfControl<UI_HotTextNumber>(
        L, "SetIncrement",
        [](UI_HotTextNumber& number, lua_Number step) { number.SetIncrement(step); });
}

// -- number:SetAlignment(word): "right" or "center", compared whole and case-sensitively;
// any other text is left.
int hottextnumberSetAlignment(lua_State* L) {
    return SetTextOfControl<UI_HotTextNumber>(
        L, "SetAlignment", [](UI_HotTextNumber& number, const zebcore::UTF16String& word) {
            using namespace zebui::controls;
            number.SetAlignment(word == u"right"    ? kControlAlignment_Right
                                : word == u"center" ? kControlAlignment_Center
                                                    : kControlAlignment_Left);
        });
}

// -- editing = number:IsEditingInPlace()
int hottextnumberIsEditingInPlace(lua_State* L) {
    return AnswerOfControl<UI_HotTextNumber>(
        L, "IsEditingInPlace", [](UI_HotTextNumber& number) { return number.IsEditingInPlace(); });
}

}  // namespace

const luaL_Reg LuaUI_HotTextNumberWrapper::methods[] = {
    {"GetNumericValue", NumericValueOf<UI_HotTextNumber>},
    {"SetNumericValue", SetNumericValueOf<UI_HotTextNumber>},
    {"SetMinValue", SetMinValueOf<UI_HotTextNumber>},
    {"SetMaxValue", SetMaxValueOf<UI_HotTextNumber>},
    {"SetNumericInput", hottextnumberSetNumericInput},
    {"GetNumericInput", hottextnumberGetNumericInput},
    {"SetDecimalPlaces", hottextnumberSetDecimalPlaces},
    {"GetIncrement", hottextnumberGetIncrement},
    {"SetIncrement", hottextnumberSetIncrement},
    {"SetAlignment", hottextnumberSetAlignment},
    {"SetCustomFontSize", SetCustomFontSizeOf<UI_HotTextNumber>},
    {"IsEditingInPlace", hottextnumberIsEditingInPlace},
    {nullptr, nullptr},
};

const char* LuaUI_HotTextNumberWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebHotTextNumber";
    return sMetatableName;
}

void LuaUI_HotTextNumberWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

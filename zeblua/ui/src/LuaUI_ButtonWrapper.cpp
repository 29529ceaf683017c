// The button wrapper: the value, the look's flags and sizes, and the click's behaviour.
#include "zeblua/ui/src/LuaUI_ButtonWrapper.h"

#include <utility>

#include <lua.hpp>

#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_Button.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_Button;

// -- button:Name([flag]): set(flag), no argument meaning true and nil false.
int setButtonFlag(lua_State* L, const char* name, void (UI_Button::*set)(bool)) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool flag = FlagDefaultTrue(L, 2);
    return CallOnControl<UI_Button>(L, name, [&](UI_Button& button) { (button.*set)(flag); });
}

// -- flag = button:Name()
int answerButtonFlag(lua_State* L, const char* name, bool (UI_Button::*get)() const) {
    return AnswerOfControl<UI_Button>(L, name, [&](UI_Button& button) { return (button.*get)(); });
}

// -- button:SetValue([flag]): on or off, a change of value when it differs, so the change
// function runs before this returns.
int buttonSetValue(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool on = FlagDefaultTrue(L, 2);
    return CallOnControl<UI_Button>(L, "SetValue", [&](UI_Button& button) {
        button.SetValue(on ? zebui::controls::kButtonValue_On : zebui::controls::kButtonValue_Off);
    });
}

// -- on = button:GetValue(): false for a mixed value too.
int buttonGetValue(lua_State* L) {
    return AnswerOfControl<UI_Button>(L, "GetValue", [](UI_Button& button) {
        return button.GetValue() == zebui::controls::kButtonValue_On;
    });
}

int buttonSetDisplayContainerNever(lua_State* L) {
    return setButtonFlag(L, "SetDisplayContainerNever", &UI_Button::SetDisplayContainerNever);
}

int buttonShouldDisplayContainerNever(lua_State* L) {
    return answerButtonFlag(L, "ShouldDisplayContainerNever",
                            &UI_Button::ShouldDisplayContainerNever);
}

int buttonSetDisplayContainerAlways(lua_State* L) {
    return setButtonFlag(L, "SetDisplayContainerAlways", &UI_Button::SetDisplayContainerAlways);
}

int buttonShouldDisplayContainerAlways(lua_State* L) {
    return answerButtonFlag(L, "ShouldDisplayContainerAlways",
                            &UI_Button::ShouldDisplayContainerAlways);
}

int buttonSetDisplayBorderNever(lua_State* L) {
    return setButtonFlag(L, "SetDisplayBorderNever", &UI_Button::SetDisplayBorderNever);
}

int buttonShouldDisplayBorderNever(lua_State* L) {
    return answerButtonFlag(L, "ShouldDisplayBorderNever", &UI_Button::ShouldDisplayBorderNever);
}

int buttonSetDisplayBorderAlways(lua_State* L) {
    return setButtonFlag(L, "SetDisplayBorderAlways", &UI_Button::SetDisplayBorderAlways);
}

int buttonShouldDisplayBorderAlways(lua_State* L) {
    return answerButtonFlag(L, "ShouldDisplayBorderAlways", &UI_Button::ShouldDisplayBorderAlways);
}

int buttonSetDisplayChromelessNormalState(lua_State* L) {
    return setButtonFlag(L, "SetDisplayChromelessNormalState",
                         &UI_Button::SetDisplayChromelessNormalState);
}

int buttonShouldDisplayChromelessNormalState(lua_State* L) {
    return answerButtonFlag(L, "ShouldDisplayChromelessNormalState",
                            &UI_Button::ShouldDisplayChromelessNormalState);
}

int buttonSetInsetUndrawnSpace(lua_State* L) {
    return setButtonFlag(L, "SetInsetUndrawnSpace", &UI_Button::SetInsetUndrawnSpace);
}

int buttonShouldInsetUndrawnSpace(lua_State* L) {
    return answerButtonFlag(L, "ShouldInsetUndrawnSpace", &UI_Button::ShouldInsetUndrawnSpace);
}

int buttonSetDrawInnerBevelOutline(lua_State* L) {
    return setButtonFlag(L, "SetDrawInnerBevelOutline", &UI_Button::SetDrawInnerBevelOutline);
}

int buttonShouldDrawInnerBevelOutline(lua_State* L) {
    return answerButtonFlag(L, "ShouldDrawInnerBevelOutline",
                            &UI_Button::ShouldDrawInnerBevelOutline);
}

int buttonSetChangeFocusOnClick(lua_State* L) {
    return setButtonFlag(L, "SetChangeFocusOnClick", &UI_Button::SetChangeFocusOnClick);
}

int buttonGetChangeFocusOnClick(lua_State* L) {
    return answerButtonFlag(L, "GetChangeFocusOnClick", &UI_Button::GetChangeFocusOnClick);
}

int buttonSetNotificationOnMouseDown(lua_State* L) {
    return setButtonFlag(L, "SetNotificationOnMouseDown", &UI_Button::SetNotificationOnMouseDown);
}

int buttonGetNotificationOnMouseDown(lua_State* L) {
    return answerButtonFlag(L, "GetNotificationOnMouseDown",
                            &UI_Button::GetNotificationOnMouseDown);
}

// -- button:SetSpringLoaded([flag]): there is no getter.
int buttonSetSpringLoaded(lua_State* L) {
    return setButtonFlag(L, "SetSpringLoaded", &UI_Button::SetSpringLoaded);
}

// -- top = button:SetContentOffset(point): answers the stack's top, its last argument.
int buttonSetContentOffset(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    zebcore::geom::PointT<float> offset;
    inkwell::GetPointF32FromLua(L, 2, offset);  // may run a field's __index
    return CallAnsweringTop<UI_Button>(L, "SetContentOffset",
                                       [&](UI_Button& button) { button.SetContentOffset(offset); });
}

// -- top = button:SetCornerRadius(radius): answers the stack's top, its last argument.
int buttonSetCornerRadius(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const auto radius = static_cast<float>(luaL_checknumber(L, 2));
    return CallAnsweringTop<UI_Button>(
        L, "SetCornerRadius", [radius](UI_Button& button) { button.SetCornerRadius(radius); });
}

// -- radius = button:GetCornerRadius(): as the float it was kept in.
int buttonGetCornerRadius(lua_State* L) {
    return AnswerOfControl<UI_Button>(L, "GetCornerRadius",
                                      [](UI_Button& button) { return button.GetCornerRadius(); });
}

// -- top = button:SetStrokeSizes(border, bevel): answers the stack's top, its last argument.
int buttonSetStrokeSizes(lua_State* L) {
    return SetPairOfControl<UI_Button>(
        L, "SetStrokeSizes", [](UI_Button& button, lua_Number border, lua_Number bevel) {
            button.SetStrokeSizes(
                std::make_pair(static_cast<float>(border), static_cast<float>(bevel)));
        });
}

// -- border, bevel = button:GetStrokeSizes()
int buttonGetStrokeSizes(lua_State* L) {
    return PairOfControl<UI_Button>(L, "GetStrokeSizes",
                                    [](UI_Button& button) { return button.GetStrokeSizes(); });
}

}  // namespace

const luaL_Reg LuaUI_ButtonWrapper::methods[] = {
    {"SetValue", buttonSetValue},
    {"GetValue", buttonGetValue},
    {"SetDisplayContainerNever", buttonSetDisplayContainerNever},
    {"ShouldDisplayContainerNever", buttonShouldDisplayContainerNever},
    {"SetDisplayContainerAlways", buttonSetDisplayContainerAlways},
    {"ShouldDisplayContainerAlways", buttonShouldDisplayContainerAlways},
    {"SetDisplayBorderNever", buttonSetDisplayBorderNever},
    {"ShouldDisplayBorderNever", buttonShouldDisplayBorderNever},
    {"SetDisplayBorderAlways", buttonSetDisplayBorderAlways},
    {"ShouldDisplayBorderAlways", buttonShouldDisplayBorderAlways},
    {"SetDisplayChromelessNormalState", buttonSetDisplayChromelessNormalState},
    {"ShouldDisplayChromelessNormalState", buttonShouldDisplayChromelessNormalState},
    {"SetInsetUndrawnSpace", buttonSetInsetUndrawnSpace},
    {"ShouldInsetUndrawnSpace", buttonShouldInsetUndrawnSpace},
    {"SetDrawInnerBevelOutline", buttonSetDrawInnerBevelOutline},
    {"ShouldDrawInnerBevelOutline", buttonShouldDrawInnerBevelOutline},
    {"SetChangeFocusOnClick", buttonSetChangeFocusOnClick},
    {"GetChangeFocusOnClick", buttonGetChangeFocusOnClick},
    {"SetNotificationOnMouseDown", buttonSetNotificationOnMouseDown},
    {"GetNotificationOnMouseDown", buttonGetNotificationOnMouseDown},
    {"SetSpringLoaded", buttonSetSpringLoaded},
    {"SetContentOffset", buttonSetContentOffset},
    {"SetCornerRadius", buttonSetCornerRadius},
    {"GetCornerRadius", buttonGetCornerRadius},
    {"SetStrokeSizes", buttonSetStrokeSizes},
    {"GetStrokeSizes", buttonGetStrokeSizes},
    {nullptr, nullptr},
};

const char* LuaUI_ButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebButton";
    return sMetatableName;
}

void LuaUI_ButtonWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

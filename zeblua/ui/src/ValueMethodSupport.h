// What the methods of the value and text controls share beyond the typed method idiom:
// answers in pairs and texts, text and number arguments, setters answering the stack's top.
#pragma once

#include <string>
#include <utility>

#include <lua.hpp>

#include "zebcore/utility/Strings.h"
#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/utility/src/LuaResultString.h"
#include "zebui/controls/UI_TextControlBase.h"

namespace zeblua {
namespace ui {

// call(control) for its effect, then one result though nothing was pushed: the stack's top
// value, so the script gets its last argument back. Nothing for a released wrapper.
template <class T, class Call> int CallAnsweringTop(lua_State* L, const char* name, Call call) {
    T* control = CastControlNode<T>(L, 1);
    if (!control) return 0;
    return utility::RunNative(L, name, [&] {
        const auto held = HoldNode(control);
        call(*control);
        return 1;
    });
}

// The pair query(control) answers: its first, then its second number.
template <class T, class Query> int PairOfControl(lua_State* L, const char* name, Query query) {
    return PushControlAnswer<T>(L, name, query, [](lua_State* state, auto pair) {
        lua_pushnumber(state, static_cast<lua_Number>(pair.first));
        lua_pushnumber(state, static_cast<lua_Number>(pair.second));
        return 2;
    });
}

// The UTF-16 text query(control) answers, as UTF-8. The conversion fills a string that Lua
// owns, made before the control is taken (making it may collect, and so run script), so a
// memory error in the push leaves no C++ object behind.
template <class T, class Query> int TextOfControl(lua_State* L, const char* name, Query query) {
    if (!LiveNode(L, 1)) return 0;
    std::string* text = utility::PushResultString(L);
    T* control = CastControlNode<T>(L, 1);
    if (!control) return 0;
    utility::RunNative(L, name, [&] {
        const auto held = HoldNode(control);
        *text = zebcore::utility::UTF16to8(query(*control));
        return 0;
    });
    lua_pushlstring(L, text->data(), text->size());
    return 1;
}

// -- control:Name(text): set(control, text), argument 2 converted to UTF-16.
template <class T, class Set> int SetTextOfControl(lua_State* L, const char* name, Set set) {
    if (!GetControlUserData(L, 1)) return 0;
    size_t length = 0;
    const char* bytes = luaL_checklstring(L, 2, &length);  // the stack holds the bytes
    return CallOnControl<T>(L, name, [&](T& control) {
        set(control, zebcore::utility::UTF8to16(std::string(bytes, length)));
    });
}

// -- control:Name(text): set(control, text), argument 2 as the 8-bit string it is.
template <class T, class Set> int SetBytesOfControl(lua_State* L, const char* name, Set set) {
    if (!GetControlUserData(L, 1)) return 0;
    size_t length = 0;
    const char* bytes = luaL_checklstring(L, 2, &length);  // the stack holds the bytes
    return CallOnControl<T>(L, name,
                            [&](T& control) { set(control, zebcore::UTF8String(bytes, length)); });
}

// -- control:Name(number): set(control, number).
template <class T, class Set> int SetNumberOfControl(lua_State* L, const char* name, Set set) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Number number = luaL_checknumber(L, 2);
    return CallOnControl<T>(L, name, [&](T& control) { set(control, number); });
}

// -- control:Name(first, second): set(control, first, second), answering the stack's top.
template <class T, class Set> int SetPairOfControl(lua_State* L, const char* name, Set set) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Number first = luaL_checknumber(L, 2);
    const lua_Number second = luaL_checknumber(L, 3);
    return CallAnsweringTop<T>(L, name, [&](T& control) { set(control, first, second); });
}

// -- control:SetCustomFontSize(size): a text size in units, as a float, on a T.
template <class T> int SetCustomFontSizeOf(lua_State* L) {
    return SetNumberOfControl<T>(L, "SetCustomFontSize", [](T& control, lua_Number size) {
        control.SetCustomFontSize(static_cast<float>(size));
    });
}

// The number value of knobs, sliders and hot text numbers, and the bounds of the first and
// last, each on a T.
// -- value = control:GetNumericValue()
template <class T> int NumericValueOf(lua_State* L) {
    return AnswerOfControl<T>(L, "GetNumericValue", [](T& control) { return control.GetValue(); });
}

// -- control:SetNumericValue(value): clamped to the control's bounds.
template <class T> int SetNumericValueOf(lua_State* L) {
    return SetNumberOfControl<T>(L, "SetNumericValue",
                                 [](T& control, lua_Number value) { control.SetValue(value); });
}

// -- control:SetMinValue(bound)
template <class T> int SetMinValueOf(lua_State* L) {
    return SetNumberOfControl<T>(L, "SetMinValue",
                                 [](T& control, lua_Number bound) { control.SetMinValue(bound); });
}

// -- control:SetMaxValue(bound)
template <class T> int SetMaxValueOf(lua_State* L) {
    return SetNumberOfControl<T>(L, "SetMaxValue",
                                 [](T& control, lua_Number bound) { control.SetMaxValue(bound); });
}

}  // namespace ui
}  // namespace zeblua

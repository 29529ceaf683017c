// zebhost.inputCodes: the toolkit's input constants, read from its own header.
#include "host/src/HostInputCodes.h"

#include <cstddef>
#include <cstdio>

#include <lua.hpp>

#include "zebui/ui/InputCodes.h"

namespace zebhost {

namespace {

using namespace zebui::ui;

struct NamedCode {
    const char* name;
    lua_Integer value;
};

const NamedCode kMouseActions[] = {
    {"kDown", kMouseAction_Down},     {"kUp", kMouseAction_Up},
    {"kDrag", kMouseAction_Drag},     {"kMove", kMouseAction_Move},
    {"kWheel", kMouseAction_Wheel},   {"kEnter", kMouseAction_Enter},
    {"kExit", kMouseAction_Exit},     {"kMagnify", kMouseAction_Magnify},
    {"kRotate", kMouseAction_Rotate}, {"kSwipe", kMouseAction_Swipe},
};
const NamedCode kMouseButtons[] = {
    {"kNone", kMouseButton_None},
    {"kLeft", kMouseButton_Left},
    {"kRight", kMouseButton_Right},
    {"kMiddle", kMouseButton_Middle},
};
const NamedCode kWheelAxes[] = {
    {"kVertical", kMouseWheelAxis_Vertical},
    {"kHorizontal", kMouseWheelAxis_Horizontal},
};
const NamedCode kSwipeDirections[] = {
    {"kNone", kSwipeDirection_None},   {"kLeft", kSwipeDirection_Left},
    {"kRight", kSwipeDirection_Right}, {"kUp", kSwipeDirection_Up},
    {"kDown", kSwipeDirection_Down},
};
const NamedCode kModifiers[] = {
    {"kShift", kModifierKey_Shift},       {"kControl", kModifierKey_Control},
    {"kOption", kModifierKey_Option},     {"kCommand", kModifierKey_Command},
    {"kCapsLock", kModifierKey_CapsLock}, {"kFunction", kModifierKey_Function},
};
const NamedCode kKeyboardActions[] = {
    {"kDown", kKeyboardAction_Down},
    {"kUp", kKeyboardAction_Up},
    {"kFlagsChanged", kKeyboardAction_FlagsChanged},
};
// The keys with names of their own; the ranges follow in PushInputCodes.
const NamedCode kKeys[] = {
    {"kNone", kKeyCode_None},
    {"kBackspace", kKeyCode_Backspace},
    {"kTab", kKeyCode_Tab},
    {"kReturn", kKeyCode_Return},
    {"kEscape", kKeyCode_Escape},
    {"kSpace", kKeyCode_Space},
    {"kForwardDelete", kKeyCode_ForwardDelete},
    {"kLeftArrow", kKeyCode_LeftArrow},
    {"kRightArrow", kKeyCode_RightArrow},
    {"kUpArrow", kKeyCode_UpArrow},
    {"kDownArrow", kKeyCode_DownArrow},
    {"kHome", kKeyCode_Home},
    {"kEnd", kKeyCode_End},
    {"kPageUp", kKeyCode_PageUp},
    {"kPageDown", kKeyCode_PageDown},
    {"kHelp", kKeyCode_Help},
    {"kKeypadEnter", kKeyCode_KeypadEnter},
};
const NamedCode kFocusReasons[] = {
    {"kUnspecified", kFocusChangeReason_Unspecified}, {"kMouse", kFocusChangeReason_Mouse},
    {"kTabForward", kFocusChangeReason_TabForward},   {"kProgram", kFocusChangeReason_Program},
    {"kTabBackward", kFocusChangeReason_TabBackward}, {"kWindow", kFocusChangeReason_Window},
};

// table[name] = value for each, on the table on top.
template <std::size_t N> void setCodes(lua_State* L, const NamedCode (&codes)[N]) {
    for (const NamedCode& code : codes) {
        lua_pushinteger(L, code.value);
        lua_setfield(L, -2, code.name);
    }
}

// table["k" .. first label + i] = first + i, for a range of keys whose labels count up
// as their codes do: "k0" to "k9", "kA" to "kZ", "kF1" to "kF12".
void setKeyRange(lua_State* L, const char* format, int firstLabel, unsigned int first,
                 unsigned int last) {
    for (unsigned int code = first; code <= last; ++code) {
        char name[8];
        std::snprintf(name, sizeof name, format, firstLabel + static_cast<int>(code - first));
        lua_pushinteger(L, code);
        lua_setfield(L, -2, name);
    }
}

template <std::size_t N>
void setGroup(lua_State* L, const char* group, const NamedCode (&codes)[N]) {
    lua_createtable(L, 0, static_cast<int>(N));
    setCodes(L, codes);
    lua_setfield(L, -2, group);
}

}  // namespace

int PushInputCodes(lua_State* L) {
    lua_createtable(L, 0, 8);
    setGroup(L, "mouse", kMouseActions);
    setGroup(L, "buttons", kMouseButtons);
    setGroup(L, "wheelAxis", kWheelAxes);
    setGroup(L, "swipe", kSwipeDirections);
    setGroup(L, "modifiers", kModifiers);
    setGroup(L, "keyboard", kKeyboardActions);
    setGroup(L, "focus", kFocusReasons);

    lua_createtable(L, 0, 64);
    setCodes(L, kKeys);
    setKeyRange(L, "k%c", '0', kKeyCode_0, kKeyCode_9);
    setKeyRange(L, "k%c", 'A', kKeyCode_A, kKeyCode_Z);
    setKeyRange(L, "kF%d", 1, kKeyCode_F1, kKeyCode_F12);
    lua_setfield(L, -2, "keys");
    return 1;
}

}  // namespace zebhost

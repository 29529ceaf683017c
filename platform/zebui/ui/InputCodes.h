// The toolkit's input numbering: mouse actions and buttons, modifier bits, key codes,
// wheel axes, swipe directions and focus change reasons.
#pragma once

#include "zebcore/utility/Flags.h"

// These numbers cross to scripts unchanged inside event tables, and scripts compare
// against them, so a value once published never changes. Every enumeration has a fixed
// underlying type, so that any number a script sends back is a value to test.
namespace zebui {
namespace ui {

enum MouseAction : unsigned int {
    kMouseAction_Down = 0,     // a button went down
    kMouseAction_Up = 1,       // a button went up
    kMouseAction_Drag = 2,     // the pointer moved with a button down
    kMouseAction_Move = 3,     // the pointer moved with no button down
    kMouseAction_Wheel = 4,    // the wheel turned; see the delta and the axis
    kMouseAction_Enter = 5,    // the pointer came over the node
    kMouseAction_Exit = 6,     // the pointer left the node
    kMouseAction_Magnify = 7,  // a pinch gesture
    kMouseAction_Rotate = 8,   // a rotation gesture
    kMouseAction_Swipe = 9,    // a swipe gesture; see the swipe direction
};

// 0 is "no button", so a zeroed event names none.
enum MouseButton : int {
    kMouseButton_None = 0,
    kMouseButton_Left = 1,
    kMouseButton_Right = 2,
    kMouseButton_Middle = 3,
};

enum MouseWheelAxis : int {
    kMouseWheelAxis_Vertical = 0,
    kMouseWheelAxis_Horizontal = 1,
};

enum SwipeDirection : int {
    kSwipeDirection_None = 0,
    kSwipeDirection_Left = 1,
    kSwipeDirection_Right = 2,
    kSwipeDirection_Up = 3,
    kSwipeDirection_Down = 4,
};

// Bits of the 8-bit modifier byte of every input event.
enum ModifierKey : unsigned char {
    kModifierKey_Shift = 0x01,
    kModifierKey_Control = 0x02,
    kModifierKey_Option = 0x04,
    kModifierKey_Command = 0x08,
    kModifierKey_CapsLock = 0x10,
    kModifierKey_Function = 0x20,
};
using ModifierFlags = zebcore::utility::Flags<unsigned char>;

enum KeyboardAction : unsigned int {
    kKeyboardAction_Down = 0,
    kKeyboardAction_Up = 1,
    kKeyboardAction_FlagsChanged = 2,  // only the modifier byte changed
};

// Virtual key codes: printable keys are their unshifted ASCII value (letters in upper
// case), control keys their ASCII control value, all other keys 0x100 and above.
enum KeyCode : unsigned int {
    kKeyCode_None = 0,
    kKeyCode_Backspace = 0x08,
    kKeyCode_Tab = 0x09,
    kKeyCode_Return = 0x0D,
    kKeyCode_Escape = 0x1B,
    kKeyCode_Space = 0x20,
    kKeyCode_0 = 0x30,  // '0' to '9': 0x30 to 0x39
    kKeyCode_9 = 0x39,
    kKeyCode_A = 0x41,  // 'A' to 'Z': 0x41 to 0x5A
    kKeyCode_Z = 0x5A,
    kKeyCode_ForwardDelete = 0x7F,
    kKeyCode_LeftArrow = 0x100,
    kKeyCode_RightArrow = 0x101,
    kKeyCode_UpArrow = 0x102,
    kKeyCode_DownArrow = 0x103,
    kKeyCode_Home = 0x104,
    kKeyCode_End = 0x105,
    kKeyCode_PageUp = 0x106,
    kKeyCode_PageDown = 0x107,
    kKeyCode_Help = 0x108,
    kKeyCode_KeypadEnter = 0x109,
    kKeyCode_F1 = 0x110,  // F1 to F12: 0x110 to 0x11B
    kKeyCode_F12 = 0x11B,
};

// Why the keyboard focus moved.
enum FocusChangeReason : int {
    kFocusChangeReason_Unspecified = 0,
    kFocusChangeReason_Mouse = 1,        // a click on the node
    kFocusChangeReason_TabForward = 2,   // the tab key
    kFocusChangeReason_Program = 3,      // code asked for it
    kFocusChangeReason_TabBackward = 4,  // shift and the tab key
    kFocusChangeReason_Window = 5,       // its window was activated or deactivated
};

}  // namespace ui
}  // namespace zebui

// Keyboard and mouse events across the Lua boundary: tables made by the host script
// layer's global constructors, and a mouse event rebuilt from such a table.
#pragma once

#include <memory>

#include "zebui/ui/InputCodes.h"

struct lua_State;

namespace zebui {
namespace ui {
class KeyboardEvent;
class MouseEvent;
}  // namespace ui
}  // namespace zebui

namespace zeblua {
namespace ui {

// Writers: each fetches its global constructor by name, pushes the event's values and
// calls it with lua_pcall(L, n, 1, 0), status not looked at. Exactly one value is left:
// the event table or, with a missing or failing constructor, its error value. Return 1.
// The constructor is script code: anything may happen during the call. The numbers are
// the toolkit's (InputCodes.h), passed through unread.
//   zeblua_CreateNewZEBUIKeyboardEvent(action, character, keyCode, modKey, isRepeat)
//     character: the first UTF-16 unit only; keyCode: the virtual code; modKey: the
//     modifier byte; isRepeat: a boolean.
int PushKeyboardEventToLua(lua_State* L, const zebui::ui::KeyboardEvent& event);
//   zeblua_CreateNewZEBUIMouseEvent(action, button, clickCount, x, y, modKey,
//                                   mouseWheelDelta, mouseWheelAxis)
int PushMouseEventToLua(lua_State* L, const zebui::ui::MouseEvent& event);

// Builds a new event from the table at index (positive: keys are pushed above it) and
// hands it to event, which deletes what it held; returns true. A nil on top of the stack
// (a further nil argument after the table) returns false and touches nothing.
// Fields, read in this order with lua_gettable: action, button, clickCount, modKey,
// mouseWheelDelta, mouseWheelAxis (each a number, or Lua's argument error at -1; all but
// action truncated toward zero, modKey then cut to its low 8 bits), then position.x and
// position.y (a missing one reads as 0; a position that is not a table raises Lua's
// indexing error). The event carries no native event and no gesture values.
// It raises only before event is touched, but the raise skips the destructors of its
// caller's frame: pass an empty unique_ptr and hold no other C++ object there.
// (A std::unique_ptr, as std::auto_ptr is gone from C++17.)
bool GetMouseEventFromLua(lua_State* L, int index, std::unique_ptr<zebui::ui::MouseEvent>& event);

// A script's number as an int: truncated toward zero as C++ converts it, stopping at int's
// ends and NaN giving 0, where the conversion itself would be undefined.
int TruncatedInt(double value);

// A script's number as the modifier byte: TruncatedInt, then cut to its low 8 bits.
zebui::ui::ModifierFlags ModifiersFromNumber(double value);

}  // namespace ui
}  // namespace zeblua

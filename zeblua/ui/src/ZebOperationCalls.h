// Calls from a node's operations and change messages into the Lua functions bound to them.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zebcore/geom/RectT.h"
#include "zebui/ui/InputCodes.h"

namespace zebui {
namespace controls {
class UI_ControlChangedMessage;
class UI_InteractiveControlChangedMessage;
}  // namespace controls
namespace inkwell {
class Inkwell;
}  // namespace inkwell
namespace ui {
class KeyboardEvent;
class MouseEvent;
class UI_Node;
}  // namespace ui
}  // namespace zebui

namespace zeblua {
namespace ui {

struct LuaFunctionEntry;

// How a call ends (LuaCallForms.h), and what the caller is answered.
enum class BoundAnswer {
    kTruthyPopTop,      // the value as a boolean, a failure counting true; lua_settop(L, -2)
    kTruthyEmptyFrame,  // the same, then lua_settop(L, 0)
    kNotify,            // no answer (false); a failure has no effect
    kChecked,           // one result, dropped; answers whether the call succeeded
};

// Each call runs on entry.state inside a protected frame of its own (lua_cpcall), so
// nothing it pushes can raise through the toolkit's C++ frames, and emptying "the frame"
// empties that frame only, never the script's native method that led to the callback.
// If even the protected frame cannot start (out of memory), the answer is that of a
// failed function. The caller holds the node alive; the Lua function may do anything.

// "uiDraw": the surface's state is pushed and its anti-aliasing set to medium (both
// skipped for an Inkwell without a surface), the function gets an Inkwell proxy in a draw
// scope that ends when it returns, then the state is popped. Truthy answer, popped.
bool CallBoundDraw(const LuaFunctionEntry& entry, zebui::inkwell::Inkwell* inkwell);

// A mouse event table, after a new wrapper of target when target is not null.
bool CallBoundMouseEvent(const LuaFunctionEntry& entry,
                         const boost::intrusive_ptr<zebui::ui::UI_Node>& target,
                         const zebui::ui::MouseEvent& event, BoundAnswer answer);

// A new wrapper of target (when not null), then a keyboard event table. Truthy answer,
// frame emptied.
bool CallBoundKeyboardEvent(const LuaFunctionEntry& entry,
                            const boost::intrusive_ptr<zebui::ui::UI_Node>& target,
                            const zebui::ui::KeyboardEvent& event);

// A point table and the modifier byte as a number. Truthy answer, frame emptied.
bool CallBoundCursor(const LuaFunctionEntry& entry, const zebcore::geom::PointT<float>& where,
                     zebui::ui::ModifierFlags modifiers);

// A rect table.
bool CallBoundRect(const LuaFunctionEntry& entry, const zebcore::geom::RectT<float>& rect,
                   BoundAnswer answer);

// The focus change reason as a number. Notify.
void CallBoundFocusChange(const LuaFunctionEntry& entry, zebui::ui::FocusChangeReason reason);

// A change function: no arguments. Notify.
void CallBoundControlChanged(const LuaFunctionEntry& entry,
                             zebui::controls::UI_ControlChangedMessage* message);

// An interactive change function: the message table, with a new wrapper of control, the
// sender, held by the caller. Notify.
void CallBoundInteractiveChange(const LuaFunctionEntry& entry,
                                zebui::controls::UI_InteractiveControlChangedMessage* message,
                                const boost::intrusive_ptr<zebui::ui::UI_Node>& control);

// A split validation function: the proposed split; answers the number the function
// returned, or the proposal when it returned anything else or failed. Checked.
float CallBoundSplitValidation(const LuaFunctionEntry& entry, float proposed);

// A new wrapper of node, held by the caller (nothing for a node nobody holds). Notify.
void CallBoundNodeNotify(const LuaFunctionEntry& entry,
                         const boost::intrusive_ptr<zebui::ui::UI_Node>& node);

// A tab well's action: the action and the tab as numbers, then rect as an integer rect
// table when it is not null. Notify.
void CallBoundTabItemAction(const LuaFunctionEntry& entry, int action, int tab,
                            const zebcore::geom::RectT<int>* rect);

}  // namespace ui
}  // namespace zeblua

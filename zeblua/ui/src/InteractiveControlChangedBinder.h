// The binder of a control's interactive changes to the Lua functions a script gave.
#pragma once

#include "zeblua/ui/src/LuaChangeBinder.h"

struct lua_State;

namespace zebui {
namespace controls {
class UI_InteractiveControlChangedMessage;
}  // namespace controls
}  // namespace zebui

namespace zeblua {
namespace ui {

// Slot 3 of the binding table. T is UI_InteractiveControlView, the one instance.
template <class T> class InteractiveControlChangedBinder : public LuaChangeBinder {
public:
    // Listens to control's interactive changes from here on.
    explicit InteractiveControlChangedBinder(T* control);

    // Runs the first function with the message table (a new wrapper of the control and
    // the phase) on the main thread; its errors are dropped, and it may do anything to
    // the control, even drop its last reference.
    void OnInteractiveChange(zebui::controls::UI_InteractiveControlChangedMessage* message);
};

// Adds the function at reference (of L's universe) to control's interactive binder,
// made on the first call. False, with reference still the caller's, when the universe's
// main thread is unknown.
template <class T> bool LuaNotifyWhenInteractivelyChanged(lua_State* L, T* control, int reference);

}  // namespace ui
}  // namespace zeblua

// The binder of a control's value changes to the Lua functions a script gave.
#pragma once

#include "zeblua/ui/src/LuaChangeBinder.h"

struct lua_State;

namespace zebui {
namespace controls {
class UI_ControlChangedMessage;
}  // namespace controls
}  // namespace zebui

namespace zeblua {
namespace ui {

// Slot 2 of the binding table. T is UI_ControlView, the one instance.
template <class T> class ControlChangedBinder : public LuaChangeBinder {
public:
    // Listens to control's value changes from here on.
    explicit ControlChangedBinder(T* control);

    // Runs the first function, with no arguments, on the main thread; its errors are
    // dropped, and it may do anything to the control, even drop its last reference.
    void OnChanged(zebui::controls::UI_ControlChangedMessage* message);
};

// Adds the function at reference (of L's universe) to control's change binder, made on
// the first call. False, with reference still the caller's, when the universe's main
// thread is unknown.
template <class T> bool LuaNotifyWhenChanged(lua_State* L, T* control, int reference);

}  // namespace ui
}  // namespace zeblua

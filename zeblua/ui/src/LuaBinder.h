// The counted base of every binder a node's binding table holds.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/RefCountedObject.h"

struct lua_State;

namespace zebui {
namespace controls {
class UI_ControlChangedMessage;
class UI_InteractiveControlChangedMessage;
}  // namespace controls
namespace ui {
class UI_Node;
}  // namespace ui
}  // namespace zebui

namespace zeblua {
namespace ui {

// Held by boost::intrusive_ptr in a slot of a LuaBindingTable, and by nothing else for
// long: a binder lives as long as its node's table. Subclasses keep the Lua functions
// a script bound and the hooks that reach them.
class LuaBinder : public zebcore::utility::RefCountedObject {
public:
    ~LuaBinder() override;

    // The arguments of a change function, pushed on L and added to count. A plain change
    // has none: the function asks the control for its value.
    static void PushControlMessage(lua_State* L, zebui::controls::UI_ControlChangedMessage* message,
                                   int& count);
    // One table with the metatable "interactiveChangeMessage" (so it answers beginChange
    // and the other phase names): control, a new wrapper of the sender, which the caller
    // holds (a push that fails must not skip the release of a reference), and
    // changeMessage, the phase. Without a held sender the table has no control.
    static void PushInteractiveControlMessage(
        lua_State* L, zebui::controls::UI_InteractiveControlChangedMessage* message,
        const boost::intrusive_ptr<zebui::ui::UI_Node>& control, int& count);
};

}  // namespace ui
}  // namespace zeblua

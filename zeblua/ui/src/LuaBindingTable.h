// The record of binders that a node carries in its user data.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/RefCountedObject.h"
#include "zeblua/ui/src/LuaBinder.h"

namespace zebui {
namespace ui {
class UI_Node;
}  // namespace ui
}  // namespace zebui

namespace zeblua {
namespace ui {

// Ownership runs node -> user data -> table -> binders, so everything a script bound to
// a node lives exactly as long as the node, whatever becomes of the wrappers it was bound
// through. The table is made at the first binding of any kind and never removed; if
// something else replaces the node's user data, the table and its binders die then, and
// each binder makes the hooks it left on the node inert.
class LuaBindingTable : public zebcore::utility::RefCountedObject {
public:
    // Slots in their fixed order: 1 the ZebBinder; 2 and 3 the change notification
    // binders; 4 to 8 the web view's binders. All empty at first.
    static constexpr int kSlotCount = 8;
    enum Slot {
        kZebBinderSlot = 0,
        kControlChangedSlot,
        kInteractiveControlChangedSlot,
        kResourceLoadedSlot,
        kAddressChangeSlot,
        kBeforeBrowseSlot,
        kFrameLocationChangedSlot,
        kJavaScriptTunnelSlot,
    };

    // Releases the slots from the last to the first.
    ~LuaBindingTable() override;

    // The node's table. Without one (user data empty or of another type): null, or with
    // create a new table that replaces whatever the user data held.
    static boost::intrusive_ptr<LuaBindingTable> GetLuaBindingTable(zebui::ui::UI_Node* node,
                                                                    bool create);

    boost::intrusive_ptr<LuaBinder> slots[kSlotCount];
};

}  // namespace ui
}  // namespace zeblua

// The toolkit's process-wide manager of nodes: timer ids, keyboard focus and the
// delivery of input events.
#pragma once

#include "zebcore/geom/PointT.h"
#include "zebui/ui/InputCodes.h"

namespace zebui {
namespace inkwell {
class SupplierInterface;
}
namespace utility {
class InkwellImageResourceCache;
class ResourceManager;
}  // namespace utility
namespace ui {

class UI_Node;
class MouseEvent;
class KeyboardEvent;

// Holds no node: the focus and the node under the mouse are plain pointers that a
// dying node clears through NodeDestroyed.
//
// Delivery goes through Dispatch..., which is where an input capture and mouse event
// filter nodes will see an event ahead of its target, and where modal windows will
// hold events back from the rest of the tree.
class UI_NodeManager {
public:
    // The flag is the toolkit's "create if missing"; the headless manager always exists.
    static UI_NodeManager* Get(bool create);

    UI_NodeManager(const UI_NodeManager&) = delete;
    UI_NodeManager& operator=(const UI_NodeManager&) = delete;

    // A new id, unique across all nodes, never 0.
    int GetUniqueTimerID();

    // Moves the focus to node, or clears it with null. The node that lost the focus and
    // then the one that gained it get their focus changed functions with the reason.
    // A disabled node gets no focus; asking again for the present focus changes nothing.
    bool SetKeyboardFocus(UI_Node* node, FocusChangeReason reason);
    UI_Node* GetKeyboardFocus() const { return mFocus; }
    // The target of the last mouse event, null after it got an exit event.
    UI_Node* GetMouseOverNode() const { return mMouseOver; }

    // A mouse event for target, whose position is in the target's coordinates.
    bool DispatchMouseEvent(UI_Node* target, const MouseEvent& event);
    // A key event for target, or for the focused node when target is null. Offered to
    // the target, then to each ancestor in turn, until one takes it.
    bool DispatchKeyboardEvent(UI_Node* target, const KeyboardEvent& event);
    // Asks target to set the cursor for a pointer at where, in its coordinates.
    bool DispatchCursor(UI_Node* target, const zebcore::geom::PointT<float>& where,
                        ModifierFlags modifiers);

    // Called by a dying node: forgets every plain pointer to it.
    void NodeDestroyed(const UI_Node* node);

    // The application's default drawing supplier, for drawing that has no surface of its
    // own to ask. A process-wide headless supplier until the host sets one; setting null
    // brings that one back. The manager does not own a supplier the host sets.
    inkwell::SupplierInterface* GetDefaultSupplier() const;
    void SetDefaultSupplier(inkwell::SupplierInterface* supplier);

    // The toolkit's own resources, apart from the application's: the sub-folder "zebui"
    // of the resources folder, and the images decoded from it. Both live as long as the
    // process.
    utility::ResourceManager* GetResourceManager() const;
    utility::InkwellImageResourceCache* GetInkwellImageResourceCache() const;

private:
    UI_NodeManager() = default;

    int mLastTimerID = 0;
    UI_Node* mFocus = nullptr;
    UI_Node* mMouseOver = nullptr;
    inkwell::SupplierInterface* mDefaultSupplier = nullptr;
};

}  // namespace ui
}  // namespace zebui

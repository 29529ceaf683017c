// The toolkit's process-wide manager of nodes: timer ids, keyboard focus and the
// delivery of input events.
#pragma once

#include <cstddef>
#include <vector>

#include <boost/intrusive_ptr.hpp>

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
class UI_Window;
class MouseEvent;
class KeyboardEvent;

// Holds no node: the focus, the node under the mouse and the node that captured the
// mouse are plain pointers that a dying node clears through NodeDestroyed.
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
    // A mouse event at a point of root's tree, its position in global coordinates, as a
    // pointer device sends it. The target is the node under the point (HitTest) or, from a
    // down that a node took until the next up, that node (implicit capture). The event is
    // offered to the target, then to each ancestor up to root, each in its own
    // coordinates, until one takes it; a down that is taken gives the taker the keyboard
    // focus (reason Mouse). Outside capture, a move or drag onto another node first gives
    // the old node an exit and the new one an enter, and a move then asks the chain for
    // the cursor. Returns the node that took the event, or null; held, since a handler may
    // have taken it out of its tree.
    boost::intrusive_ptr<UI_Node> DispatchMouseEventAt(UI_Node* root, const MouseEvent& event);
    // The topmost shown, enabled node of root's tree under a global point: later children
    // lie above earlier ones, and a child is only hit inside its parent's frame, as
    // drawing clips it there. A hidden or disabled node hides its whole subtree from the
    // pointer. Null outside root.
    UI_Node* HitTest(UI_Node* root, const zebcore::geom::PointT<float>& global) const;
    UI_Node* GetMouseCapture() const { return mCapture; }
    // A key event for target, or for the focused node when target is null. Offered to
    // the target, then to each ancestor in turn, until one takes it; answers that node,
    // or null. A tab key down that nobody takes moves the focus to the next shown, enabled
    // node of the target's tree in depth-first order (the previous one with shift),
    // wrapping around, with the reason TabForward or TabBackward, and answers that node.
    boost::intrusive_ptr<UI_Node> DispatchKeyboardEvent(UI_Node* target,
                                                        const KeyboardEvent& event);
    // Asks target to set the cursor for a pointer at where, in its coordinates.
    bool DispatchCursor(UI_Node* target, const zebcore::geom::PointT<float>& where,
                        ModifierFlags modifiers);

    // The modal window stack. While a window is on it, pointer and key events for any
    // other window's tree are held back (dispatch answers null), except for windows whose
    // platform window works while a modal window runs (panels that ask for it). The stack
    // holds no window: a dying window leaves it. Pop removes the window's topmost entry.
    void PushModalWindow(UI_Window* window);
    void PopModalWindow(UI_Window* window);
    UI_Window* GetModalWindow() const;
    size_t GetModalWindowCount() const { return mModalWindows.size(); }
    // Whether events for root's tree are held back now.
    bool IsHeldBackByModal(const UI_Node* root) const;

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

    boost::intrusive_ptr<UI_Node> offerAlongChain(UI_Node* root, UI_Node* target,
                                                  const MouseEvent& global);
    void moveMouseOver(UI_Node* node, const MouseEvent& global);
    boost::intrusive_ptr<UI_Node> moveFocusByTab(UI_Node* from, bool backward);

    int mLastTimerID = 0;
    UI_Node* mFocus = nullptr;
    UI_Node* mMouseOver = nullptr;
    UI_Node* mCapture = nullptr;
    inkwell::SupplierInterface* mDefaultSupplier = nullptr;
    std::vector<UI_Window*> mModalWindows;  // innermost last
};

}  // namespace ui
}  // namespace zebui

// A node of the toolkit's view tree: geometry, state, hooks, timers and user data.
#pragma once

#include <memory>
#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zebcore/geom/RectT.h"
#include "zebcore/utility/Flags.h"
#include "zebcore/utility/RefCountedObject.h"
#include "zebcore/utility/Strings.h"
#include "zebui/ui/InputCodes.h"
#include "zebui/ui/NodeFunctions.h"
#include "zebui/ui/ThemeClient.h"
#include "zebui/ui/UI_Container.h"

namespace boost {
class any;
}  // namespace boost

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell

namespace ui {

enum DrawCachePolicy : int {
    kDrawCachePolicy_Default = 0,
    kDrawCachePolicy_Never = 1,
    kDrawCachePolicy_Always = 2,
    kDrawCachePolicy_AlwaysAsBitmap = 3,
};

// Ownership: a node lives while any boost::intrusive_ptr holds it; its parent holds one
// per child. The parent link is a plain pointer, nulled when the child leaves the list
// or the parent dies. When the node dies it stops its timers, leaves the manager's
// focus, destroys its user data (and what that owns), releases its hooks and lets go of
// its children.
//
// Geometry: the local rect is the node's frame in its parent's coordinates; the node's
// own coordinates start at the frame's top-left corner. Global coordinates are those of
// the top of the tree, so a point is made global by adding the origins of the node and
// of each ancestor.
//
// Re-entrancy: every hook, listener and timer notification may drop the last outside
// reference to the node, replace the very hook that is running, or change the tree.
// The node keeps itself and the running function alive across each such call.
//
// Hooks and virtuals: the base virtuals (UI_DoPreMouseEvent, UI_DoMouseEvent,
// UI_DoKeyboardEvent, UI_Draw, UI_SizeChanged) are where the installed hooks run, and
// delivery calls only the virtuals. So whoever calls a virtual directly (a script's
// UI_DoMouseEvent, UI_UpdateNow) reaches the hooks too. An override calls the base first
// and gives up its own handling when the base took the event.
class UI_Node : public zebcore::utility::RefCountedObject, public UI_Container, public ThemeClient {
public:
    using RedrawFlags = zebcore::utility::Flags<unsigned int>;
    using StateFlags = zebcore::utility::Flags<unsigned int>;
    // The pointer passes through the node itself to what lies beneath; its children are
    // still hit.
    static constexpr unsigned int kStateFlag_PassesMouse = 16;

    // What UI_Invalidate and UI_UpdateNow were asked since the last clear. Drawing
    // consumes it; until then tests read it.
    struct RedrawRecord {
        unsigned long invalidateCount = 0;
        bool wholeNode = false;  // a null rect came, or too many rects to keep
        std::vector<zebcore::geom::RectT<int>> rects;
        RedrawFlags invalidateFlags;  // those of the last call
        unsigned long updateNowCount = 0;
        RedrawFlags updateNowFlags;  // those of the last call
    };
    static constexpr size_t kMaxRecordedInvalidRects = 32;

    UI_Node();
    ~UI_Node() override;

    // Virtual operations, in the toolkit's order.

    // The frame in the parent's coordinates. The flag asks for the frame with window
    // decorations; headless nodes have none, so both answers are the same.
    virtual zebcore::geom::RectT<float> UI_GetLocalRectF(bool withDecorations) const;
    // A change of size calls UI_SizeChanged; a move alone doesn't.
    virtual void UI_SetLocalRectF(const zebcore::geom::RectT<float>& rect);
    virtual void UI_Show(bool show);
    virtual bool UI_IsShown() const;
    // rect in the node's own coordinates; null means all of the node.
    virtual void UI_Invalidate(const zebcore::geom::RectT<int>* rect, RedrawFlags flags);
    // Records the request, then draws a shown node at once through DeliverDraw, onto
    // pixels of the default supplier that stand in for its window's.
    virtual void UI_UpdateNow(RedrawFlags flags);
    // The draw hook; unless it did the drawing, the node's face (UI_DrawFace), then the
    // shown children in order through UI_DispatchDrawToChild. inkwell may be null (nothing
    // to draw on): the calls still happen, so a hook sees them.
    virtual void UI_Draw(inkwell::Inkwell* inkwell) const;
    // That of the node's window: the parent's, up to the top. A window that draws with a
    // supplier of its own answers that one; any other top, a node not in a drawn tree,
    // answers the manager's default supplier, so it can still be measured.
    virtual const inkwell::SupplierInterface* UI_GetDrawSupplier() const;
    // Each runs its hook, the pre-mouse hook and the mouse hook; false: not taken.
    virtual bool UI_DoPreMouseEvent(UI_Node* target, const MouseEvent& event);
    virtual bool UI_DoMouseEvent(UI_Node* target, const MouseEvent& event);
    // Whether the last mouse event went to this node, or with the flag to a descendant.
    virtual bool UI_IsMouseOver(bool includeDescendants) const;
    // The keyboard hook; false: not taken.
    virtual bool UI_DoKeyboardEvent(UI_Node* target, const KeyboardEvent& event);
    // Asks the manager for the focus; a disabled node gets none.
    virtual bool UI_GainKeyboardFocus(FocusChangeReason reason);
    // Whether this node, or with the flag a descendant, has the focus.
    virtual bool UI_HasKeyboardFocus(bool includeDescendants) const;
    // Offers the tick to the timer notify functions in install order; the first that
    // answers true takes it.
    virtual bool UI_DoTimerNotify(int id);
    virtual void UI_SetToolTip(const zebcore::UTF16String& text, int width);
    // The current size.
    virtual zebcore::geom::PointT<float> UI_GetRecommendedSize(inkwell::Inkwell* inkwell) const;
    virtual void SetUserData(const boost::any& data);
    // An empty any if never set.
    virtual const boost::any& GetUserData() const;
    // Calls the size changed notify functions.
    virtual void UI_SizeChanged(const zebcore::geom::RectT<float>& rect);

    // Tree.

    UI_Node* UI_GetParentNode() const { return mParent; }
    // The top of the tree; a node without a parent is its own top.
    UI_Node* UI_GetRootNode() const;
    // Zero-based place among the parent's children; -1 without a parent.
    int UI_GetIndex() const;
    bool IsAncestorOf(const UI_Node* node) const;

    // State.

    const zebcore::UTF8String& UI_GetNodeID() const { return mNodeID; }
    void UI_SetNodeID(const zebcore::UTF8String& id) { mNodeID = id; }
    bool UI_IsDisabled() const { return mDisabled; }
    void UI_SetDisabled(bool disabled) { mDisabled = disabled; }
    bool UI_GetClipToSelfEnabled() const { return mClipToSelf; }
    void UI_SetClipToSelfEnabled(bool enabled) { mClipToSelf = enabled; }
    bool UI_GetToolTipAvoidsBounds() const { return mToolTipAvoidsBounds; }
    void UI_SetToolTipAvoidsBounds(bool avoids) { mToolTipAvoidsBounds = avoids; }
    const zebcore::UTF16String& UI_GetToolTip() const { return mToolTip; }
    int UI_GetToolTipWidth() const { return mToolTipWidth; }
    DrawCachePolicy UI_GetDrawCachePolicy() const { return mDrawCachePolicy; }
    void UI_SetDrawCachePolicy(DrawCachePolicy policy) { mDrawCachePolicy = policy; }
    const RedrawRecord& GetRedrawRecord() const { return mRedraw; }
    void ClearRedrawRecord() { mRedraw = RedrawRecord(); }
    StateFlags UI_GetStateFlags() const { return mStateFlags; }
    // Sets (or with set false clears) the bits of flags.
    void UI_SetStateFlags(StateFlags flags, bool set) { mStateFlags.Set(flags.GetValue(), set); }

    // Coordinates.

    zebcore::geom::PointT<float> UI_LocalToGlobalF(const zebcore::geom::PointT<float>& point) const;
    zebcore::geom::RectT<float> UI_LocalToGlobalF(const zebcore::geom::RectT<float>& rect) const;
    zebcore::geom::PointT<float> UI_GlobalToLocalF(const zebcore::geom::PointT<float>& point) const;
    zebcore::geom::RectT<float> UI_GlobalToLocalF(const zebcore::geom::RectT<float>& rect) const;

    // Drawing: the child through DeliverDraw, its origin moved to the child's frame.
    void UI_DispatchDrawToChild(const UI_Node* child, inkwell::Inkwell* inkwell) const;

    // Timers. interval is in seconds (see EventLoop); a timer repeats until removed.
    // Installing an id the node already runs starts it again. Id 0 means no timer.
    void UI_InstallTimer(float interval, int id);
    // The flag is the toolkit's choice of dropping a tick already queued; the virtual
    // clock never queues one, so both values stop the timer at once.
    void UI_RemoveTimer(int id, bool dropQueuedTick);
    // The node keeps a copy; installing one function again keeps a single copy.
    void UI_InstallTimerNotifyFunction(const TimerNotifyFunctionP& function);
    void UI_RemoveTimerNotifyFunction(const TimerNotifyFunctionP& function);

    // Hooks. The first five replace the node's one function of their kind (null removes
    // it); the last two add a listener, kept once however often it is installed.
    void UI_SetCustomDrawFunction(const CustomDrawFunctionP& function);
    void UI_SetCustomMouseEventFunction(const CustomMouseEventFunctionP& function);
    void UI_SetCustomPreMouseEventFunction(const CustomMouseEventFunctionP& function);
    void UI_SetCustomKeyboardEventFunction(const CustomKeyboardEventFunctionP& function);
    void UI_SetCustomDoCursorFunction(const CustomDoCursorFunctionP& function);
    void UI_InstallSizeChangedNotifyFunction(SizeChangedNotifyFunctionP function);
    void InstallFocusChangedFunction(FocusChangedFunctionP function);

    // What the node manager calls to hand the node an event, with the node held alive.
    // Mouse: UI_DoPreMouseEvent, then unless it took the event UI_DoMouseEvent.
    bool DeliverMouseEvent(UI_Node* target, const MouseEvent& event);
    // Keyboard: UI_DoKeyboardEvent.
    bool DeliverKeyboardEvent(UI_Node* target, const KeyboardEvent& event);
    // Cursor: the cursor hook alone.
    bool DeliverCursor(const zebcore::geom::PointT<float>& where, ModifierFlags modifiers);
    // Focus: the focus changed functions, gained or lost alike.
    void DeliverFocusChange(FocusChangeReason reason);
    // Draw: UI_Draw in the node's own coordinates (the inkwell's origin at the node's
    // top-left corner), clipped to the node's size, with the surface's state saved around
    // it. The draw pass of a tree starts here at its top.
    void DeliverDraw(inkwell::Inkwell* inkwell) const;

protected:
    // A control's own face, drawn by UI_Draw after the draw hook left the drawing to the
    // node and before the children, so they lie on top. The plain node has none.
    virtual void UI_DrawFace(inkwell::Inkwell* inkwell) const;

private:
    friend class UI_Container;

    UI_Node* mParent = nullptr;
    zebcore::geom::RectT<float> mLocalRect;
    bool mShown = true;
    bool mDisabled = false;
    bool mClipToSelf = false;
    bool mToolTipAvoidsBounds = false;
    zebcore::UTF8String mNodeID;
    zebcore::UTF16String mToolTip;
    int mToolTipWidth = 0;
    DrawCachePolicy mDrawCachePolicy = kDrawCachePolicy_Default;
    RedrawRecord mRedraw;
    StateFlags mStateFlags;
    std::unique_ptr<boost::any> mUserData;

    CustomDrawFunctionP mDrawFunction;
    CustomMouseEventFunctionP mMouseEventFunction;
    CustomMouseEventFunctionP mPreMouseEventFunction;
    CustomKeyboardEventFunctionP mKeyboardEventFunction;
    CustomDoCursorFunctionP mDoCursorFunction;
    std::vector<SizeChangedNotifyFunctionP> mSizeChangedFunctions;
    std::vector<FocusChangedFunctionP> mFocusChangedFunctions;
    std::vector<TimerNotifyFunctionP> mTimerNotifyFunctions;
};

// A counted reference that keeps node alive across a call that may drop the last other
// one. A node that nobody holds yet (count 0, still being set up) gets a null pointer:
// taking and dropping its first reference would destroy it.
template <class Node> boost::intrusive_ptr<Node> KeepNodeAlive(Node* node) {
    return boost::intrusive_ptr<Node>(node && node->GetReferenceCount() > 0 ? node : nullptr);
}

}  // namespace ui
}  // namespace zebui

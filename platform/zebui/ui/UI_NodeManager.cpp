// The node manager singleton.
#include "zebui/ui/UI_NodeManager.h"

#include <algorithm>
#include <climits>
#include <vector>

#include "os/NSWindow.h"
#include "zebui/inkwell/cairo/CairoSupplier.h"
#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/OS_Window.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_Window.h"
#include "zebui/utility/InkwellImageResourceCache.h"
#include "zebui/utility/ResourceManager.h"

namespace zebui {
namespace ui {

namespace {

using zebcore::geom::PointT;

// The event again, at a point of node's own coordinates, with another action.
MouseEvent eventFor(const UI_Node* node, const MouseEvent& global, MouseAction action) {
    return MouseEvent(action, global.GetButton(), global.GetClickCount(),
                      node->UI_GlobalToLocalF(global.GetPosition()), global.GetModKey(),
                      global.GetOSEvent(), global.GetMouseWheelDelta(), global.GetMouseWheelAxis(),
                      global.GetMagnification(), global.GetRotation(), global.GetSwipeDirection(),
                      global.GetGesturePhase());
}

bool reachable(const UI_Node* node) {
    return node->UI_IsShown() && !node->UI_IsDisabled();
}

// The topmost reachable node of node's subtree under global, or null. A node that passes
// the mouse is never the target itself: the search goes on to what lies beneath it.
UI_Node* hitIn(UI_Node* node, const PointT<float>& global) {
    if (!reachable(node)) return nullptr;
    const zebcore::geom::RectT<float> frame(node->UI_LocalToGlobalF(PointT<float>(0, 0)),
                                            node->UI_GetLocalRectF(false).GetSize());
    if (!frame.Contains(global)) return nullptr;
    for (unsigned long i = node->ChildSize(); i-- > 0;)
        if (UI_Node* hit = hitIn(node->ChildGet(i).get(), global)) return hit;
    return node->UI_GetStateFlags().IsSet(UI_Node::kStateFlag_PassesMouse) ? nullptr : node;
}

// Nodes of the tree under node that the tab key visits, depth first.
void collectTabStops(UI_Node* node, std::vector<UI_Node*>& stops) {
    if (!reachable(node)) return;
    stops.push_back(node);
    for (auto it = node->ChildBegin(); it != node->ChildEnd(); ++it)
        collectTabStops(it->get(), stops);
}

}  // namespace

UI_NodeManager* UI_NodeManager::Get(bool) {
    // Never destroyed, so a node that dies during static destruction still finds it.
    static UI_NodeManager* sManager = new UI_NodeManager;
    return sManager;
}

int UI_NodeManager::GetUniqueTimerID() {
    mLastTimerID = mLastTimerID == INT_MAX ? 1 : mLastTimerID + 1;
    return mLastTimerID;
}

bool UI_NodeManager::SetKeyboardFocus(UI_Node* node, FocusChangeReason reason) {
    if (node && node->UI_IsDisabled()) return false;
    if (node == mFocus) return true;
    UI_Node* lost = mFocus;
    const auto keepLost = KeepNodeAlive(lost);
    const auto keepGained = KeepNodeAlive(node);
    mFocus = node;
    if (lost) lost->DeliverFocusChange(reason);
    if (node) node->DeliverFocusChange(reason);
    return true;
}

bool UI_NodeManager::DispatchMouseEvent(UI_Node* target, const MouseEvent& event) {
    if (!target) return false;
    const auto keep = KeepNodeAlive(target);
    if (event.GetAction() == kMouseAction_Exit) {
        if (mMouseOver == target) mMouseOver = nullptr;
    } else {
        mMouseOver = target;
    }
    return target->DeliverMouseEvent(target, event);
}

boost::intrusive_ptr<UI_Node> UI_NodeManager::DispatchMouseEventAt(UI_Node* root,
                                                                   const MouseEvent& event) {
    if (!root || IsHeldBackByModal(root)) return nullptr;
    const auto keepRoot = KeepNodeAlive(root);
    const MouseAction action = event.GetAction();
    if (action == kMouseAction_Down) {
        // A press in an inactive window activates it first, as a click on the screen does.
        auto* window = dynamic_cast<UI_Window*>(root->UI_GetRootNode());
        if (window && !window->IsActive()) window->ActivateByClick();
    }
    UI_Node* target =
        mCapture && root->UI_GetRootNode() == mCapture->UI_GetRootNode() ? mCapture : nullptr;
    if (!target) {
        target = HitTest(root, event.GetPosition());
        if (action == kMouseAction_Move || action == kMouseAction_Drag)
            moveMouseOver(target, event);
    }
    const auto keepTarget = KeepNodeAlive(target);
    const boost::intrusive_ptr<UI_Node> taker =
        target ? offerAlongChain(root, target, event) : nullptr;
    if (action == kMouseAction_Down && taker) {
        mCapture = taker.get();
        taker->UI_GainKeyboardFocus(kFocusChangeReason_Mouse);
    } else if (action == kMouseAction_Up) {
        mCapture = nullptr;
    } else if (action == kMouseAction_Move && !mCapture) {
        for (UI_Node* node = target; node; node = node->UI_GetParentNode()) {
            const auto keep = KeepNodeAlive(node);
            if (node->DeliverCursor(node->UI_GlobalToLocalF(event.GetPosition()),
                                    event.GetModKey()) ||
                node == root)
                break;
        }
    }
    return taker;
}

UI_Node* UI_NodeManager::HitTest(UI_Node* root, const PointT<float>& global) const {
    return root ? hitIn(root, global) : nullptr;
}

boost::intrusive_ptr<UI_Node> UI_NodeManager::offerAlongChain(UI_Node* root, UI_Node* target,
                                                              const MouseEvent& global) {
    for (UI_Node* node = target; node; node = node->UI_GetParentNode()) {
        const auto keep = KeepNodeAlive(node);
        if (node->DeliverMouseEvent(target, eventFor(node, global, global.GetAction())))
            return keep;
        if (node == root) break;
    }
    return nullptr;
}

void UI_NodeManager::moveMouseOver(UI_Node* node, const MouseEvent& global) {
    if (node == mMouseOver) return;
    if (UI_Node* left = mMouseOver) {
        const auto keep = KeepNodeAlive(left);
        DispatchMouseEvent(left, eventFor(left, global, kMouseAction_Exit));
    }
    if (node) DispatchMouseEvent(node, eventFor(node, global, kMouseAction_Enter));
}

boost::intrusive_ptr<UI_Node> UI_NodeManager::DispatchKeyboardEvent(UI_Node* target,
                                                                    const KeyboardEvent& event) {
    if (!target) target = mFocus;
    if (target && IsHeldBackByModal(target)) return nullptr;
    const auto keepTarget = KeepNodeAlive(target);
    for (UI_Node* node = target; node;) {
        const auto keep = KeepNodeAlive(node);
        if (node->DeliverKeyboardEvent(target, event)) return keep;
        node = node->UI_GetParentNode();
    }
    if (target && event.GetAction() == kKeyboardAction_Down &&
        event.GetCode().GetValue(true) == kKeyCode_Tab)
        return moveFocusByTab(target, event.GetModKey().IsSet(kModifierKey_Shift));
    return nullptr;
}

boost::intrusive_ptr<UI_Node> UI_NodeManager::moveFocusByTab(UI_Node* from, bool backward) {
    std::vector<UI_Node*> stops;
    collectTabStops(from->UI_GetRootNode(), stops);
    if (stops.empty()) return nullptr;
    const auto at = std::find(stops.begin(), stops.end(), from);
    const long count = static_cast<long>(stops.size());
    const long index = at == stops.end() ? (backward ? 0 : -1) : at - stops.begin();
    const auto next =
        KeepNodeAlive(stops[static_cast<size_t>((index + (backward ? count - 1 : 1)) % count)]);
    SetKeyboardFocus(next.get(),
                     backward ? kFocusChangeReason_TabBackward : kFocusChangeReason_TabForward);
    return next;
}

bool UI_NodeManager::DispatchCursor(UI_Node* target, const zebcore::geom::PointT<float>& where,
                                    ModifierFlags modifiers) {
    return target && target->DeliverCursor(where, modifiers);
}

void UI_NodeManager::PushModalWindow(UI_Window* window) {
    if (window) mModalWindows.push_back(window);
}

void UI_NodeManager::PopModalWindow(UI_Window* window) {
    const auto found = std::find(mModalWindows.rbegin(), mModalWindows.rend(), window);
    if (found != mModalWindows.rend()) mModalWindows.erase(std::next(found).base());
}

UI_Window* UI_NodeManager::GetModalWindow() const {
    return mModalWindows.empty() ? nullptr : mModalWindows.back();
}

bool UI_NodeManager::IsHeldBackByModal(const UI_Node* root) const {
    const UI_Window* modal = GetModalWindow();
    if (!modal || !root) return false;
    const UI_Node* top = root->UI_GetRootNode();
    if (top == modal) return false;
    const auto* window = dynamic_cast<const OS_Window*>(top);
    const NSWindow* platform = window ? window->GetPlatformWindow() : nullptr;
    return !(platform && platform->worksWhenModal());
}

void UI_NodeManager::NodeDestroyed(const UI_Node* node) {
    mModalWindows.erase(std::remove_if(mModalWindows.begin(), mModalWindows.end(),
                                       [node](const UI_Window* w) {
                                           return static_cast<const UI_Node*>(w) == node;
                                       }),
                        mModalWindows.end());
    if (mFocus == node) mFocus = nullptr;
    if (mMouseOver == node) mMouseOver = nullptr;
    if (mCapture == node) mCapture = nullptr;
}

inkwell::SupplierInterface* UI_NodeManager::GetDefaultSupplier() const {
    // Never destroyed, like the manager: surfaces made from it may outlive static teardown.
    static inkwell::CairoSupplier* sHeadlessSupplier = new inkwell::CairoSupplier;
    return mDefaultSupplier ? mDefaultSupplier : sHeadlessSupplier;
}

void UI_NodeManager::SetDefaultSupplier(inkwell::SupplierInterface* supplier) {
    mDefaultSupplier = supplier;
}

// Never destroyed, like the manager.
utility::ResourceManager* UI_NodeManager::GetResourceManager() const {
    static auto* sResources = new utility::ResourceManager(u"zebui");
    return sResources;
}

utility::InkwellImageResourceCache* UI_NodeManager::GetInkwellImageResourceCache() const {
    static auto* sImages = new utility::InkwellImageResourceCache;
    return sImages;
}

}  // namespace ui
}  // namespace zebui

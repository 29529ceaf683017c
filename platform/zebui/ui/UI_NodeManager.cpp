// The node manager singleton.
#include "zebui/ui/UI_NodeManager.h"

#include <climits>

#include "zebui/inkwell/cairo/CairoSupplier.h"
#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/utility/InkwellImageResourceCache.h"
#include "zebui/utility/ResourceManager.h"

namespace zebui {
namespace ui {

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

bool UI_NodeManager::DispatchKeyboardEvent(UI_Node* target, const KeyboardEvent& event) {
    if (!target) target = mFocus;
    const auto keepTarget = KeepNodeAlive(target);
    for (UI_Node* node = target; node;) {
        const auto keep = KeepNodeAlive(node);
        if (node->DeliverKeyboardEvent(target, event)) return true;
        node = node->UI_GetParentNode();
    }
    return false;
}

bool UI_NodeManager::DispatchCursor(UI_Node* target, const zebcore::geom::PointT<float>& where,
                                    ModifierFlags modifiers) {
    return target && target->DeliverCursor(where, modifiers);
}

void UI_NodeManager::NodeDestroyed(const UI_Node* node) {
    if (mFocus == node) mFocus = nullptr;
    if (mMouseOver == node) mMouseOver = nullptr;
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

// A row of tabs.
#include "zebui/controls/UI_TabWell.h"

#include <algorithm>

#include <boost/function.hpp>

#include "zebui/controls/ControlFace.h"
#include "zebui/controls/UI_TabItem.h"
#include "zebui/ui/MouseEvent.h"

namespace zebui {
namespace controls {

using zebcore::geom::PointT;
using zebcore::geom::RectT;

namespace {

RectT<int> wholeUnits(const RectT<float>& rect) {
    return RectT<int>(static_cast<int>(rect.left), static_cast<int>(rect.top),
                      static_cast<int>(rect.width), static_cast<int>(rect.height));
}

}  // namespace

UI_TabWell::UI_TabWell() : UI_TabWell(nullptr, false) {}

UI_TabWell::UI_TabWell(const TabItemActionFunctionP& actionFunction, bool showTabsOnly)
    : mActionFunction(actionFunction), mShowTabsOnly(showTabsOnly) {}

UI_TabWell::~UI_TabWell() = default;

UI_TabItem* UI_TabWell::AddTab(int index, const zebcore::UTF16String& text, bool closable,
                               bool frontmost, bool) {
    const int at = std::min(std::max(index, 0), GetTabCount());
    if (!mTabs) {
        mTabs = new ui::UI_SubView();
        mTabs->UI_SetLayoutsChildren(false);
        ChildPushBack(mTabs);
    }
    const boost::intrusive_ptr<UI_TabItem> tab(new UI_TabItem(text, closable));
    mTabs->ChildPushBack(tab);
    mTabs->ChildMove(mTabs->ChildSize() - 1, static_cast<unsigned long>(at));
    layoutTabs();
    if (frontmost) SetFrontmost(at);
    return tab.get();
}

boost::intrusive_ptr<UI_TabItem> UI_TabWell::RemoveTab(int index) {
    const boost::intrusive_ptr<UI_TabItem> tab(GetTabItem(index));
    if (!tab) return tab;
    tab->SetFrontmost(false);
    mTabs->ChildRemove(tab);
    layoutTabs();
    return tab;
}

UI_TabItem* UI_TabWell::GetTabItem(int index) const {
    if (index < 0 || index >= GetTabCount()) return nullptr;
    return dynamic_cast<UI_TabItem*>(mTabs->ChildGet(static_cast<unsigned long>(index)).get());
}

int UI_TabWell::GetTabCount() const {
    return mTabs ? static_cast<int>(mTabs->ChildSize()) : 0;
}

void UI_TabWell::SetFrontmost(int index) {
    const boost::intrusive_ptr<UI_TabItem> tab(GetTabItem(index));
    const int before = GetFrontmost();
    if (!tab || before == index) return;
    const auto keep = ui::KeepNodeAlive(this);
    if (UI_TabItem* old = GetTabItem(before)) old->SetFrontmost(false);
    tab->SetFrontmost(true);
    if (before >= 0) sendAction(kTabItemAction_BecomeNonFrontmost, before, nullptr);
    sendAction(kTabItemAction_BecomeFrontmost, index, nullptr);
}

int UI_TabWell::GetFrontmost() const {
    for (int index = 0; index < GetTabCount(); ++index)
        if (GetTabItem(index)->IsFrontmost()) return index;
    return -1;
}

void UI_TabWell::SetShowTabsOnly(bool tabsOnly) {
    mShowTabsOnly = tabsOnly;
    UI_Invalidate(nullptr, 0);
}

bool UI_TabWell::UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) {
    if (ui::UI_SubView::UI_DoMouseEvent(target, event)) return true;
    if (event.GetAction() != ui::kMouseAction_Down) return false;
    const int index = tabIndexOf(target);
    if (index < 0) return false;
    const auto keep = ui::KeepNodeAlive(this);
    const RectT<float> frame =
        target->UI_GetLocalRectF(false).Offset(mTabs->UI_GetLocalRectF(false).GetOrigin());
    const RectT<int> rect = wholeUnits(frame);
    if (event.GetButton() == ui::kMouseButton_Right) {
        sendAction(kTabItemAction_ContextMenu, index, &rect);
        return true;
    }
    if (event.GetButton() != ui::kMouseButton_Left) return false;
    const PointT<float> inTab = event.GetPosition() - frame.GetOrigin();
    if (GetTabItem(index)->GetCloseBoxRect().Contains(inTab)) {
        sendAction(kTabItemAction_Close, index, &rect);
        return true;
    }
    sendAction(kTabItemAction_Click, index, nullptr);
    SetFrontmost(index);
    return true;
}

void UI_TabWell::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    if (mShowTabsOnly) return;
    const RectT<float> bounds = face::Bounds(*this);
    face::FrameRect(inkwell,
                    RectT<float>(0, kTabStripHeight - 1, bounds.width,
                                 std::max(0.0f, bounds.height - kTabStripHeight + 1)),
                    face::kFieldFill, face::kFaceEdge);
}

void UI_TabWell::UI_LayoutChildrenForSize(const PointT<float>& before, const PointT<float>& after) {
    ui::UI_SubView::UI_LayoutChildrenForSize(before, after);
    layoutTabs();
}

// The frames' size listeners may run script, so the strip and its tabs are held.
void UI_TabWell::layoutTabs() {
    const auto keep = ui::KeepNodeAlive(this);
    const boost::intrusive_ptr<ui::UI_SubView> strip = mTabs;
    if (!strip) return;
    strip->UI_SetLocalRectF(RectT<float>(0, 0, UI_GetLocalRectF(false).width, kTabStripHeight));
    float left = 0;
    for (const auto& tab : ui::HeldChildren(*strip)) {
        tab->UI_SetLocalRectF(RectT<float>(left, 0, kTabWidth, kTabStripHeight));
        left += kTabWidth;
    }
}

void UI_TabWell::sendAction(TabItemAction action, int index, const RectT<int>* rect) {
    const TabItemActionFunctionP function = mActionFunction;
    if (function && !function->empty()) (*function)(action, index, rect);
}

int UI_TabWell::tabIndexOf(const ui::UI_Node* target) const {
    if (!target || !mTabs || target->UI_GetParentNode() != mTabs.get()) return -1;
    return target->UI_GetIndex();
}

}  // namespace controls
}  // namespace zebui

// A view with a titled section that opens and closes.
#include "zebui/controls/UI_SectionView.h"

#include <algorithm>
#include <cmath>

#include <boost/function.hpp>

#include "zebui/controls/ControlFace.h"
#include "zebui/ui/MouseEvent.h"

namespace zebui {
namespace controls {

using zebcore::geom::PointT;
using zebcore::geom::RectT;

UI_SectionView::UI_SectionView(const zebcore::UTF16String& title, bool opened)
    : mTitle(title), mOpened(opened) {}

UI_SectionView::~UI_SectionView() = default;

// The callbacks may run script that drops the view's last other reference or adds
// callbacks, so the view is held and the list copied.
void UI_SectionView::SetOpened(bool opened) {
    if (opened == mOpened) return;
    const auto keep = ui::KeepNodeAlive(this);
    mOpened = opened;
    showContent();
    UI_Invalidate(nullptr, 0);
    const std::vector<OpenedStateChangedFunctionP> calling = mOpenedCallbacks;
    for (const auto& callback : calling)
        if (callback && !callback->empty()) (*callback)(this);
}

void UI_SectionView::SetDrawGradientHeader(bool draw) {
    mDrawGradientHeader = draw;
}

void UI_SectionView::SetHeaderHeight(float height) {
    mHeaderHeight = std::isnan(height) ? 0.0f : std::max(0.0f, height);
    placeLabelView();
}

void UI_SectionView::SetShowCustomLabelView(bool show) {
    mShowCustomLabelView = show;
    if (show && !mCustomLabelView) {
        mCustomLabelView = new ui::UI_SubView();
        ChildPushBack(mCustomLabelView);
    }
    if (mCustomLabelView) mCustomLabelView->UI_Show(show);
    placeLabelView();
}

void UI_SectionView::AddOpenedStateChangedCallback(const OpenedStateChangedFunctionP& callback) {
    if (callback) mOpenedCallbacks.push_back(callback);
}

bool UI_SectionView::UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) {
    if (ui::UI_SubView::UI_DoMouseEvent(target, event)) return true;
    if (event.GetAction() != ui::kMouseAction_Down || event.GetButton() != ui::kMouseButton_Left)
        return false;
    if (target != this || event.GetPosition().y >= mHeaderHeight) return false;
    SetOpened(!mOpened);
    return true;
}

void UI_SectionView::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const RectT<float> header(0, 0, face::Bounds(*this).width, mHeaderHeight);
    face::FrameRect(inkwell, header, mDrawGradientHeader ? face::kFieldFill : face::kFaceFill,
                    face::kFaceEdge);
    if (mShowCustomLabelView) return;
    face::DrawText(inkwell, mTitle, RectT<float>(6, 0, header.width - 12, header.height),
                   inkwell::kTextAlignment_Left);
}

void UI_SectionView::UI_LayoutChildrenForSize(const PointT<float>& before,
                                              const PointT<float>& after) {
    ui::UI_SubView::UI_LayoutChildrenForSize(before, after);
    placeLabelView();
}

void UI_SectionView::showContent() {
    for (const auto& child : ui::HeldChildren(*this))
        if (child != mCustomLabelView) child->UI_Show(mOpened);
}

void UI_SectionView::placeLabelView() {
    const boost::intrusive_ptr<ui::UI_SubView> label = mCustomLabelView;
    if (label && label->UI_GetParentNode() == this)
        label->UI_SetLocalRectF(RectT<float>(0, 0, UI_GetLocalRectF(false).width, mHeaderHeight));
}

}  // namespace controls
}  // namespace zebui

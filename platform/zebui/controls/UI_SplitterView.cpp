// A view split in two panes by a movable bar.
#include "zebui/controls/UI_SplitterView.h"

#include <algorithm>
#include <cmath>

#include <boost/function.hpp>

#include "zebui/controls/ControlFace.h"
#include "zebui/ui/MouseEvent.h"

namespace zebui {
namespace controls {

using zebcore::geom::PointT;
using zebcore::geom::RectT;

namespace {

float clampShare(float split) {
    return std::isnan(split) ? 0.0f : std::min(1.0f, std::max(0.0f, split));
}

}  // namespace

UI_SplitterView::UI_SplitterView(int direction, float split, float barWidth)
    : mDirection(direction), mSplit(clampShare(split)), mBarWidth(barWidth) {}

UI_SplitterView::~UI_SplitterView() = default;

void UI_SplitterView::SetSplitDirection(int direction) {
    mDirection = direction == 0 ? 0 : 1;
    layoutPanes();
}

// The validation function may run script that drops the view's last other reference.
void UI_SplitterView::SetSplitPercentage(float split) {
    const auto keep = ui::KeepNodeAlive(this);
    const SplitValidationFunctionP validation = mValidation;
    if (validation && !validation->empty()) split = (*validation)(split);
    mSplit = clampShare(split);
    layoutPanes();
    UI_Invalidate(nullptr, 0);
}

void UI_SplitterView::SetTopLeftView(const boost::intrusive_ptr<ui::UI_Node>& view) {
    setPane(mTopLeft, view);
}

void UI_SplitterView::SetBottomRightView(const boost::intrusive_ptr<ui::UI_Node>& view) {
    setPane(mBottomRight, view);
}

void UI_SplitterView::SetSplitValidationFunction(const SplitValidationFunctionP& function) {
    mValidation = function;
}

RectT<float> UI_SplitterView::GetBarRect() const {
    const PointT<float> size = UI_GetLocalRectF(false).GetSize();
    return mDirection == 0 ? RectT<float>(size.x * mSplit - mBarWidth / 2, 0, mBarWidth, size.y)
                           : RectT<float>(0, size.y * mSplit - mBarWidth / 2, size.x, mBarWidth);
}

bool UI_SplitterView::UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) {
    if (ui::UI_SubView::UI_DoMouseEvent(target, event)) return true;
    switch (event.GetAction()) {
    case ui::kMouseAction_Down:
        mDragging = target == this && event.GetButton() == ui::kMouseButton_Left &&
                    GetBarRect().Contains(event.GetPosition());
        return mDragging;
    case ui::kMouseAction_Drag:
        if (!mDragging) return false;
        SetSplitPercentage(splitAt(event.GetPosition()));
        return true;
    case ui::kMouseAction_Up:
        if (!mDragging) return false;
        mDragging = false;
        return true;
    default:
        return false;
    }
}

void UI_SplitterView::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    face::FrameRect(inkwell, GetBarRect(), face::kFaceFill, face::kFaceEdge);
}

void UI_SplitterView::UI_LayoutChildrenForSize(const PointT<float>& before,
                                               const PointT<float>& after) {
    ui::UI_SubView::UI_LayoutChildrenForSize(before, after);
    layoutPanes();
}

void UI_SplitterView::setPane(boost::intrusive_ptr<ui::UI_Node>& pane,
                              const boost::intrusive_ptr<ui::UI_Node>& view) {
    if (pane == view) return;
    const boost::intrusive_ptr<ui::UI_Node> old = pane;
    pane = view;
    if (old && old->UI_GetParentNode() == this) ChildRemove(old);
    if (view && view->UI_GetParentNode() != this) ChildPushBack(view);
    layoutPanes();
}

// Sets the panes' frames, each of which may run its size listeners, so both are held.
void UI_SplitterView::layoutPanes() {
    const auto keep = ui::KeepNodeAlive(this);
    const boost::intrusive_ptr<ui::UI_Node> first = mTopLeft;
    const boost::intrusive_ptr<ui::UI_Node> second = mBottomRight;
    const PointT<float> size = UI_GetLocalRectF(false).GetSize();
    const RectT<float> bar = GetBarRect();
    RectT<float> firstFrame, secondFrame;
    if (mDirection == 0) {
        firstFrame = RectT<float>(0, 0, std::max(0.0f, bar.left), size.y);
        secondFrame = RectT<float>(bar.Right(), 0, std::max(0.0f, size.x - bar.Right()), size.y);
    } else {
        firstFrame = RectT<float>(0, 0, size.x, std::max(0.0f, bar.top));
        secondFrame = RectT<float>(0, bar.Bottom(), size.x, std::max(0.0f, size.y - bar.Bottom()));
    }
    if (first && first->UI_GetParentNode() == this) first->UI_SetLocalRectF(firstFrame);
    if (second && second->UI_GetParentNode() == this) second->UI_SetLocalRectF(secondFrame);
}

float UI_SplitterView::splitAt(const PointT<float>& point) const {
    const PointT<float> size = UI_GetLocalRectF(false).GetSize();
    const float along = mDirection == 0 ? point.x : point.y;
    const float extent = mDirection == 0 ? size.x : size.y;
    return extent > 0 ? along / extent : mSplit;
}

}  // namespace controls
}  // namespace zebui

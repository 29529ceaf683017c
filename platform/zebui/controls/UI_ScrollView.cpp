// A view that scrolls a content view.
#include "zebui/controls/UI_ScrollView.h"

#include <algorithm>
#include <cmath>

#include "zebui/controls/UI_ScrollBar.h"

namespace zebui {
namespace controls {

using zebcore::geom::PointT;
using zebcore::geom::RectT;

namespace {

// The least move along one axis that brings [low, high) into [0, extent): the low end
// wins when the span is the larger.
float leastMove(float low, float high, float extent) {
    if (low < 0) return -low;
    if (high > extent) return std::max(extent - high, -low);
    return 0;
}

// The move clipped so that [contentLow, contentHigh) still covers [0, extent) where it can.
float keepCovering(float move, float contentLow, float contentHigh, float extent) {
    const float lowest = std::min(0.0f, extent - contentHigh);  // the content's right end
    const float highest = std::max(0.0f, -contentLow);          // its left end
    return std::min(highest, std::max(lowest, move));
}

float positive(float value) {
    return std::isfinite(value) && value > 0 ? value : 1.0f;
}

}  // namespace

UI_ScrollView::UI_ScrollView(ScrollFlags flags,
                             const boost::intrusive_ptr<ui::UI_SubView>& contentView)
    : mFlags(flags), mContentView(contentView) {
    if (contentView) {
        ChildPushBack(contentView);
        mContentRect = contentView->UI_GetLocalRectF(false);
        mScrollOffset = PointT<float>(-mContentRect.left, -mContentRect.top);
    }
    if (flags.IsSet(kScrollFlag_HorizontalBar)) {
        mBarX = new UI_ScrollBar();
        ChildPushBack(mBarX);
    }
    if (flags.IsSet(kScrollFlag_VerticalBar)) {
        mBarY = new UI_ScrollBar();
        ChildPushBack(mBarY);
    }
}

UI_ScrollView::~UI_ScrollView() = default;

RectT<float> UI_ScrollView::GetContentRectF() const {
    return hasContentChild() ? mContentView->UI_GetLocalRectF(false) : mContentRect;
}

// The content view's size listeners and the change functions run script, so the view and
// its content are held.
void UI_ScrollView::SetContentRectF(const RectT<float>& rect) {
    const auto keep = ui::KeepNodeAlive(this);
    mContentRect = rect;
    const boost::intrusive_ptr<ui::UI_SubView> content = mContentView;
    if (hasContentChild()) content->UI_SetLocalRectF(rect);
    UI_Invalidate(nullptr, 0);
    ChangeValue(mScrollOffset, PointT<float>(-rect.left, -rect.top));
}

RectT<float> UI_ScrollView::GetViewableRectF() const {
    const PointT<float> size = UI_GetLocalRectF(false).GetSize();
    const float barX = mBarX ? mBarSize : 0;
    const float barY = mBarY ? mBarSize : 0;
    return RectT<float>(0, 0, std::max(0.0f, size.x - barY), std::max(0.0f, size.y - barX));
}

RectT<float> UI_ScrollView::GetViewedContentRectF() const {
    const RectT<float> viewable = GetViewableRectF();
    const RectT<float> content = GetContentRectF();
    const float scaleX = positive(mScale.x), scaleY = positive(mScale.y);
    return RectT<float>((viewable.left - content.left) / scaleX,
                        (viewable.top - content.top) / scaleY, viewable.width / scaleX,
                        viewable.height / scaleY);
}

void UI_ScrollView::ScrollIntoView(const RectT<float>& rect, bool keepInContent) {
    const RectT<float> viewable = GetViewableRectF();
    const RectT<float> content = GetContentRectF();
    const float scaleX = positive(mScale.x), scaleY = positive(mScale.y);
    const float left = content.left + rect.left * scaleX;
    const float top = content.top + rect.top * scaleY;
    float moveX = leastMove(left, left + rect.width * scaleX, viewable.width);
    float moveY = leastMove(top, top + rect.height * scaleY, viewable.height);
    if (keepInContent) {
        moveX = keepCovering(moveX, content.left, content.Right(), viewable.width);
        moveY = keepCovering(moveY, content.top, content.Bottom(), viewable.height);
    }
    if (moveX == 0 && moveY == 0) return;
    SetContentRectF(content.Offset(PointT<float>(moveX, moveY)));
}

void UI_ScrollView::SetScale(const PointT<float>& scale) {
    mScale = scale;
    UI_Invalidate(nullptr, 0);
}

void UI_ScrollView::SetScrollBarSize(float size) {
    mBarSize = std::isfinite(size) ? std::max(0.0f, size) : kDefaultScrollBarSize;
    Update();
}

// Each bar's size listeners may run script, so the bars are held.
void UI_ScrollView::Update() {
    const auto keep = ui::KeepNodeAlive(this);
    const RectT<float> viewable = GetViewableRectF();
    const boost::intrusive_ptr<UI_ScrollBar> barX = mBarX, barY = mBarY;
    if (barX && barX->UI_GetParentNode() == this)
        barX->UI_SetLocalRectF(RectT<float>(0, viewable.height, viewable.width, mBarSize));
    if (barY && barY->UI_GetParentNode() == this)
        barY->UI_SetLocalRectF(RectT<float>(viewable.width, 0, mBarSize, viewable.height));
    UI_Invalidate(nullptr, 0);
}

// The content keeps its place: only the bars follow the new size.
void UI_ScrollView::UI_LayoutChildrenForSize(const PointT<float>&, const PointT<float>&) {
    Update();
}

bool UI_ScrollView::hasContentChild() const {
    return mContentView && mContentView->UI_GetParentNode() == this;
}

}  // namespace controls
}  // namespace zebui

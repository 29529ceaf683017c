// A scroll bar.
#include "zebui/controls/UI_ScrollBar.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_ScrollBar::UI_ScrollBar() = default;

UI_ScrollBar::~UI_ScrollBar() = default;

void UI_ScrollBar::SetValue(const Pair& value) {
    if (std::isnan(value.first) || std::isnan(value.second)) return;
    const Pair extent = GetExtent();
    const float length =
        std::min(std::fabs(value.second - value.first), extent.second - extent.first);
    // The lower end wins where the extent's span overflows to infinity.
    const float start = std::max(
        extent.first, std::min(std::min(value.first, value.second), extent.second - length));
    ChangeValue(mValue, Pair(start, start + length));
}

UI_ScrollBar::Pair UI_ScrollBar::GetValueRange() const {
    const Pair extent = GetExtent();
    return Pair(extent.first, extent.second - (mValue.second - mValue.first));
}

void UI_ScrollBar::DoScroll(bool forward, bool byPage, float amount) {
    const float step = byPage ? amount * (mValue.second - mValue.first) : amount;
    const float delta = forward ? step : -step;
    SetValue(Pair(mValue.first + delta, mValue.second + delta));
}

void UI_ScrollBar::ExtentChanged() {
    SetValue(mValue);
}

void UI_ScrollBar::UI_TrackPointer(InteractiveChangePhase phase,
                                   const zebcore::geom::PointT<float>& where) {
    const float along = AlongAxis(where);
    if (phase == kInteractiveChange_Begin) {
        mDrag = DragStart{zebcore::geom::PointT<float>(along, 0), mValue.first};
        return;
    }
    const float length = AxisLength();
    if (!(length > 0)) return;
    const Pair extent = GetExtent();
    const float moved = (along - mDrag.where.x) / length * (extent.second - extent.first);
    const float start = static_cast<float>(mDrag.value) + moved;  // a float's value, kept exactly
    SetValue(Pair(start, start + (mValue.second - mValue.first)));
}

void UI_ScrollBar::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    face::FrameRect(inkwell, bounds, face::kFieldFill, face::kFaceEdge);
    const Pair extent = GetExtent();
    const float span = extent.second - extent.first;
    if (!(span > 0) || !std::isfinite(span)) return;
    const float length = AxisLength();
    const float from = (mValue.first - extent.first) / span * length;
    const float size = std::max((mValue.second - mValue.first) / span * length, 4.0f);
    if (IsHorizontal())
        face::FrameRect(inkwell, {from, 0, size, bounds.height}, face::kFaceFill, face::kFaceEdge);
    else
        face::FrameRect(inkwell, {0, bounds.height - from - size, bounds.width, size},
                        face::kFaceFill, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui

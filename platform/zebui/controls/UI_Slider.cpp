// A linear slider.
#include "zebui/controls/UI_Slider.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {
namespace {

constexpr float kThumbSize = 8.0f;
constexpr float kGrooveWidth = 4.0f;

}  // namespace

UI_Slider::UI_Slider() = default;

UI_Slider::~UI_Slider() = default;

void UI_Slider::SetValue(double value) {
    if (std::isnan(value)) return;
    const Pair extent = GetExtent();
    ChangeValue(mValue, std::clamp(value, extent.first, extent.second));
}

void UI_Slider::ExtentChanged() {
    SetValue(mValue);
}

void UI_Slider::UI_TrackPointer(InteractiveChangePhase, const zebcore::geom::PointT<float>& where) {
    const float length = AxisLength();
    if (!(length > 0)) return;
    const Pair extent = GetExtent();
    const double share = std::clamp(double(AlongAxis(where)) / length, 0.0, 1.0);
    SetValue(extent.first + share * (extent.second - extent.first));
}

void UI_Slider::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const Pair extent = GetExtent();
    const double span = extent.second - extent.first;
    const double share = span > 0 && std::isfinite(span) ? (mValue - extent.first) / span : 0;
    const float along = float(share) * (AxisLength() - kThumbSize);
    if (IsHorizontal()) {
        const float middle = bounds.height / 2;
        face::FrameRect(inkwell, {0, middle - kGrooveWidth / 2, bounds.width, kGrooveWidth},
                        face::kFieldFill, face::kFaceEdge);
        face::FrameRect(inkwell, {along, 0, kThumbSize, bounds.height}, face::kAccent,
                        face::kFaceEdge);
    } else {
        const float middle = bounds.width / 2;
        face::FrameRect(inkwell, {middle - kGrooveWidth / 2, 0, kGrooveWidth, bounds.height},
                        face::kFieldFill, face::kFaceEdge);
        face::FrameRect(inkwell, {0, bounds.height - kThumbSize - along, bounds.width, kThumbSize},
                        face::kAccent, face::kFaceEdge);
    }
}

}  // namespace controls
}  // namespace zebui

// A rotary control.
#include "zebui/controls/UI_Knob.h"

#include <algorithm>
#include <cmath>

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_Knob::UI_Knob() = default;

UI_Knob::~UI_Knob() = default;

void UI_Knob::SetValue(double value) {
    if (std::isnan(value)) return;
    ChangeValue(mValue, mRange.Clamp(value));
}

void UI_Knob::SetMinValue(double minimum) {
    if (mRange.SetMinimum(minimum)) SetValue(mValue);  // within the new bounds
}

void UI_Knob::SetMaxValue(double maximum) {
    if (mRange.SetMaximum(maximum)) SetValue(mValue);
}

void UI_Knob::UI_TrackPointer(InteractiveChangePhase phase,
                              const zebcore::geom::PointT<float>& where) {
    if (phase == kInteractiveChange_Begin) {
        mDrag = DragStart{where, mValue};
        return;
    }
    const double span = mRange.GetMaximum() - mRange.GetMinimum();
    const double value = mDrag.value + mDrag.Travel(where) / kUnitsPerRange * span;
    if (std::isfinite(value)) SetValue(value);
}

void UI_Knob::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const float radius = std::min(bounds.width, bounds.height) / 2;
    const zebcore::geom::PointT<float> centre(bounds.width / 2, bounds.height / 2);
    face::FrameCircle(inkwell, centre, radius, face::kFaceFill, face::kFaceEdge);
    const double span = mRange.GetMaximum() - mRange.GetMinimum();
    const double share =
        span > 0 && std::isfinite(span) ? (mValue - mRange.GetMinimum()) / span : 0;
    const double radians = (share - 0.5) * kSweepDegrees * M_PI / 180.0;
    const zebcore::geom::PointT<float> dot(centre.x + float(std::sin(radians)) * radius / 2,
                                           centre.y - float(std::cos(radians)) * radius / 2);
    face::FrameCircle(inkwell, dot, radius / 5, face::kAccent, face::kAccent);
}

}  // namespace controls
}  // namespace zebui

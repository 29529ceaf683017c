// A radio button.
#include "zebui/controls/UI_RadioButton.h"

#include <algorithm>

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_RadioButton::UI_RadioButton() = default;

UI_RadioButton::~UI_RadioButton() = default;

void UI_RadioButton::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const float radius = std::min(bounds.height, 14.0f) / 2;
    face::FrameCircle(inkwell, zebcore::geom::PointT<float>(radius, bounds.height / 2), radius,
                      face::kFieldFill, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui

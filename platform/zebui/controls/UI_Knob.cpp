// A rotary control.
#include "zebui/controls/UI_Knob.h"

#include <algorithm>

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_Knob::UI_Knob() = default;

UI_Knob::~UI_Knob() = default;

void UI_Knob::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const float radius = std::min(bounds.width, bounds.height) / 2;
    const zebcore::geom::PointT<float> centre(bounds.width / 2, bounds.height / 2);
    face::FrameCircle(inkwell, centre, radius, face::kFaceFill, face::kFaceEdge);
    face::FrameCircle(inkwell, zebcore::geom::PointT<float>(centre.x, centre.y - radius / 2),
                      radius / 5, face::kAccent, face::kAccent);
}

}  // namespace controls
}  // namespace zebui

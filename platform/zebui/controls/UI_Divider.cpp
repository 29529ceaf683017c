// A dividing line between groups of controls.
#include "zebui/controls/UI_Divider.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_Divider::UI_Divider() = default;

UI_Divider::~UI_Divider() = default;

void UI_Divider::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const zebcore::geom::RectT<float> line =
        bounds.width >= bounds.height
            ? zebcore::geom::RectT<float>(0, bounds.height / 2 - 1, bounds.width, 2)
            : zebcore::geom::RectT<float>(bounds.width / 2 - 1, 0, 2, bounds.height);
    face::FrameRect(inkwell, line, face::kFaceEdge, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui

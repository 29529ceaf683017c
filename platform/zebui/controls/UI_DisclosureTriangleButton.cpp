// A text button with a triangle that shows whether something is open.
#include "zebui/controls/UI_DisclosureTriangleButton.h"

#include <algorithm>

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_DisclosureTriangleButton::UI_DisclosureTriangleButton() = default;

UI_DisclosureTriangleButton::~UI_DisclosureTriangleButton() = default;

void UI_DisclosureTriangleButton::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const float side = std::min(bounds.width, bounds.height);
    const zebcore::geom::PointT<float> corners[] = {
        {side * 0.25f, side * 0.2f}, {side * 0.8f, side * 0.5f}, {side * 0.25f, side * 0.8f}};
    face::FillPolygon(inkwell, corners, 3, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui

// A text button with a triangle that shows whether something is open.
#include "zebui/controls/UI_DisclosureTriangleButton.h"

#include <algorithm>

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

namespace {

// The side of the triangle's square: the button's smaller side.
float squareSide(const zebcore::geom::RectT<float>& bounds) {
    return std::min(bounds.width, bounds.height);
}

}  // namespace

UI_DisclosureTriangleButton::UI_DisclosureTriangleButton() = default;

UI_DisclosureTriangleButton::~UI_DisclosureTriangleButton() = default;

zebcore::geom::RectT<float> UI_DisclosureTriangleButton::GetLabelTextRect() const {
    zebcore::geom::RectT<float> rect = UI_TextButton::GetLabelTextRect();
    const float side = squareSide(face::Bounds(*this));
    rect.left += side;
    rect.width = std::max(rect.width - side, 0.0f);
    return rect;
}

void UI_DisclosureTriangleButton::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const float side = squareSide(face::Bounds(*this));
    const zebcore::geom::PointT<float> closed[] = {
        {side * 0.25f, side * 0.2f}, {side * 0.8f, side * 0.5f}, {side * 0.25f, side * 0.8f}};
    const zebcore::geom::PointT<float> open[] = {
        {side * 0.2f, side * 0.25f}, {side * 0.8f, side * 0.25f}, {side * 0.5f, side * 0.8f}};
    face::FillPolygon(inkwell, GetValue() == kButtonValue_On ? open : closed, 3, face::kFaceEdge);
    DrawLabelText(inkwell, GetLabelText(), GetLabelTextRect());
}

}  // namespace controls
}  // namespace zebui

// Outlined and filled rectangles with rounded corners, drawn through an Inkwell.
#pragma once

#include "zebcore/geom/Geometry.h"
#include "zebui/inkwell/ColorRGBA.h"

namespace zebui {
namespace inkwell {
class Inkwell;
}  // namespace inkwell

namespace utils {

// Which corners are rounded; the others stay square.
enum CornerMask : unsigned {
    kTopLeftCorner = 1,
    kTopRightCorner = 2,
    kBottomRightCorner = 4,
    kBottomLeftCorner = 8,
    kAllCorners = 15,
};

// The line lies inside rect, so that a width 1 outline of a whole-pixel rectangle covers
// its edge pixels exactly. A radius larger than half the shorter side is cut to it.
void DrawOutline(inkwell::Inkwell* inkwell, const zebcore::geom::RectT<float>& rect,
                 const inkwell::ColorRGBA& colour, float cornerRadius, unsigned corners,
                 float lineWidth);
void DrawRoundedFill(inkwell::Inkwell* inkwell, const zebcore::geom::RectT<float>& rect,
                     const inkwell::ColorRGBA& colour, float cornerRadius, unsigned corners);

}  // namespace utils
}  // namespace zebui

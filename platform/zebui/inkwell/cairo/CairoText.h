// Text laid out by Pango: measuring it and drawing it onto a Cairo context.
#pragma once

#include "zebcore/geom/Geometry.h"
#include "zebcore/utility/Strings.h"
#include "zebui/inkwell/InkwellTypes.h"
#include "zebui/inkwell/cairo/CairoForward.h"

namespace zebui {
namespace inkwell {

class CairoFont;

// The logical width of the first `length` UTF-16 units (all for -1 or more than there
// are). Glyph metrics are unhinted, so a text measures the same on any surface and at
// any transform, and a longer text never measures narrower than its beginning.
float MeasureTextWidth(const CairoFont& font, const zebcore::UTF16String& text, int length);

// Draws with the context's present source. point is the top left of the line box for
// left alignment, its top centre or top right for the others when width is 0; with a
// width the text is placed within [x, x + width] and truncated by truncation.
void DrawText(cairo_t* context, const CairoFont& font, const zebcore::UTF16String& text,
              const zebcore::geom::PointT<float>& point, TextAlignment alignment,
              TextTruncation truncation, float width);

}  // namespace inkwell
}  // namespace zebui

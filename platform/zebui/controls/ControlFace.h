// The small drawing kit of the stand-in controls' own faces.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zebcore/geom/RectT.h"
#include "zebcore/utility/Strings.h"
#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/InkwellTypes.h"

namespace zebui {
namespace inkwell {
class ImageInterface;
class Inkwell;
}  // namespace inkwell

namespace ui {
class UI_Node;
}  // namespace ui

namespace controls {
namespace face {

// Flat colours of the default theme: a raised face, its edge, an input field, the accent
// of a value and the text.
extern const inkwell::ColorRGBA kFaceFill;
extern const inkwell::ColorRGBA kFaceEdge;
extern const inkwell::ColorRGBA kFieldFill;
extern const inkwell::ColorRGBA kAccent;
extern const inkwell::ColorRGBA kText;

// The node's own coordinates: its size at the origin.
zebcore::geom::RectT<float> Bounds(const ui::UI_Node& node);

// Where a check box or a radio button draws its mark: a square at the left, as tall as
// bounds up to 14 units and centred in their height; and where its label goes, the rest of
// bounds right of the mark and a gap.
zebcore::geom::RectT<float> MarkSquare(const zebcore::geom::RectT<float>& bounds);
zebcore::geom::RectT<float> BesideMark(const zebcore::geom::RectT<float>& bounds);

// Each draws with the inkwell's supplier onto its surface, and nothing without either.
// Filled, then edged by a one-unit line just inside.
void FrameRect(inkwell::Inkwell* inkwell, const zebcore::geom::RectT<float>& rect,
               const inkwell::ColorRGBA& fill, const inkwell::ColorRGBA& edge);
void FrameCircle(inkwell::Inkwell* inkwell, const zebcore::geom::PointT<float>& centre,
                 float radius, const inkwell::ColorRGBA& fill, const inkwell::ColorRGBA& edge);
// A rect whose corners are rounded to radius (0: square corners), filled, or edged by a
// line of width just inside it. Callers keep radius and width within the rect.
void FillRoundRect(inkwell::Inkwell* inkwell, const zebcore::geom::RectT<float>& rect, float radius,
                   const inkwell::ColorRGBA& fill);
void EdgeRoundRect(inkwell::Inkwell* inkwell, const zebcore::geom::RectT<float>& rect, float radius,
                   float width, const inkwell::ColorRGBA& edge);
// A filled polygon of count points.
void FillPolygon(inkwell::Inkwell* inkwell, const zebcore::geom::PointT<float>* points, int count,
                 const inkwell::ColorRGBA& colour);
// One line of text in the default font, centred vertically in rect and aligned within its
// width, the end ellipsized when it does not fit. A size of 0 is the default text size.
void DrawText(inkwell::Inkwell* inkwell, const zebcore::UTF16String& text,
              const zebcore::geom::RectT<float>& rect, inkwell::TextAlignment alignment,
              float size = 0, const inkwell::ColorRGBA& colour = kText);
// The whole image scaled into rect, at opacity (0 to 1).
void DrawImage(inkwell::Inkwell* inkwell,
               const boost::intrusive_ptr<inkwell::ImageInterface>& image,
               const zebcore::geom::RectT<float>& rect, float opacity = 1.0f);

}  // namespace face
}  // namespace controls
}  // namespace zebui

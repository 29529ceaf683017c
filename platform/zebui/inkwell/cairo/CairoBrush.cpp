// A brush of one solid colour.
#include "zebui/inkwell/cairo/CairoBrush.h"

#include <cairo.h>

namespace zebui {
namespace inkwell {

CairoBrush::CairoBrush(const ColorRGBA& colour) : mColour(colour) {}

ColorRGBA CairoBrush::GetColor() const {
    return mColour;
}

void CairoBrush::Apply(cairo_t* context) const {
    cairo_set_source_rgba(context, mColour.red, mColour.green, mColour.blue, mColour.alpha);
}

}  // namespace inkwell
}  // namespace zebui

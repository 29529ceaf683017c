// A brush of one solid colour.
#include "zebui/inkwell/cairo/CairoBrush.h"

#include "zebui/inkwell/cairo/CairoLimits.h"

namespace zebui {
namespace inkwell {

CairoBrush::CairoBrush(const ColorRGBA& colour) : mColour(colour) {}

ColorRGBA CairoBrush::GetColor() const {
    return mColour;
}

void CairoBrush::Apply(cairo_t* context) const {
    SetSourceColour(context, mColour);
}

}  // namespace inkwell
}  // namespace zebui

// A brush of one solid colour.
#pragma once

#include "zebui/inkwell/BrushInterface.h"
#include "zebui/inkwell/cairo/CairoForward.h"

namespace zebui {
namespace inkwell {

class CairoBrush : public BrushInterface {
public:
    explicit CairoBrush(const ColorRGBA& colour);

    ColorRGBA GetColor() const override;
    // Makes the colour the context's source.
    void Apply(cairo_t* context) const;

private:
    ColorRGBA mColour;
};

}  // namespace inkwell
}  // namespace zebui

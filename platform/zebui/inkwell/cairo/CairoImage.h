// An image held as a Cairo ARGB32 image surface.
#pragma once

#include <cstddef>

#include "zebui/inkwell/ImageInterface.h"
#include "zebui/inkwell/cairo/CairoForward.h"

namespace zebui {
namespace inkwell {

class CairoImage : public ImageInterface {
public:
    // Takes over the caller's reference on an ARGB32 image surface.
    explicit CairoImage(cairo_surface_t* pixels);
    ~CairoImage() override;

    // Null when the bytes are not a PNG file.
    static CairoImage* FromPNG(const unsigned char* bytes, std::size_t size);

    int GetWidth() const override;
    int GetHeight() const override;

    cairo_surface_t* Pixels() const { return mPixels; }

private:
    cairo_surface_t* mPixels;
};

}  // namespace inkwell
}  // namespace zebui

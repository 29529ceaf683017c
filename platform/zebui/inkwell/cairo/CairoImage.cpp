// An image held as a Cairo ARGB32 image surface.
#include "zebui/inkwell/cairo/CairoImage.h"

#include <cairo.h>

#include <cstring>

namespace zebui {
namespace inkwell {
namespace {

struct ByteReader {
    const unsigned char* next;
    std::size_t left;
};

cairo_status_t readBytes(void* closure, unsigned char* data, unsigned int length) {
    auto* reader = static_cast<ByteReader*>(closure);
    if (length > reader->left) return CAIRO_STATUS_READ_ERROR;
    std::memcpy(data, reader->next, length);
    reader->next += length;
    reader->left -= length;
    return CAIRO_STATUS_SUCCESS;
}

// Cairo gives RGB24 for a PNG without alpha; every image here is ARGB32.
cairo_surface_t* asARGB32(cairo_surface_t* decoded) {
    if (cairo_image_surface_get_format(decoded) == CAIRO_FORMAT_ARGB32) return decoded;
    cairo_surface_t* converted =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, cairo_image_surface_get_width(decoded),
                                   cairo_image_surface_get_height(decoded));
    cairo_t* context = cairo_create(converted);
    cairo_set_source_surface(context, decoded, 0, 0);
    cairo_set_operator(context, CAIRO_OPERATOR_SOURCE);
    cairo_paint(context);
    cairo_destroy(context);
    cairo_surface_destroy(decoded);
    return converted;
}

}  // namespace

CairoImage::CairoImage(cairo_surface_t* pixels) : mPixels(pixels) {}

CairoImage::~CairoImage() {
    cairo_surface_destroy(mPixels);
}

CairoImage* CairoImage::FromPNG(const unsigned char* bytes, std::size_t size) {
    ByteReader reader{bytes, size};
    cairo_surface_t* decoded = cairo_image_surface_create_from_png_stream(readBytes, &reader);
    if (cairo_surface_status(decoded) != CAIRO_STATUS_SUCCESS) {
        cairo_surface_destroy(decoded);
        return nullptr;
    }
    return new CairoImage(asARGB32(decoded));
}

int CairoImage::GetWidth() const {
    return cairo_image_surface_get_width(mPixels);
}

int CairoImage::GetHeight() const {
    return cairo_image_surface_get_height(mPixels);
}

}  // namespace inkwell
}  // namespace zebui

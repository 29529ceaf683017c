// An image held as a Cairo ARGB32 image surface.
#include "zebui/inkwell/cairo/CairoImage.h"

#include <cairo.h>

#include <cstdint>
#include <cstring>

#include "zebcore/debug/Debug.h"
#include "zebui/inkwell/cairo/CairoLimits.h"

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

// A PNG opens with its 8-byte signature and the IHDR chunk, whose data starts with the
// width and the height as big-endian 32-bit numbers.
constexpr unsigned char kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
constexpr std::size_t kHeaderSize = 24;

std::uint32_t bigEndian32(const unsigned char* bytes) {
    return (std::uint32_t(bytes[0]) << 24) | (std::uint32_t(bytes[1]) << 16) |
           (std::uint32_t(bytes[2]) << 8) | std::uint32_t(bytes[3]);
}

// A small file may decode to gigabytes: the size is read from the header and refused,
// with a report, before anything is decoded. Bytes that are no PNG are left to the decoder.
bool sizeAllowed(const unsigned char* bytes, std::size_t size) {
    if (size < kHeaderSize || std::memcmp(bytes, kSignature, sizeof kSignature) != 0 ||
        std::memcmp(bytes + 12, "IHDR", 4) != 0)
        return true;
    const bool allowed =
        ImageSizeAllowed(bigEndian32(bytes + 16), bigEndian32(bytes + 20), kLargestImageSide);
    ZEB_ASSERT_MSG(allowed, "PNG image larger than the decoded image limit");
    return allowed;
}

}  // namespace

CairoImage::CairoImage(cairo_surface_t* pixels) : mPixels(pixels) {}

CairoImage::~CairoImage() {
    cairo_surface_destroy(mPixels);
}

CairoImage* CairoImage::FromPNG(const unsigned char* bytes, std::size_t size) {
    if (!sizeAllowed(bytes, size)) return nullptr;
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

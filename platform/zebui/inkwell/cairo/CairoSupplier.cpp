// The supplier of the headless back end: Cairo surfaces and objects, Pango text.
#include "zebui/inkwell/cairo/CairoSupplier.h"

#include <cairo.h>

#include <algorithm>

#include "zebcore/debug/Debug.h"
#include "zebui/inkwell/cairo/CairoBrush.h"
#include "zebui/inkwell/cairo/CairoFont.h"
#include "zebui/inkwell/cairo/CairoImage.h"
#include "zebui/inkwell/cairo/CairoLimits.h"
#include "zebui/inkwell/cairo/CairoPath.h"
#include "zebui/inkwell/cairo/CairoPen.h"
#include "zebui/inkwell/cairo/CairoShader.h"
#include "zebui/inkwell/cairo/CairoSurface.h"

namespace zebui {
namespace inkwell {
namespace {

zebcore::UTF16String fromUnits(const unsigned short* units) {
    zebcore::UTF16String text;
    for (; units && *units; ++units)
        text.push_back(static_cast<char16_t>(*units));
    return text;
}

}  // namespace

SurfaceInterface* CairoSupplier::MakeSurface(SurfaceInterface* parent, bool inheritState,
                                             const zebcore::geom::RectT<int>* rect) const {
    return MakeCairoSurface(parent, inheritState, rect);
}

CairoSurface* CairoSupplier::MakeCairoSurface(SurfaceInterface* parent, bool inheritState,
                                              const zebcore::geom::RectT<int>* rect) const {
    auto* cairoParent = dynamic_cast<CairoSurface*>(parent);
    ZEB_ASSERT_MSG(cairoParent != nullptr, "surface over a surface of another supplier");
    if (!cairoParent) return nullptr;
    // The rectangle is in the parent's pixels; the new area is in the shared image's.
    const zebcore::geom::RectT<int>& outer = cairoParent->Area();
    zebcore::geom::RectT<int> area = outer;
    if (rect) {
        // In long long: a script's rectangle may reach beyond the int range.
        using Wide = long long;
        const Wide left = std::max<Wide>(outer.left, Wide(outer.left) + rect->left);
        const Wide top = std::max<Wide>(outer.top, Wide(outer.top) + rect->top);
        const Wide right =
            std::min<Wide>(outer.Right(), Wide(outer.left) + rect->left + rect->width);
        const Wide bottom =
            std::min<Wide>(outer.Bottom(), Wide(outer.top) + rect->top + rect->height);
        area = zebcore::geom::RectT<int>(
            int(std::min(left, Wide(outer.Right()))), int(std::min(top, Wide(outer.Bottom()))),
            int(std::max<Wide>(right - left, 0)), int(std::max<Wide>(bottom - top, 0)));
    }
    // Surfaces hand their supplier back as the toolkit's non-const pointer; nothing here
    // has state to change.
    auto* surface = new CairoSurface(const_cast<CairoSupplier*>(this), cairoParent->Pixels(), area);
    if (inheritState) surface->InheritState(*cairoParent);
    return surface;
}

SurfaceInterface* CairoSupplier::MakeOffscreenSurface(int width, int height, bool opaque) const {
    return MakeOffscreenCairoSurface(width, height, opaque);
}

CairoSurface* CairoSupplier::MakeOffscreenCairoSurface(int width, int height, bool opaque) const {
    if (width <= 0 || height <= 0) return nullptr;
    // Cairo's own limit is 32767 a side, which would still let a script ask for 4 GiB.
    const bool allowed = ImageSizeAllowed(width, height, 32767);
    ZEB_ASSERT_MSG(allowed, "offscreen surface larger than the image limit");
    if (!allowed) return nullptr;
    cairo_surface_t* pixels = cairo_image_surface_create(
        opaque ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32, width, height);
    CairoSurface* surface = nullptr;
    if (cairo_surface_status(pixels) == CAIRO_STATUS_SUCCESS)
        surface = new CairoSurface(const_cast<CairoSupplier*>(this), pixels,
                                   zebcore::geom::RectT<int>(0, 0, width, height));
    cairo_surface_destroy(pixels);
    return surface;
}

PenInterface* CairoSupplier::MakePen(const ColorRGBA& colour, float width) const {
    return new CairoPen(colour, width);
}

BrushInterface* CairoSupplier::MakeBrush(const ColorRGBA& colour) const {
    return new CairoBrush(colour);
}

ShaderInterface* CairoSupplier::MakeLinearShader(const zebcore::geom::PointT<float>& point1,
                                                 const zebcore::geom::PointT<float>& point2,
                                                 const ColorRGBA* colours, const float* stops,
                                                 int count) const {
    return CairoShader::MakeLinear(point1, point2, colours, stops, count);
}

ShaderInterface* CairoSupplier::MakeRadialShader(const zebcore::geom::PointT<float>& point1,
                                                 const zebcore::geom::PointT<float>& point2,
                                                 const ColorRGBA& colour1,
                                                 const ColorRGBA& colour2) const {
    return CairoShader::MakeRadial(point1, point2, colour1, colour2);
}

FontInterface* CairoSupplier::MakeFont(const unsigned short* family, const unsigned short* style,
                                       float size) const {
    return new CairoFont(fromUnits(family), fromUnits(style), size);
}

PathInterface* CairoSupplier::MakePath() const {
    return new CairoPath;
}

boost::intrusive_ptr<ImageInterface> CairoSupplier::MakeImageFromPNG(const unsigned char* bytes,
                                                                     std::size_t size) const {
    return boost::intrusive_ptr<ImageInterface>(CairoImage::FromPNG(bytes, size));
}

}  // namespace inkwell
}  // namespace zebui

// A drawing surface over the ARGB32 pixels of a Cairo image surface.
#include "zebui/inkwell/cairo/CairoSurface.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>

#include "zebcore/debug/Debug.h"
#include "zebcore/geom/GeomConvert.h"
#include "zebui/inkwell/BrushInterface.h"
#include "zebui/inkwell/FontInterface.h"
#include "zebui/inkwell/cairo/CairoBrush.h"
#include "zebui/inkwell/cairo/CairoFont.h"
#include "zebui/inkwell/cairo/CairoImage.h"
#include "zebui/inkwell/cairo/CairoLimits.h"
#include "zebui/inkwell/cairo/CairoMatrix.h"
#include "zebui/inkwell/cairo/CairoPath.h"
#include "zebui/inkwell/cairo/CairoPen.h"
#include "zebui/inkwell/cairo/CairoShader.h"
#include "zebui/inkwell/cairo/CairoText.h"
#include "zebui/inkwell/cairo/CallLogFormat.h"

namespace zebui {
namespace inkwell {
namespace {

// Objects of another back end cannot draw here; such a call is reported and does nothing.
template <class Concrete, class Interface> const Concrete* ownKind(const Interface& object) {
    const auto* concrete = dynamic_cast<const Concrete*>(&object);
    ZEB_ASSERT_MSG(concrete != nullptr, "drawing object of another supplier");
    return concrete;
}

cairo_fill_rule_t fillRule(bool windingFill) {
    return windingFill ? CAIRO_FILL_RULE_WINDING : CAIRO_FILL_RULE_EVEN_ODD;
}

// A path with a NaN or infinite number is reported and not used: Cairo cannot take it.
bool usablePath(const CairoPath& path) {
    ZEB_ASSERT_MSG(path.IsFinite(), "path with a non-finite coordinate, radius or angle");
    return path.IsFinite();
}

// The part of the image that the source rectangle covers, and the part of the destination
// that this part maps to at the rectangle pair's scale. False when nothing is left.
bool clipSourceToImage(const ImageInterface& image, zebcore::geom::RectT<float>& source,
                       zebcore::geom::RectT<float>& dest) {
    const double scaleX = static_cast<double>(dest.width) / source.width;
    const double scaleY = static_cast<double>(dest.height) / source.height;
    const double left = std::max(0.0, static_cast<double>(source.left));
    const double top = std::max(0.0, static_cast<double>(source.top));
    const double right = std::min(static_cast<double>(image.GetWidth()),
                                  static_cast<double>(source.left) + source.width);
    const double bottom = std::min(static_cast<double>(image.GetHeight()),
                                   static_cast<double>(source.top) + source.height);
    if (!(right > left && bottom > top)) return false;
    dest = zebcore::geom::RectT<float>(
        static_cast<float>(dest.left + (left - source.left) * scaleX),
        static_cast<float>(dest.top + (top - source.top) * scaleY),
        static_cast<float>((right - left) * scaleX), static_cast<float>((bottom - top) * scaleY));
    source = zebcore::geom::RectT<float>(static_cast<float>(left), static_cast<float>(top),
                                         static_cast<float>(right - left),
                                         static_cast<float>(bottom - top));
    return !dest.IsEmpty();
}

// Outward to whole pixels. Under a tiny scale the extents in user space run far beyond
// int, and then stop at its ends.
zebcore::geom::RectT<int> clipBounds(cairo_t* context) {
    double x1, y1, x2, y2;
    cairo_clip_extents(context, &x1, &y1, &x2, &y2);
    return zebcore::geom::ConvertRect<zebcore::geom::RectT<int>>(
        zebcore::geom::RectT<double>(x1, y1, x2 - x1, y2 - y1), zebcore::geom::kRectRound_OUT);
}

std::string describeFont(const FontInterface& font) {
    return "(family=" + zebcore::utility::UTF16to8(font.GetFamily()) +
           ", style=" + zebcore::utility::UTF16to8(font.GetStyle()) +
           ", size=" + FormatNumber(font.GetSize()) + ")";
}

std::string describeImage(const ImageInterface& image) {
    return std::to_string(image.GetWidth()) + "x" + std::to_string(image.GetHeight());
}

}  // namespace

CairoSurface::CairoSurface(SupplierInterface* supplier, cairo_surface_t* pixels,
                           const zebcore::geom::RectT<int>& area)
    : mSupplier(supplier), mPixels(cairo_surface_reference(pixels)), mArea(area) {
    const bool whole = area.left == 0 && area.top == 0 &&
                       area.width == cairo_image_surface_get_width(pixels) &&
                       area.height == cairo_image_surface_get_height(pixels);
    cairo_surface_t* target = whole ? cairo_surface_reference(pixels)
                                    : cairo_surface_create_for_rectangle(
                                          pixels, area.left, area.top, area.width, area.height);
    mContext = cairo_create(target);
    cairo_surface_destroy(target);
    cairo_set_antialias(mContext, CAIRO_ANTIALIAS_GOOD);
}

CairoSurface::~CairoSurface() {
    cairo_destroy(mContext);
    cairo_surface_destroy(mPixels);
}

void CairoSurface::InheritState(CairoSurface& parent) {
    const double dx = mArea.left - parent.mArea.left;
    const double dy = mArea.top - parent.mArea.top;
    cairo_matrix_t parentMatrix;
    cairo_get_matrix(parent.mContext, &parentMatrix);

    // The parent's clip, read in its pixels; a clip of curves comes as its bounding box.
    cairo_save(parent.mContext);
    cairo_identity_matrix(parent.mContext);
    cairo_rectangle_list_t* rectangles = cairo_copy_clip_rectangle_list(parent.mContext);
    double x1, y1, x2, y2;
    cairo_clip_extents(parent.mContext, &x1, &y1, &x2, &y2);
    cairo_restore(parent.mContext);

    cairo_identity_matrix(mContext);
    cairo_translate(mContext, -dx, -dy);
    cairo_new_path(mContext);
    if (rectangles->status == CAIRO_STATUS_SUCCESS) {
        for (int i = 0; i < rectangles->num_rectangles; ++i) {
            const cairo_rectangle_t& r = rectangles->rectangles[i];
            cairo_rectangle(mContext, r.x, r.y, r.width, r.height);
        }
    } else {
        cairo_rectangle(mContext, x1, y1, x2 - x1, y2 - y1);
    }
    cairo_rectangle_list_destroy(rectangles);
    cairo_clip(mContext);

    cairo_matrix_t toChild;
    cairo_matrix_init_translate(&toChild, -dx, -dy);
    cairo_matrix_t matrix;
    cairo_matrix_multiply(&matrix, &parentMatrix, &toChild);
    cairo_set_matrix(mContext, &matrix);
    cairo_set_antialias(mContext, cairo_get_antialias(parent.mContext));
}

void CairoSurface::PushStateStack() {
    if (mLogCalls) log("PushStateStack()");
    cairo_save(mContext);
    ++mStateDepth;
}

void CairoSurface::PopStateStack() {
    if (mLogCalls) log("PopStateStack()");
    ZEB_ASSERT_MSG(mStateDepth > 0, "PopStateStack without PushStateStack");
    if (mStateDepth == 0) return;
    cairo_restore(mContext);
    --mStateDepth;
}

void CairoSurface::PaintRect(const ColorRGBA& colour, const zebcore::geom::RectT<float>& rect) {
    if (mLogCalls)
        log("PaintRect(colour=" + FormatColour(colour) + ", rect=" + FormatRect(rect) + ")");
    const bool finite = AllFinite({rect.left, rect.top, rect.width, rect.height});
    ZEB_ASSERT_MSG(finite, "PaintRect with a non-finite rectangle");
    if (!finite) return;
    cairo_new_path(mContext);
    cairo_rectangle(mContext, rect.left, rect.top, rect.width, rect.height);
    SetSourceColour(mContext, colour);
    cairo_fill(mContext);
}

void CairoSurface::FillPath(const BrushInterface& brush, const PathInterface& path,
                            bool windingFill) {
    const auto* cairoBrush = ownKind<CairoBrush>(brush);
    const auto* cairoPath = ownKind<CairoPath>(path);
    if (!cairoBrush || !cairoPath) return;
    if (mLogCalls)
        log("FillPath(brush=" + FormatColour(brush.GetColor()) + ", path=" + cairoPath->Describe() +
            ", windingFill=" + FormatBool(windingFill) + ")");
    if (!usablePath(*cairoPath)) return;
    cairoPath->Replay(mContext);
    cairo_set_fill_rule(mContext, fillRule(windingFill));
    cairoBrush->Apply(mContext);
    cairo_fill(mContext);
}

void CairoSurface::StrokePath(const PenInterface& pen, const PathInterface& path) {
    const auto* cairoPen = ownKind<CairoPen>(pen);
    const auto* cairoPath = ownKind<CairoPath>(path);
    if (!cairoPen || !cairoPath) return;
    if (mLogCalls)
        log("StrokePath(pen=" + cairoPen->Describe() + ", path=" + cairoPath->Describe() + ")");
    const bool finiteWidth = std::isfinite(pen.GetWidth());
    ZEB_ASSERT_MSG(finiteWidth, "StrokePath with a non-finite pen width");
    if (!finiteWidth || !usablePath(*cairoPath)) return;
    cairoPath->Replay(mContext);
    cairoPen->Apply(mContext);
    cairo_stroke(mContext);
}

void CairoSurface::ShadePath(const ShaderInterface& shader, const PathInterface& path,
                             bool windingFill) {
    const auto* cairoShader = ownKind<CairoShader>(shader);
    const auto* cairoPath = ownKind<CairoPath>(path);
    // A pattern in error would put the context into a lasting error state of its own.
    if (!cairoShader || !cairoPath ||
        cairo_pattern_status(cairoShader->Pattern()) != CAIRO_STATUS_SUCCESS)
        return;
    if (mLogCalls)
        log("ShadePath(shader=" + cairoShader->Describe() + ", path=" + cairoPath->Describe() +
            ", windingFill=" + FormatBool(windingFill) + ")");
    ZEB_ASSERT_MSG(cairoShader->IsFinite(), "shader with a non-finite point or stop");
    if (!cairoShader->IsFinite() || !usablePath(*cairoPath)) return;
    cairoPath->Replay(mContext);
    cairo_set_fill_rule(mContext, fillRule(windingFill));
    cairo_set_source(mContext, cairoShader->Pattern());
    cairo_fill(mContext);
}

SupplierInterface* CairoSurface::GetSupplier() const {
    return mSupplier;
}

void CairoSurface::Clip(const PathInterface& path, bool windingFill) {
    const auto* cairoPath = ownKind<CairoPath>(path);
    if (!cairoPath) return;
    if (mLogCalls)
        log("Clip(path=" + cairoPath->Describe() + ", windingFill=" + FormatBool(windingFill) +
            ")");
    if (!usablePath(*cairoPath)) return;
    cairoPath->Replay(mContext);
    cairo_set_fill_rule(mContext, fillRule(windingFill));
    cairo_clip(mContext);
}

zebcore::geom::RectT<int> CairoSurface::GetClipBounds() const {
    if (mLogCalls) log("GetClipBounds()");
    return clipBounds(mContext);
}

bool CairoSurface::IsWithinClipBounds(const zebcore::geom::RectT<int>& rect) const {
    if (mLogCalls) log("IsWithinClipBounds(rect=" + FormatRect(rect) + ")");
    const zebcore::geom::RectT<int> clip = clipBounds(mContext);
    if (rect.IsEmpty() || clip.IsEmpty()) return false;
    // In long long: a script's rectangle may end beyond the int range.
    using Wide = long long;
    return std::max<Wide>(rect.left, clip.left) <
               std::min(Wide(rect.left) + rect.width, Wide(clip.left) + clip.width) &&
           std::max<Wide>(rect.top, clip.top) <
               std::min(Wide(rect.top) + rect.height, Wide(clip.top) + clip.height);
}

void CairoSurface::Transform(const zebcore::geom::MatrixT<float>& matrix) {
    const cairo_matrix_t converted = ToCairoMatrix(matrix);
    if (mLogCalls)
        log("Transform(matrix=" +
            FormatNumbers({matrix(0, 0), matrix(0, 1), matrix(0, 2), matrix(1, 0), matrix(1, 1),
                           matrix(1, 2), matrix(2, 0), matrix(2, 1), matrix(2, 2)}) +
            ")");
    const bool invertible = CanConcatenate(mContext, converted);
    ZEB_ASSERT_MSG(invertible, "Transform with a matrix that cannot be inverted");
    if (invertible) cairo_transform(mContext, &converted);
}

void CairoSurface::GetTransform(zebcore::geom::MatrixT<float>& matrix) const {
    if (mLogCalls) log("GetTransform()");
    cairo_matrix_t current;
    cairo_get_matrix(mContext, &current);
    matrix = FromCairoMatrix(current);
}

void CairoSurface::DrawString(const BrushInterface& brush, const FontInterface& font,
                              const zebcore::UTF16String& text,
                              const zebcore::geom::PointT<float>& point, TextAlignment alignment,
                              TextTruncation truncation, float width) {
    const auto* cairoBrush = ownKind<CairoBrush>(brush);
    const auto* cairoFont = ownKind<CairoFont>(font);
    if (!cairoBrush || !cairoFont) return;
    if (mLogCalls)
        log("DrawString(brush=" + FormatColour(brush.GetColor()) + ", font=" + describeFont(font) +
            ", text=" + FormatText(text) + ", point=" + FormatPoint(point) +
            ", alignment=" + std::to_string(alignment) +
            ", truncation=" + std::to_string(truncation) + ", width=" + FormatNumber(width) + ")");
    const bool finite = AllFinite({point.x, point.y});
    ZEB_ASSERT_MSG(finite, "DrawString at a non-finite point");
    if (!finite) return;
    cairoBrush->Apply(mContext);
    DrawText(mContext, *cairoFont, text, point, alignment, truncation, width);
}

float CairoSurface::MeasureStringWidth(const FontInterface& font, const zebcore::UTF16String& text,
                                       int length) {
    if (mLogCalls)
        log("MeasureStringWidth(font=" + describeFont(font) + ", text=" + FormatText(text) +
            ", length=" + std::to_string(length) + ")");
    return font.MeasureText(text, length);
}

void CairoSurface::DrawImage(const ImageInterface& image, const zebcore::geom::PointT<float>& point,
                             float opacity) {
    const auto* cairoImage = ownKind<CairoImage>(image);
    if (!cairoImage) return;
    if (mLogCalls)
        log("DrawImage(image=" + describeImage(image) + ", point=" + FormatPoint(point) +
            ", opacity=" + FormatNumber(opacity) + ")");
    // Cairo ends a context for good on a position it cannot invert.
    const bool finite = AllFinite({point.x, point.y});
    ZEB_ASSERT_MSG(finite, "DrawImage at a non-finite point");
    if (!finite) return;
    cairo_save(mContext);
    cairo_new_path(mContext);
    cairo_rectangle(mContext, point.x, point.y, image.GetWidth(), image.GetHeight());
    cairo_clip(mContext);
    cairo_set_source_surface(mContext, cairoImage->Pixels(), point.x, point.y);
    cairo_paint_with_alpha(mContext, LimitedOpacity(opacity));
    cairo_restore(mContext);
}

void CairoSurface::DrawImage2(const SupplierInterface* supplier, const ImageInterface& image,
                              const zebcore::geom::RectT<float>& destRect,
                              const zebcore::geom::RectT<float>* srcRect, float opacity) {
    const auto* cairoImage = ownKind<CairoImage>(image);
    if (!cairoImage) return;
    if (mLogCalls)
        log("DrawImage2(supplier=" + std::string(supplier ? "set" : "null") +
            ", image=" + describeImage(image) + ", destRect=" + FormatRect(destRect) +
            ", srcRect=" + (srcRect ? FormatRect(*srcRect) : std::string("null")) +
            ", opacity=" + FormatNumber(opacity) + ")");
    zebcore::geom::RectT<float> source =
        srcRect ? *srcRect
                : zebcore::geom::RectT<float>(0.0f, 0.0f, static_cast<float>(image.GetWidth()),
                                              static_cast<float>(image.GetHeight()));
    zebcore::geom::RectT<float> dest = destRect;
    const bool finite = AllFinite({source.left, source.top, source.width, source.height, dest.left,
                                   dest.top, dest.width, dest.height});
    ZEB_ASSERT_MSG(finite, "DrawImage2 with a non-finite rectangle");
    if (!finite || source.IsEmpty() || dest.IsEmpty()) return;
    // Pixels outside the image are not there to sample: only the part of the source inside
    // it is drawn, onto the part of the destination it maps to.
    if (!clipSourceToImage(image, source, dest)) return;
    // The source rectangle's pixels onto the destination rectangle.
    cairo_matrix_t placement;
    cairo_matrix_init(&placement, static_cast<double>(dest.width) / source.width, 0.0, 0.0,
                      static_cast<double>(dest.height) / source.height, dest.left, dest.top);
    if (!CanConcatenate(mContext, placement)) return;
    cairo_save(mContext);
    cairo_new_path(mContext);
    cairo_rectangle(mContext, dest.left, dest.top, dest.width, dest.height);
    cairo_clip(mContext);
    cairo_transform(mContext, &placement);
    // Only the source rectangle is sampled, and its edge pixels are repeated outwards, so
    // neither the pixels around it nor transparency bleed into the scaled edges.
    cairo_surface_t* region = cairo_surface_create_for_rectangle(
        cairoImage->Pixels(), source.left, source.top, source.width, source.height);
    cairo_set_source_surface(mContext, region, 0, 0);
    cairo_pattern_set_extend(cairo_get_source(mContext), CAIRO_EXTEND_PAD);
    cairo_paint_with_alpha(mContext, LimitedOpacity(opacity));
    cairo_restore(mContext);
    cairo_surface_destroy(region);
}

boost::intrusive_ptr<ImageInterface> CairoSurface::GetSurfaceImage() {
    if (mLogCalls) log("GetSurfaceImage()");
    return boost::intrusive_ptr<ImageInterface>(new CairoImage(snapshot()));
}

void CairoSurface::SetAntiAliasPolicy(int policy) {
    if (mLogCalls) log("SetAntiAliasPolicy(" + std::to_string(policy) + ")");
    switch (policy) {
    case kAntiAliasPolicy_None:
        cairo_set_antialias(mContext, CAIRO_ANTIALIAS_NONE);
        break;
    case kAntiAliasPolicy_Med:
        cairo_set_antialias(mContext, CAIRO_ANTIALIAS_FAST);
        break;
    case kAntiAliasPolicy_High:
        cairo_set_antialias(mContext, CAIRO_ANTIALIAS_GOOD);
        break;
    default:
        break;
    }
}

int CairoSurface::GetAntiAliasPolicy() const {
    if (mLogCalls) log("GetAntiAliasPolicy()");
    switch (cairo_get_antialias(mContext)) {
    case CAIRO_ANTIALIAS_NONE:
        return kAntiAliasPolicy_None;
    case CAIRO_ANTIALIAS_FAST:
        return kAntiAliasPolicy_Med;
    default:
        return kAntiAliasPolicy_High;
    }
}

void CairoSurface::Flush() {
    if (mLogCalls) log("Flush()");
    cairo_surface_flush(cairo_get_target(mContext));
}

int CairoSurface::Stride() const {
    return cairo_image_surface_get_stride(mPixels);
}

const unsigned char* CairoSurface::Data() {
    cairo_surface_flush(mPixels);
    return cairo_image_surface_get_data(mPixels) + mArea.top * Stride() + mArea.left * 4;
}

PixelRGBA CairoSurface::ReadPixel(int x, int y) {
    const int imageX = mArea.left + x;
    const int imageY = mArea.top + y;
    if (x < 0 || y < 0 || x >= mArea.width || y >= mArea.height || imageX < 0 || imageY < 0 ||
        imageX >= cairo_image_surface_get_width(mPixels) ||
        imageY >= cairo_image_surface_get_height(mPixels))
        return {0, 0, 0, 0};
    const unsigned char* row = Data() + y * Stride();
    uint32_t word;
    std::copy(row + x * 4, row + x * 4 + 4, reinterpret_cast<unsigned char*>(&word));
    const bool opaque = cairo_image_surface_get_format(mPixels) == CAIRO_FORMAT_RGB24;
    const uint32_t alpha = opaque ? 255 : word >> 24;
    if (alpha == 0) return {0, 0, 0, 0};
    auto channel = [&](int shift) {
        return static_cast<uint8_t>((((word >> shift) & 0xff) * 255 + alpha / 2) / alpha);
    };
    return {channel(16), channel(8), channel(0), static_cast<uint8_t>(alpha)};
}

bool CairoSurface::WritePNG(const std::string& path) {
    cairo_surface_t* copy = snapshot();
    const bool written = cairo_surface_write_to_png(copy, path.c_str()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(copy);
    return written;
}

void CairoSurface::log(const std::string& entry) const {
    mCallLog.push_back(entry);
}

cairo_surface_t* CairoSurface::snapshot() {
    cairo_surface_flush(cairo_get_target(mContext));
    cairo_surface_t* copy = cairo_image_surface_create(
        CAIRO_FORMAT_ARGB32, std::max(mArea.width, 0), std::max(mArea.height, 0));
    cairo_t* context = cairo_create(copy);
    cairo_set_source_surface(context, mPixels, -mArea.left, -mArea.top);
    cairo_set_operator(context, CAIRO_OPERATOR_SOURCE);
    cairo_paint(context);
    cairo_destroy(context);
    return copy;
}

}  // namespace inkwell
}  // namespace zebui

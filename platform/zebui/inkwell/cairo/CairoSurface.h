// A drawing surface over the ARGB32 pixels of a Cairo image surface.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/inkwell/cairo/CairoForward.h"

namespace zebui {
namespace inkwell {

// One red, green, blue, alpha quadruple, not premultiplied.
using PixelRGBA = std::array<uint8_t, 4>;

// Draws into an area of an image surface: all of it for an offscreen surface, a part of
// its parent's pixels for a surface made over another. Holds its own reference on the
// pixels, so a surface made over another may outlive it. The supplier is not held.
//
// Beyond the toolkit's operations it lets a host and tests read the pixels, write them to
// a PNG file, and keep a log of every call with its arguments as text.
class CairoSurface : public SurfaceInterface {
public:
    // pixels is an image surface; area is the part of it drawn into (whole pixels).
    CairoSurface(SupplierInterface* supplier, cairo_surface_t* pixels,
                 const zebcore::geom::RectT<int>& area);
    ~CairoSurface() override;

    // Starts from the parent's present transform, clip and anti-alias policy, shifted to
    // this surface's origin. A clip of curves is taken as its bounding box.
    void InheritState(CairoSurface& parent);

    void PushStateStack() override;
    // A pop without a push is reported and ignored: it would end Cairo's context.
    void PopStateStack() override;
    void PaintRect(const ColorRGBA& colour, const zebcore::geom::RectT<float>& rect) override;
    void FillPath(const BrushInterface& brush, const PathInterface& path,
                  bool windingFill) override;
    void StrokePath(const PenInterface& pen, const PathInterface& path) override;
    void ShadePath(const ShaderInterface& shader, const PathInterface& path,
                   bool windingFill) override;
    SupplierInterface* GetSupplier() const override;
    void Clip(const PathInterface& path, bool windingFill) override;
    zebcore::geom::RectT<int> GetClipBounds() const override;
    bool IsWithinClipBounds(const zebcore::geom::RectT<int>& rect) const override;
    // A matrix that cannot be inverted is reported and ignored: it would end the context.
    void Transform(const zebcore::geom::MatrixT<float>& matrix) override;
    void GetTransform(zebcore::geom::MatrixT<float>& matrix) const override;
    void DrawString(const BrushInterface& brush, const FontInterface& font,
                    const zebcore::UTF16String& text, const zebcore::geom::PointT<float>& point,
                    TextAlignment alignment, TextTruncation truncation, float width) override;
    float MeasureStringWidth(const FontInterface& font, const zebcore::UTF16String& text,
                             int length) override;
    void DrawImage(const ImageInterface& image, const zebcore::geom::PointT<float>& point,
                   float opacity) override;
    // The supplier is only logged: every image of this back end draws on every surface.
    void DrawImage2(const SupplierInterface* supplier, const ImageInterface& image,
                    const zebcore::geom::RectT<float>& destRect,
                    const zebcore::geom::RectT<float>* srcRect, float opacity) override;
    boost::intrusive_ptr<ImageInterface> GetSurfaceImage() override;
    // None draws hard edges; Med is Cairo's fast anti-aliasing, High its good one (the
    // policy of a new surface).
    void SetAntiAliasPolicy(int policy) override;
    int GetAntiAliasPolicy() const override;
    void Flush() override;

    int Width() const { return mArea.width; }
    int Height() const { return mArea.height; }
    // Bytes from one row to the next in Data().
    int Stride() const;
    // The first pixel of this surface: native-endian 32-bit words, alpha in the top byte,
    // colours premultiplied by alpha. Valid while the surface lives and nothing is drawn.
    const unsigned char* Data();
    // Transparent black outside the surface. An opaque surface reads alpha 255.
    PixelRGBA ReadPixel(int x, int y);
    // False when the file cannot be written.
    bool WritePNG(const std::string& path);

    void SetCallLogEnabled(bool enabled) { mLogCalls = enabled; }
    // "PaintRect(colour=(1,0,0,1), rect=(0,0,4,4))": one entry per call while enabled.
    const std::vector<std::string>& CallLog() const { return mCallLog; }
    void ClearCallLog() { mCallLog.clear(); }

    cairo_t* Context() const { return mContext; }
    cairo_surface_t* Pixels() const { return mPixels; }
    const zebcore::geom::RectT<int>& Area() const { return mArea; }

private:
    // Callers test mLogCalls first, so that a surface without a log builds no text.
    void log(const std::string& entry) const;
    // A new ARGB32 copy of this surface's pixels; the caller owns the reference.
    cairo_surface_t* snapshot();

    SupplierInterface* mSupplier;
    cairo_surface_t* mPixels;
    zebcore::geom::RectT<int> mArea;
    cairo_t* mContext;
    int mStateDepth = 0;
    bool mLogCalls = false;
    mutable std::vector<std::string> mCallLog;
};

}  // namespace inkwell
}  // namespace zebui

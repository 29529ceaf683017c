// A drawing surface of the toolkit: a graphics state stack over pixels.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/geom/Geometry.h"
#include "zebcore/utility/RefCountedObject.h"
#include "zebcore/utility/Strings.h"
#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/InkwellTypes.h"

namespace zebui {
namespace inkwell {

class BrushInterface;
class FontInterface;
class ImageInterface;
class PathInterface;
class PenInterface;
class ShaderInterface;
class SupplierInterface;

// Everything is in user space: the transform, the clip and the anti-alias policy make up
// the graphics state that PushStateStack saves and PopStateStack restores. The drawing
// objects handed in must come from the supplier of this surface; they are only read
// during the call, so their holders may drop them right after.
//
// The fill flag of FillPath, ShadePath and Clip picks the fill rule: true for non-zero
// winding, false for even-odd.
class SurfaceInterface : public zebcore::utility::RefCountedObject {
public:
    virtual void PushStateStack() = 0;
    virtual void PopStateStack() = 0;
    virtual void PaintRect(const ColorRGBA& colour, const zebcore::geom::RectT<float>& rect) = 0;
    virtual void FillPath(const BrushInterface& brush, const PathInterface& path,
                          bool windingFill) = 0;
    virtual void StrokePath(const PenInterface& pen, const PathInterface& path) = 0;
    virtual void ShadePath(const ShaderInterface& shader, const PathInterface& path,
                           bool windingFill) = 0;
    // The supplier that made this surface; null for a surface made without one.
    virtual SupplierInterface* GetSupplier() const = 0;
    // Intersects the clip with the path.
    virtual void Clip(const PathInterface& path, bool windingFill) = 0;
    // The clip's bounding box in user space, rounded outwards to whole units.
    virtual zebcore::geom::RectT<int> GetClipBounds() const = 0;
    // Whether any part of rect lies inside the clip's bounding box.
    virtual bool IsWithinClipBounds(const zebcore::geom::RectT<int>& rect) const = 0;
    // Concatenates the matrix: it maps the new user space into the old one.
    virtual void Transform(const zebcore::geom::MatrixT<float>& matrix) = 0;
    virtual void GetTransform(zebcore::geom::MatrixT<float>& matrix) const = 0;
    // With width 0 the point is the left, centre or right of the text by alignment;
    // otherwise the text is aligned and truncated within width from the point. The point's
    // y is the top of the line.
    virtual void DrawString(const BrushInterface& brush, const FontInterface& font,
                            const zebcore::UTF16String& text,
                            const zebcore::geom::PointT<float>& point, TextAlignment alignment,
                            TextTruncation truncation, float width) = 0;
    // The width of the first `length` units of text, -1 for all of it.
    virtual float MeasureStringWidth(const FontInterface& font, const zebcore::UTF16String& text,
                                     int length) = 0;
    virtual void DrawImage(const ImageInterface& image, const zebcore::geom::PointT<float>& point,
                           float opacity) = 0;
    // Scales srcRect of the image (all of it when null) into destRect.
    virtual void DrawImage2(const SupplierInterface* supplier, const ImageInterface& image,
                            const zebcore::geom::RectT<float>& destRect,
                            const zebcore::geom::RectT<float>* srcRect, float opacity) = 0;
    // A copy of the present pixels, which later drawing does not change.
    virtual boost::intrusive_ptr<ImageInterface> GetSurfaceImage() = 0;
    // Values other than the three policies are ignored.
    virtual void SetAntiAliasPolicy(int policy) = 0;
    virtual int GetAntiAliasPolicy() const = 0;
    virtual void Flush() = 0;
};

}  // namespace inkwell
}  // namespace zebui

// The factory of a drawing back end: surfaces and the objects that draw on them.
#pragma once

#include <cstddef>

#include <boost/intrusive_ptr.hpp>

#include "zebcore/geom/Geometry.h"
#include "zebui/inkwell/ColorRGBA.h"

namespace zebui {
namespace inkwell {

class BrushInterface;
class FontInterface;
class ImageInterface;
class PathInterface;
class PenInterface;
class ShaderInterface;
class SurfaceInterface;

// Each Make... returns a new object at reference count 0: the caller either takes a
// reference (holders, intrusive pointers) or deletes it through its virtual destructor.
// A supplier must outlive every surface it makes, since surfaces hand it back.
class SupplierInterface {
public:
    virtual ~SupplierInterface() = default;

    // A surface that draws into the pixels of parent, limited to rect (in the parent's
    // pixels, whole parent when null) with its origin at the rect's corner. With
    // inheritState it starts from the parent's present transform and clip; otherwise from
    // an identity transform and no clip. Null when parent is not of this supplier.
    virtual SurfaceInterface* MakeSurface(SurfaceInterface* parent, bool inheritState,
                                          const zebcore::geom::RectT<int>* rect) const = 0;
    // Pixels of its own, cleared to transparent; an opaque surface has no alpha and starts
    // black. Null when a size is not positive.
    virtual SurfaceInterface* MakeOffscreenSurface(int width, int height, bool opaque) const = 0;
    virtual PenInterface* MakePen(const ColorRGBA& colour, float width) const = 0;
    virtual BrushInterface* MakeBrush(const ColorRGBA& colour) const = 0;
    // A gradient along the line from point1 to point2 with count colours at count stop
    // positions (0 at point1, 1 at point2); beyond the ends the end colours go on.
    virtual ShaderInterface* MakeLinearShader(const zebcore::geom::PointT<float>& point1,
                                              const zebcore::geom::PointT<float>& point2,
                                              const ColorRGBA* colours, const float* stops,
                                              int count) const = 0;
    // A circular gradient: point1 is the centre, with colour1, and the distance to point2
    // is the radius, where colour2 is reached and goes on outwards.
    virtual ShaderInterface* MakeRadialShader(const zebcore::geom::PointT<float>& point1,
                                              const zebcore::geom::PointT<float>& point2,
                                              const ColorRGBA& colour1,
                                              const ColorRGBA& colour2) const = 0;
    // family and style are zero-terminated UTF-16; style may be null.
    virtual FontInterface* MakeFont(const unsigned short* family, const unsigned short* style,
                                    float size) const = 0;
    virtual PathInterface* MakePath() const = 0;
    // Decodes a PNG file held in memory; null when the bytes are not one.
    virtual boost::intrusive_ptr<ImageInterface> MakeImageFromPNG(const unsigned char* bytes,
                                                                  std::size_t size) const = 0;
};

}  // namespace inkwell
}  // namespace zebui

// The supplier of the headless back end: Cairo surfaces and objects, Pango text.
#pragma once

#include "zebui/inkwell/SupplierInterface.h"

namespace zebui {
namespace inkwell {

class CairoSurface;

// Stateless: one instance may serve a whole process, and must outlive the surfaces it
// makes, since they hand it back as their supplier.
class CairoSupplier : public SupplierInterface {
public:
    SurfaceInterface* MakeSurface(SurfaceInterface* parent, bool inheritState,
                                  const zebcore::geom::RectT<int>* rect) const override;
    SurfaceInterface* MakeOffscreenSurface(int width, int height, bool opaque) const override;
    PenInterface* MakePen(const ColorRGBA& colour, float width) const override;
    BrushInterface* MakeBrush(const ColorRGBA& colour) const override;
    ShaderInterface* MakeLinearShader(const zebcore::geom::PointT<float>& point1,
                                      const zebcore::geom::PointT<float>& point2,
                                      const ColorRGBA* colours, const float* stops,
                                      int count) const override;
    ShaderInterface* MakeRadialShader(const zebcore::geom::PointT<float>& point1,
                                      const zebcore::geom::PointT<float>& point2,
                                      const ColorRGBA& colour1,
                                      const ColorRGBA& colour2) const override;
    FontInterface* MakeFont(const unsigned short* family, const unsigned short* style,
                            float size) const override;
    PathInterface* MakePath() const override;
    boost::intrusive_ptr<ImageInterface> MakeImageFromPNG(const unsigned char* bytes,
                                                          std::size_t size) const override;

    // The same surfaces as above with their pixel access in view, for hosts and tests.
    CairoSurface* MakeCairoSurface(SurfaceInterface* parent, bool inheritState,
                                   const zebcore::geom::RectT<int>* rect) const;
    CairoSurface* MakeOffscreenCairoSurface(int width, int height, bool opaque) const;
};

}  // namespace inkwell
}  // namespace zebui

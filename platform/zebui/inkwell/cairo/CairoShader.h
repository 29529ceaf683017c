// A gradient shader over a Cairo pattern.
#pragma once

#include <string>

#include "zebcore/geom/Geometry.h"
#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/ShaderInterface.h"
#include "zebui/inkwell/cairo/CairoForward.h"

namespace zebui {
namespace inkwell {

// Owns its pattern. Both kinds pad: past the last stop the end colour goes on.
class CairoShader : public ShaderInterface {
public:
    static CairoShader* MakeLinear(const zebcore::geom::PointT<float>& point1,
                                   const zebcore::geom::PointT<float>& point2,
                                   const ColorRGBA* colours, const float* stops, int count);
    // point1 is the centre; the distance to point2 is the radius.
    static CairoShader* MakeRadial(const zebcore::geom::PointT<float>& point1,
                                   const zebcore::geom::PointT<float>& point2,
                                   const ColorRGBA& colour1, const ColorRGBA& colour2);
    ~CairoShader() override;

    cairo_pattern_t* Pattern() const { return mPattern; }
    // False when a point, the radius or a stop is NaN or infinite: surfaces refuse to shade
    // with such a shader.
    bool IsFinite() const { return mFinite; }
    const std::string& Describe() const { return mDescription; }

private:
    CairoShader(cairo_pattern_t* pattern, std::string description, bool finite);

    cairo_pattern_t* mPattern;
    std::string mDescription;
    bool mFinite;
};

}  // namespace inkwell
}  // namespace zebui

// A gradient shader over a Cairo pattern.
#include "zebui/inkwell/cairo/CairoShader.h"

#include <cairo.h>

#include <cmath>
#include <utility>

#include "zebui/inkwell/cairo/CairoLimits.h"
#include "zebui/inkwell/cairo/CallLogFormat.h"

namespace zebui {
namespace inkwell {
namespace {

// A non-finite colour channel counts as 0, as for solid colours.
void addStop(cairo_pattern_t* pattern, float offset, const ColorRGBA& colour) {
    auto channel = [](float value) { return std::isfinite(value) ? value : 0.0; };
    cairo_pattern_add_color_stop_rgba(pattern, offset, channel(colour.red), channel(colour.green),
                                      channel(colour.blue), channel(colour.alpha));
}

}  // namespace

CairoShader* CairoShader::MakeLinear(const zebcore::geom::PointT<float>& point1,
                                     const zebcore::geom::PointT<float>& point2,
                                     const ColorRGBA* colours, const float* stops, int count) {
    cairo_pattern_t* pattern = cairo_pattern_create_linear(point1.x, point1.y, point2.x, point2.y);
    std::string description = "linear(" + FormatPoint(point1) + "," + FormatPoint(point2);
    bool finite = AllFinite({point1.x, point1.y, point2.x, point2.y});
    for (int i = 0; i < count; ++i) {
        finite = finite && std::isfinite(stops[i]);
        addStop(pattern, stops[i], colours[i]);
        description += "," + FormatNumber(stops[i]) + ":" + FormatColour(colours[i]);
    }
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_PAD);
    return new CairoShader(pattern, description + ")", finite);
}

CairoShader* CairoShader::MakeRadial(const zebcore::geom::PointT<float>& point1,
                                     const zebcore::geom::PointT<float>& point2,
                                     const ColorRGBA& colour1, const ColorRGBA& colour2) {
    const double radius = std::hypot(point2.x - point1.x, point2.y - point1.y);
    cairo_pattern_t* pattern =
        cairo_pattern_create_radial(point1.x, point1.y, 0.0, point1.x, point1.y, radius);
    addStop(pattern, 0.0f, colour1);
    addStop(pattern, 1.0f, colour2);
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_PAD);
    return new CairoShader(pattern,
                           "radial(" + FormatPoint(point1) + "," + FormatPoint(point2) + "," +
                               FormatColour(colour1) + "," + FormatColour(colour2) + ")",
                           AllFinite({point1.x, point1.y, radius}));
}

CairoShader::CairoShader(cairo_pattern_t* pattern, std::string description, bool finite)
    : mPattern(pattern), mDescription(std::move(description)), mFinite(finite) {}

CairoShader::~CairoShader() {
    cairo_pattern_destroy(mPattern);
}

}  // namespace inkwell
}  // namespace zebui

// What the Cairo back end refuses or narrows before it reaches Cairo.
#include "zebui/inkwell/cairo/CairoLimits.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>

namespace zebui {
namespace inkwell {
namespace {

double finiteOrZero(float value) {
    return std::isfinite(value) ? value : 0.0;
}

}  // namespace

bool ImageSizeAllowed(long long width, long long height, long long largestSide) {
    return width > 0 && height > 0 && width <= largestSide && height <= largestSide &&
           width * height * 4 <= static_cast<long long>(kLargestImageBytes);
}

void SetSourceColour(cairo_t* context, const ColorRGBA& colour) {
    cairo_set_source_rgba(context, finiteOrZero(colour.red), finiteOrZero(colour.green),
                          finiteOrZero(colour.blue), finiteOrZero(colour.alpha));
}

double LimitedOpacity(float opacity) {
    return opacity > 0.0f ? std::min(static_cast<double>(opacity), 1.0) : 0.0;
}

}  // namespace inkwell
}  // namespace zebui

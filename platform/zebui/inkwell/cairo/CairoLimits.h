// What the Cairo back end refuses or narrows before it reaches Cairo.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>

#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/cairo/CairoForward.h"

namespace zebui {
namespace inkwell {

// Cairo asserts on a NaN angle, loops for ever on an infinite radius or width, and works
// for minutes on absurd ones; a script can hand it any number. So every value goes through
// these limits first. None of them narrows anything a screen could show.

// Cairo's coordinates are 24.8 fixed point: a radius beyond this covers every pixel it
// can address, and beyond it the arc's segment count grows without bound.
constexpr double kLargestRadius = 8388608.0;
// Wider pens cover any surface here; the pen polygon's vertex count grows with the width.
constexpr double kLargestPenWidth = 65536.0;
// Text beyond this many UTF-16 units is neither drawn nor measured: Pango lays out the
// whole string first.
constexpr std::size_t kLongestText = 65536;
// Decoded images and offscreen surfaces: at most this many pixels a side and bytes in all.
constexpr int kLargestImageSide = 16384;
constexpr std::size_t kLargestImageBytes = std::size_t(256) << 20;

// True when none of values is NaN or infinite. Inline: every fill and stroke asks it.
inline bool AllFinite(std::initializer_list<double> values) {
    return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}
// Whether a width x height ARGB32 image stays within the image limits (largestSide: Cairo's
// own 32767 for surfaces, kLargestImageSide for decoded images).
bool ImageSizeAllowed(long long width, long long height, long long largestSide);
// The colour as Cairo's source; a non-finite channel counts as 0.
void SetSourceColour(cairo_t* context, const ColorRGBA& colour);
// An opacity for Cairo: 0 to 1, NaN as 0.
double LimitedOpacity(float opacity);

}  // namespace inkwell
}  // namespace zebui

// A pen that sets up a Cairo context for stroking.
#include "zebui/inkwell/cairo/CairoPen.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>

#include "zebui/inkwell/cairo/CairoLimits.h"
#include "zebui/inkwell/cairo/CallLogFormat.h"

namespace zebui {
namespace inkwell {
namespace {

cairo_line_join_t cairoJoin(LineJoinType join) {
    switch (join) {
    case kLineJoinType_Bevel:
        return CAIRO_LINE_JOIN_BEVEL;
    case kLineJoinType_Round:
        return CAIRO_LINE_JOIN_ROUND;
    default:
        return CAIRO_LINE_JOIN_MITER;
    }
}

cairo_line_cap_t cairoCap(LineCapType cap) {
    switch (cap) {
    case kLineCapType_Round:
        return CAIRO_LINE_CAP_ROUND;
    case kLineCapType_Square:
        return CAIRO_LINE_CAP_SQUARE;
    default:
        return CAIRO_LINE_CAP_BUTT;
    }
}

}  // namespace

CairoPen::CairoPen(const ColorRGBA& colour, float width) : mColour(colour), mWidth(width) {}

void CairoPen::SetWidth(float width) {
    mWidth = width;
}
float CairoPen::GetWidth() const {
    return mWidth;
}
void CairoPen::SetMiterLimit(float limit) {
    mMiterLimit = limit;
}
float CairoPen::GetMiterLimit() const {
    return mMiterLimit;
}

void CairoPen::SetLineJoin(LineJoinType join) {
    if (join >= kLineJoinType_Miter && join <= kLineJoinType_Round) mJoin = join;
}

LineJoinType CairoPen::GetLineJoin() const {
    return mJoin;
}

void CairoPen::SetLineCap(LineCapType cap) {
    if (cap >= kLineCapType_Flat && cap <= kLineCapType_Square) mCap = cap;
}

LineCapType CairoPen::GetLineCap() const {
    return mCap;
}

void CairoPen::SetDashPattern(const float* dashes, int count) {
    mDashes.clear();
    bool anyLength = false;
    for (int i = 0; i < count; ++i) {
        if (!(dashes[i] >= 0.0f) || std::isinf(dashes[i])) {
            mDashes.clear();
            return;
        }
        anyLength = anyLength || dashes[i] > 0.0f;
        mDashes.push_back(dashes[i]);
    }
    if (!anyLength) mDashes.clear();
}

void CairoPen::Apply(cairo_t* context) const {
    SetSourceColour(context, mColour);
    // A negative width would put the context into an error state, and an infinite one
    // would keep Cairo's stroker building the pen for ever.
    cairo_set_line_width(context, mWidth > 0.0f ? std::min<double>(mWidth, kLargestPenWidth) : 0.0);
    cairo_set_miter_limit(context, mMiterLimit);
    cairo_set_line_join(context, cairoJoin(mJoin));
    cairo_set_line_cap(context, cairoCap(mCap));
    const std::vector<double> dashes(mDashes.begin(), mDashes.end());
    cairo_set_dash(context, dashes.data(), static_cast<int>(dashes.size()), 0.0);
}

std::string CairoPen::Describe() const {
    return "(colour=" + FormatColour(mColour) + ", width=" + FormatNumber(mWidth) +
           ", miterLimit=" + FormatNumber(mMiterLimit) + ", join=" + std::to_string(mJoin) +
           ", cap=" + std::to_string(mCap) +
           ", dashes=" + FormatNumbers(mDashes.data(), static_cast<int>(mDashes.size())) + ")";
}

}  // namespace inkwell
}  // namespace zebui

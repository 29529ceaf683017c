// A pen that sets up a Cairo context for stroking.
#pragma once

#include <string>
#include <vector>

#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/PenInterface.h"
#include "zebui/inkwell/cairo/CairoForward.h"

namespace zebui {
namespace inkwell {

// Starts with a miter join, a flat cap, a miter limit of 10 and no dashes.
class CairoPen : public PenInterface {
public:
    CairoPen(const ColorRGBA& colour, float width);

    void SetWidth(float width) override;
    float GetWidth() const override;
    void SetMiterLimit(float limit) override;
    float GetMiterLimit() const override;
    void SetLineJoin(LineJoinType join) override;
    LineJoinType GetLineJoin() const override;
    void SetLineCap(LineCapType cap) override;
    LineCapType GetLineCap() const override;
    // Cairo puts a context into a lasting error state for a negative length or a pattern
    // of only zeros, so such a pattern gives a solid line instead.
    void SetDashPattern(const float* dashes, int count) override;

    // Sets the colour and every line property of the context.
    void Apply(cairo_t* context) const;
    std::string Describe() const;

private:
    ColorRGBA mColour;
    float mWidth;
    float mMiterLimit = 10.0f;
    LineJoinType mJoin = kLineJoinType_Default;
    LineCapType mCap = kLineCapType_Default;
    std::vector<float> mDashes;
};

}  // namespace inkwell
}  // namespace zebui

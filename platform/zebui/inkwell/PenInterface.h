// A pen of the toolkit: how a path's outline is stroked.
#pragma once

#include "zebcore/utility/RefCountedObject.h"
#include "zebui/inkwell/InkwellTypes.h"

namespace zebui {
namespace inkwell {

class PenInterface : public zebcore::utility::RefCountedObject {
public:
    virtual void SetWidth(float width) = 0;
    virtual float GetWidth() const = 0;
    virtual void SetMiterLimit(float limit) = 0;
    virtual float GetMiterLimit() const = 0;
    // Values outside the enumeration are ignored: the pen keeps its present style.
    virtual void SetLineJoin(LineJoinType join) = 0;
    virtual LineJoinType GetLineJoin() const = 0;
    virtual void SetLineCap(LineCapType cap) = 0;
    virtual LineCapType GetLineCap() const = 0;
    // Alternating on and off lengths, copied. A count of 0 gives a solid line again.
    virtual void SetDashPattern(const float* dashes, int count) = 0;
};

}  // namespace inkwell
}  // namespace zebui

// The bounds of a number a control holds, and where a drag that changes it began.
#pragma once

#include "zebcore/geom/PointT.h"

namespace zebui {
namespace controls {

// minimum <= maximum always: a bound set past the other moves that one too. NaN is refused.
class ValueRange {
public:
    ValueRange(double minimum, double maximum) : mMinimum(minimum), mMaximum(maximum) {}

    double GetMinimum() const { return mMinimum; }
    double GetMaximum() const { return mMaximum; }
    // false, and nothing changed, for NaN.
    bool SetMinimum(double minimum);
    bool SetMaximum(double maximum);
    double Clamp(double value) const;

private:
    double mMinimum;
    double mMaximum;
};

// The pointer and the value at the press that began a drag.
struct DragStart {
    zebcore::geom::PointT<float> where;
    double value = 0;

    // Units the pointer has gone right plus units it has gone up since the press.
    double Travel(const zebcore::geom::PointT<float>& now) const;
};

}  // namespace controls
}  // namespace zebui

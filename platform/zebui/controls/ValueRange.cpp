// Bounds of a control's number.
#include "zebui/controls/ValueRange.h"

#include <algorithm>
#include <cmath>

namespace zebui {
namespace controls {

bool ValueRange::SetMinimum(double minimum) {
    if (std::isnan(minimum)) return false;
    mMinimum = minimum;
    mMaximum = std::max(mMaximum, minimum);
    return true;
}

bool ValueRange::SetMaximum(double maximum) {
    if (std::isnan(maximum)) return false;
    mMaximum = maximum;
    mMinimum = std::min(mMinimum, maximum);
    return true;
}

double ValueRange::Clamp(double value) const {
    return std::clamp(value, mMinimum, mMaximum);
}

double DragStart::Travel(const zebcore::geom::PointT<float>& now) const {
    return double(now.x - where.x) + double(where.y - now.y);
}

}  // namespace controls
}  // namespace zebui

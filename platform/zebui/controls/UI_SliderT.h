// What sliders and scroll bars share: an extent their value lives in, along a long axis.
#pragma once

#include <algorithm>
#include <cmath>
#include <utility>

#include "zebcore/geom/PointT.h"
#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

// The extent is a pair, its lower end first (0 to 1 at the start). The long axis runs
// left to right in a control at least as wide as tall, else bottom to top.
template <class T> class UI_SliderT : public UI_InteractiveControlView {
public:
    using Pair = std::pair<T, T>;

    virtual Pair GetExtent() const { return mExtent; }
    // A pair given upper end first is put in order; one holding NaN is refused. The value
    // is brought within the new extent, a change reported as any other.
    virtual void SetExtent(T first, T second) {
        if (std::isnan(first) || std::isnan(second)) return;
        mExtent = std::minmax(first, second);
        ExtentChanged();
    }

protected:
    virtual void ExtentChanged() = 0;

    // The control's length along its long axis, and where on it a point lies (0 at the
    // lower end), in units.
    float AxisLength() const {
        const zebcore::geom::RectT<float> frame = UI_GetLocalRectF(false);
        return IsHorizontal() ? frame.width : frame.height;
    }
    float AlongAxis(const zebcore::geom::PointT<float>& where) const {
        return IsHorizontal() ? where.x : UI_GetLocalRectF(false).height - where.y;
    }
    bool IsHorizontal() const {
        const zebcore::geom::RectT<float> frame = UI_GetLocalRectF(false);
        return frame.width >= frame.height;
    }

private:
    Pair mExtent{T(0), T(1)};
};

}  // namespace controls
}  // namespace zebui

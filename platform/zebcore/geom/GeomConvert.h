// Float to integer geometry: how the edges of a rectangle and a point are rounded.
#pragma once

#include <cmath>
#include <limits>

#include "zebcore/debug/Debug.h"

namespace zebcore {
namespace geom {

// How ConvertRect rounds. Every caller of the toolkit uses kRectRound_OUT, so that a clip
// test or an invalidation always covers the whole float rectangle.
enum RectRound {
    kRectRound_OUT = 0,      // left and top down, right and bottom up
    kRectRound_IN = 1,       // left and top up, right and bottom down
    kRectRound_NEAREST = 2,  // every edge to the nearest value
};

// How ConvertPoint rounds both coordinates.
enum PointRound {
    kPointRound_CEIL = 0,
    kPointRound_FLOOR = 1,
    kPointRound_ROUND = 2,  // the nearest value, as kRectRound_NEAREST
};

namespace detail {

enum class Towards { kDown, kUp, kNearest };

// kNearest is floor(x + 0.5) in the form the toolkit has always computed it, in the
// source type: above zero the truncation of x + 0.5; otherwise the truncation of x - 0.5,
// unless x + 0.5 is whole, then the truncation of x. So -0.5 gives 0 and -1.5 gives -1.
template <class T> T RoundTowards(T x, Towards towards) {
    switch (towards) {
    case Towards::kDown:
        return std::floor(x);
    case Towards::kUp:
        return std::ceil(x);
    case Towards::kNearest:
        break;
    }
    if (x > T(0)) return std::trunc(x + T(0.5));
    const T up = x + T(0.5);
    return up == std::trunc(up) ? std::trunc(x) : std::trunc(x - T(0.5));
}

// A rounded value beyond Dest's range stops at its nearest end and NaN gives 0: a float
// to integer conversion out of range is undefined, and scripts pass any number.
template <class Dest, class T> Dest Saturated(T x) {
    if (x != x) return Dest();
    if (x <= static_cast<T>(std::numeric_limits<Dest>::min()))
        return std::numeric_limits<Dest>::min();
    if (x >= static_cast<T>(std::numeric_limits<Dest>::max()))
        return std::numeric_limits<Dest>::max();
    return static_cast<Dest>(x);
}

}  // namespace detail

// ConvertRect<RectT<int>, RectT<float>>(rect, kRectRound_OUT)
// Right and bottom are derived in the source type, then the four edges are rounded; the
// size is the difference of the rounded edges. Inward rounding of a rectangle narrower
// than a unit thus gives a negative size, which is kept. An unknown rounding is reported
// and rounds outward.
template <class DestRect, class SrcRect>
DestRect ConvertRect(const SrcRect& rect, RectRound rect_round) {
    using detail::Towards;
    using Dest = decltype(DestRect::left);
    Towards leftTop = Towards::kDown;
    Towards rightBottom = Towards::kUp;
    switch (rect_round) {
    case kRectRound_IN:
        leftTop = Towards::kUp;
        rightBottom = Towards::kDown;
        break;
    case kRectRound_NEAREST:
        leftTop = rightBottom = Towards::kNearest;
        break;
    default:
        ZEB_ASSERT_MSG(rect_round == kRectRound_OUT, "Unknown RectRound: rounding outward");
        break;
    case kRectRound_OUT:
        break;
    }
    const auto edge = [](auto value, Towards towards) {
        return detail::Saturated<Dest>(detail::RoundTowards(value, towards));
    };
    const Dest left = edge(rect.left, leftTop);
    const Dest top = edge(rect.top, leftTop);
    const Dest right = edge(rect.left + rect.width, rightBottom);
    const Dest bottom = edge(rect.top + rect.height, rightBottom);
    // Saturated edges can lie further apart than Dest reaches.
    return DestRect(left, top, detail::Saturated<Dest>(static_cast<double>(right) - left),
                    detail::Saturated<Dest>(static_cast<double>(bottom) - top));
}

// ConvertPoint<PointT<int>, PointT<float>>(point, kPointRound_ROUND)
// An unknown rounding is reported and rounds to the nearest value.
template <class DestPoint, class SrcPoint>
DestPoint ConvertPoint(const SrcPoint& point, PointRound round) {
    using detail::Towards;
    using Dest = decltype(DestPoint::x);
    Towards towards = Towards::kNearest;
    switch (round) {
    case kPointRound_CEIL:
        towards = Towards::kUp;
        break;
    case kPointRound_FLOOR:
        towards = Towards::kDown;
        break;
    default:
        ZEB_ASSERT_MSG(round == kPointRound_ROUND, "Unknown PointRound: rounding to nearest");
        break;
    case kPointRound_ROUND:
        break;
    }
    return DestPoint(detail::Saturated<Dest>(detail::RoundTowards(point.x, towards)),
                     detail::Saturated<Dest>(detail::RoundTowards(point.y, towards)));
}

}  // namespace geom
}  // namespace zebcore

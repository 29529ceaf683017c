// A rectangle of the toolkit's geometry: an origin and a size, never right and bottom.
#pragma once

#include "zebcore/geom/PointT.h"

namespace zebcore {
namespace geom {

// Right and bottom are always derived (left + width, top + height). A rectangle with
// a negative width or height is kept as given; it contains no point.
template <class T> struct RectT {
    T left = T();
    T top = T();
    T width = T();
    T height = T();

    constexpr RectT() = default;
    constexpr RectT(T leftValue, T topValue, T widthValue, T heightValue)
        : left(leftValue), top(topValue), width(widthValue), height(heightValue) {}
    constexpr RectT(const PointT<T>& origin, const PointT<T>& size)
        : left(origin.x), top(origin.y), width(size.x), height(size.y) {}

    constexpr T Right() const { return left + width; }
    constexpr T Bottom() const { return top + height; }
    constexpr PointT<T> GetOrigin() const { return PointT<T>(left, top); }
    // The size as a point: x is the width, y the height.
    constexpr PointT<T> GetSize() const { return PointT<T>(width, height); }
    constexpr bool IsEmpty() const { return !(width > T()) || !(height > T()); }

    // Left and top edges inside, right and bottom edges outside.
    constexpr bool Contains(const PointT<T>& point) const {
        return point.x >= left && point.y >= top && point.x < Right() && point.y < Bottom();
    }
    constexpr RectT Offset(const PointT<T>& by) const {
        return RectT(left + by.x, top + by.y, width, height);
    }

    constexpr bool operator==(const RectT& other) const {
        return left == other.left && top == other.top && width == other.width &&
               height == other.height;
    }
    constexpr bool operator!=(const RectT& other) const { return !(*this == other); }
};

}  // namespace geom
}  // namespace zebcore

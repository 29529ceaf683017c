// A point of the toolkit's geometry: x and y.
#pragma once

namespace zebcore {
namespace geom {

template <class T> struct PointT {
    T x = T();
    T y = T();

    constexpr PointT() = default;
    constexpr PointT(T xValue, T yValue) : x(xValue), y(yValue) {}

    constexpr PointT operator+(const PointT& other) const {
        return PointT(x + other.x, y + other.y);
    }
    constexpr PointT operator-(const PointT& other) const {
        return PointT(x - other.x, y - other.y);
    }
    PointT& operator+=(const PointT& other) {
        x += other.x;
        y += other.y;
        return *this;
    }
    PointT& operator-=(const PointT& other) {
        x -= other.x;
        y -= other.y;
        return *this;
    }
    constexpr bool operator==(const PointT& other) const { return x == other.x && y == other.y; }
    constexpr bool operator!=(const PointT& other) const { return !(*this == other); }
};

}  // namespace geom
}  // namespace zebcore

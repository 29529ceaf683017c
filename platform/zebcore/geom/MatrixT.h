// A 3 by 3 matrix of the toolkit's geometry: the affine transforms of drawing.
#pragma once

#include "zebcore/geom/PointT.h"

namespace zebcore {
namespace geom {

// Stored row after row. A point is a column (x, y, 1): the translation stands in the
// third column, and the third row of an affine transform is (0, 0, 1).
// A * B applies B first, then A.
template <class T> class MatrixT {
public:
    // The identity.
    constexpr MatrixT() : mValues{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}} {}
    constexpr MatrixT(T m00, T m01, T m02, T m10, T m11, T m12, T m20, T m21, T m22)
        : mValues{{m00, m01, m02}, {m10, m11, m12}, {m20, m21, m22}} {}

    static constexpr MatrixT Translation(T dx, T dy) {
        return MatrixT(1, 0, dx, 0, 1, dy, 0, 0, 1);
    }
    static constexpr MatrixT Scale(T sx, T sy) { return MatrixT(sx, 0, 0, 0, sy, 0, 0, 0, 1); }

    T& operator()(int row, int column) { return mValues[row][column]; }
    constexpr const T& operator()(int row, int column) const { return mValues[row][column]; }

    MatrixT operator*(const MatrixT& other) const {
        MatrixT product(0, 0, 0, 0, 0, 0, 0, 0, 0);
        for (int r = 0; r < 3; ++r)
            for (int c = 0; c < 3; ++c)
                for (int k = 0; k < 3; ++k)
                    product.mValues[r][c] += mValues[r][k] * other.mValues[k][c];
        return product;
    }

    // Applies the transform to a point; a projective third row divides by w.
    PointT<T> TransformPoint(const PointT<T>& point) const {
        const T x = mValues[0][0] * point.x + mValues[0][1] * point.y + mValues[0][2];
        const T y = mValues[1][0] * point.x + mValues[1][1] * point.y + mValues[1][2];
        const T w = mValues[2][0] * point.x + mValues[2][1] * point.y + mValues[2][2];
        return (w == T(1) || w == T()) ? PointT<T>(x, y) : PointT<T>(x / w, y / w);
    }

    bool operator==(const MatrixT& other) const {
        for (int r = 0; r < 3; ++r)
            for (int c = 0; c < 3; ++c)
                if (mValues[r][c] != other.mValues[r][c]) return false;
        return true;
    }
    bool operator!=(const MatrixT& other) const { return !(*this == other); }

private:
    T mValues[3][3];
};

}  // namespace geom
}  // namespace zebcore

// Native 4 x 4 transform matrix math: LU inversion and decomposition into components.
#pragma once

#include <boost/numeric/ublas/matrix.hpp>
#include <boost/numeric/ublas/vector.hpp>

namespace zeblua {
namespace numeric {

// Row-major; points are row vectors multiplied from the left, so the translation sits
// in row 3 and the perspective terms in column 3.
typedef boost::numeric::ublas::matrix<double> Matrix;
typedef boost::numeric::ublas::vector<double> Vector;

// inverse must already be 4 x 4. False for a singular input; never throws.
bool InvertMatrix(const Matrix& input, Matrix& inverse);

// Perspective, translation, scale and shear, then rotation (radians about x, y, z).
// translation, rotation, scale and shear hold 3 elements, perspective 4. False when
// (3, 3) is 0, or after an assertion report when the matrix without perspective is
// singular.
bool DecomposeTransform(const Matrix& input, Vector& translation, Vector& rotation, Vector& scale,
                        Vector& shear, Vector& perspective);

// Cross product of two 3-vectors.
Vector Vector3Cross(const Vector& a, const Vector& b);

}  // namespace numeric
}  // namespace zeblua

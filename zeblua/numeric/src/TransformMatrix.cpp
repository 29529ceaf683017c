// Native 4 x 4 transform matrix math: LU inversion and decomposition into components.
#include "zeblua/numeric/src/TransformMatrix.h"

#include <cmath>
#include <cstddef>

#include <boost/numeric/ublas/lu.hpp>

#include "zebcore/debug/Debug.h"

namespace zeblua {
namespace numeric {
namespace {

namespace ublas = boost::numeric::ublas;
typedef ublas::permutation_matrix<std::size_t> Permutation;

// The product of the LU diagonal, negated for each row the pivoting swapped. 0 for a
// singular matrix and for anything uBLAS throws (its debug checks included).
double determinant(const Matrix& matrix) {
    try {
        Matrix factors(matrix);
        Permutation permutation(factors.size1());
        if (ublas::lu_factorize(factors, permutation) != 0) return 0.0;
        double product = 1.0;
        for (std::size_t i = 0; i < factors.size1(); ++i) {
            product *= factors(i, i);
            if (permutation(i) != i) product = -product;
        }
        return product;
    } catch (...) {
        return 0.0;
    }
}

Vector upperRow(const Matrix& matrix, std::size_t row) {
    Vector upper(3);
    for (std::size_t column = 0; column < 3; ++column)
        upper(column) = matrix(row, column);
    return upper;
}

}  // namespace

bool InvertMatrix(const Matrix& input, Matrix& inverse) {
    try {
        Matrix factors(input);
        Permutation permutation(factors.size1());
        if (ublas::lu_factorize(factors, permutation) != 0) return false;
        inverse.assign(ublas::identity_matrix<double>(factors.size1()));
        ublas::lu_substitute(factors, permutation, inverse);
        return true;
    } catch (...) {
        return false;
    }
}

bool DecomposeTransform(const Matrix& input, Vector& translation, Vector& rotation, Vector& scale,
                        Vector& shear, Vector& perspective) {
    const double homogeneous = input(3, 3);
    if (homogeneous == 0.0) return false;
    Matrix local(input / homogeneous);

    // The perspective-free matrix comes from the input as given, not from the normalised
    // copy: with (3, 3) other than 1 the solved perspective depends on that.
    Matrix withoutPerspective(input);
    withoutPerspective(0, 3) = withoutPerspective(1, 3) = withoutPerspective(2, 3) = 0.0;
    withoutPerspective(3, 3) = 1.0;
    if (determinant(withoutPerspective) == 0.0) {
        ZEB_ASSERT_MSG(0 && "Bad perspective matrix",
                       "the transform without its perspective terms is singular");
        return false;
    }

    if (local(0, 3) != 0.0 || local(1, 3) != 0.0 || local(2, 3) != 0.0) {
        Vector rightHandSide(4);
        for (std::size_t row = 0; row < 4; ++row)
            rightHandSide(row) = local(row, 3);
        Matrix inverse(4, 4);
        if (!InvertMatrix(withoutPerspective, inverse)) return false;
        perspective = ublas::prod(rightHandSide, ublas::trans(inverse));
        local(0, 3) = local(1, 3) = local(2, 3) = 0.0;
        local(3, 3) = 1.0;
    } else {
        perspective(0) = perspective(1) = perspective(2) = 0.0;
        perspective(3) = 1.0;
    }

    for (std::size_t column = 0; column < 3; ++column) {
        translation(column) = local(3, column);
        local(3, column) = 0.0;
    }

    // Gram-Schmidt on the upper rows: scale and shear out, leaving the rotation rows.
    Vector r0 = upperRow(local, 0);
    Vector r1 = upperRow(local, 1);
    Vector r2 = upperRow(local, 2);

    scale(0) = ublas::norm_2(r0);
    r0 /= scale(0);

    shear(0) = ublas::inner_prod(r0, r1);
    r1 -= shear(0) * r0;

    scale(1) = ublas::norm_2(r1);
    r1 /= scale(1);
    if (scale(1) != 0.0) shear(0) /= scale(1);

    shear(1) = ublas::inner_prod(r0, r2);
    r2 -= shear(1) * r0;

    shear(2) = ublas::inner_prod(r1, r2);
    r2 -= shear(2) * r1;

    scale(2) = ublas::norm_2(r2);
    r2 /= scale(2);
    if (scale(2) != 0.0) {
        shear(1) /= scale(2);
        shear(2) /= scale(2);
    }

    // A left-handed frame: the scale takes the flip, the rotation rows turn back.
    if (ublas::inner_prod(r0, Vector3Cross(r1, r2)) < 0.0) {
        scale *= -1.0;
        r0 *= -1.0;
        r1 *= -1.0;
        r2 *= -1.0;
    }

    rotation(1) = std::asin(-r0(2));
    if (std::cos(rotation(1)) != 0.0) {
        rotation(0) = std::atan2(r1(2), r2(2));
        rotation(2) = std::atan2(r0(1), r0(0));
    } else {
        rotation(0) = std::atan2(-r2(0), r1(1));
        rotation(2) = 0.0;
    }
    return true;
}

Vector Vector3Cross(const Vector& a, const Vector& b) {
    ZEB_ASSERT(a.size() == 3);
    ZEB_ASSERT(b.size() == 3);
    Vector cross(3);
    cross(0) = a(1) * b(2) - a(2) * b(1);
    cross(1) = a(2) * b(0) - a(0) * b(2);
    cross(2) = a(0) * b(1) - a(1) * b(0);
    return cross;
}

}  // namespace numeric
}  // namespace zeblua

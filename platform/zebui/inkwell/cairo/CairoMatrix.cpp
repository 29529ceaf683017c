// Conversions between the toolkit's 3 by 3 matrices and Cairo's affine matrices.
#include "zebui/inkwell/cairo/CairoMatrix.h"

#include <cmath>

namespace zebui {
namespace inkwell {

cairo_matrix_t ToCairoMatrix(const zebcore::geom::MatrixT<float>& matrix) {
    cairo_matrix_t converted;
    cairo_matrix_init(&converted, matrix(0, 0), matrix(1, 0), matrix(0, 1), matrix(1, 1),
                      matrix(0, 2), matrix(1, 2));
    return converted;
}

zebcore::geom::MatrixT<float> FromCairoMatrix(const cairo_matrix_t& matrix) {
    return zebcore::geom::MatrixT<float>(
        static_cast<float>(matrix.xx), static_cast<float>(matrix.xy), static_cast<float>(matrix.x0),
        static_cast<float>(matrix.yx), static_cast<float>(matrix.yy), static_cast<float>(matrix.y0),
        0.0f, 0.0f, 1.0f);
}

namespace {

bool isInvertible(const cairo_matrix_t& m) {
    const double determinant = m.xx * m.yy - m.yx * m.xy;
    return std::isfinite(m.x0) && std::isfinite(m.y0) && std::isfinite(determinant) &&
           determinant != 0.0;
}

}  // namespace

bool CanConcatenate(cairo_t* context, const cairo_matrix_t& matrix) {
    cairo_matrix_t current;
    cairo_get_matrix(context, &current);
    cairo_matrix_t product;
    cairo_matrix_multiply(&product, &matrix, &current);
    return isInvertible(matrix) && isInvertible(product);
}

}  // namespace inkwell
}  // namespace zebui

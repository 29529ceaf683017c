// Conversions between the toolkit's 3 by 3 matrices and Cairo's affine matrices.
#pragma once

#include <cairo.h>

#include "zebcore/geom/MatrixT.h"

namespace zebui {
namespace inkwell {

// MatrixT maps a column (x, y, 1): x' = m00 x + m01 y + m02, y' = m10 x + m11 y + m12.
// Cairo holds those six as xx, xy, x0 and yx, yy, y0. Its matrices are affine only, so
// the third row (the perspective terms) is dropped on the way in and is (0, 0, 1) on the
// way out.
cairo_matrix_t ToCairoMatrix(const zebcore::geom::MatrixT<float>& matrix);
zebcore::geom::MatrixT<float> FromCairoMatrix(const cairo_matrix_t& matrix);

// Whether the context can take the matrix with cairo_transform. Cairo puts a context into
// a lasting error state when the matrix, or its product with the present transform, has a
// term that is not finite or cannot be inverted.
bool CanConcatenate(cairo_t* context, const cairo_matrix_t& matrix);

}  // namespace inkwell
}  // namespace zebui

// The toolkit's geometry in one include: points, rectangles, 3 by 3 matrices and the
// rounding conversions from float to integer geometry.
#pragma once

#include "zebcore/geom/GeomConvert.h"
#include "zebcore/geom/MatrixT.h"
#include "zebcore/geom/PointT.h"
#include "zebcore/geom/RectT.h"

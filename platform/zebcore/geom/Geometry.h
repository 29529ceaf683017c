// The toolkit's geometry in one include: points, rectangles and 3 by 3 matrices.
#pragma once

#include "zebcore/geom/MatrixT.h"
#include "zebcore/geom/PointT.h"
#include "zebcore/geom/RectT.h"

// A path of the toolkit: subpaths of lines, curves, rectangles and arcs, in user space.
#pragma once

#include "zebcore/geom/Geometry.h"
#include "zebcore/utility/RefCountedObject.h"

namespace zebui {
namespace inkwell {

// Made by a supplier and filled in before use; the surfaces read it when they fill,
// stroke, shade or clip. Angles are degrees from the x axis, growing clockwise on
// screen since y grows downwards.
class PathInterface : public zebcore::utility::RefCountedObject {
public:
    virtual void MoveTo(const zebcore::geom::PointT<float>& point) = 0;
    virtual void LineTo(const zebcore::geom::PointT<float>& point) = 0;
    // A cubic curve: two control points, then the end point.
    virtual void BezierTo(const zebcore::geom::PointT<float>& control1,
                          const zebcore::geom::PointT<float>& control2,
                          const zebcore::geom::PointT<float>& end) = 0;
    // A closed subpath of its own.
    virtual void AddRect(const zebcore::geom::RectT<float>& rect) = 0;
    // Sweeps from firstAngle to secondAngle (backwards when secondAngle is smaller). An
    // open subpath is joined to the arc by a line; otherwise the arc starts a new one.
    virtual void AddArc(const zebcore::geom::PointT<float>& centre, float radius, float firstAngle,
                        float secondAngle) = 0;
    virtual void ClosePath() = 0;
};

}  // namespace inkwell
}  // namespace zebui

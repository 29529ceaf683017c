// A path kept as the list of its operations, replayed into a Cairo context at each use.
#pragma once

#include <string>
#include <vector>

#include "zebui/inkwell/PathInterface.h"
#include "zebui/inkwell/cairo/CairoForward.h"

namespace zebui {
namespace inkwell {

// A recording, not a Cairo path: it belongs to no context, so it outlives the draw call
// that filled it and draws the same on any surface.
class CairoPath : public PathInterface {
public:
    void MoveTo(const zebcore::geom::PointT<float>& point) override;
    void LineTo(const zebcore::geom::PointT<float>& point) override;
    void BezierTo(const zebcore::geom::PointT<float>& control1,
                  const zebcore::geom::PointT<float>& control2,
                  const zebcore::geom::PointT<float>& end) override;
    void AddRect(const zebcore::geom::RectT<float>& rect) override;
    void AddArc(const zebcore::geom::PointT<float>& centre, float radius, float firstAngle,
                float secondAngle) override;
    void ClosePath() override;

    // Whether every recorded number is finite. Surfaces refuse a path that is not, since
    // Cairo cannot take a NaN or infinite coordinate, radius or angle.
    bool IsFinite() const { return mFinite; }
    // Replaces the context's current path by this one. An arc sweeps at most one full turn
    // and its radius is at most kLargestRadius.
    void Replay(cairo_t* context) const;
    // The operations in order, for call logs: "[M(0,0) L(4,0) Z]".
    std::string Describe() const;

private:
    enum class Op { kMoveTo, kLineTo, kBezierTo, kRect, kArc, kClose };
    struct Step {
        Op op;
        float v[6];
    };

    void append(const Step& step, int count);

    std::vector<Step> mSteps;
    bool mFinite = true;
};

}  // namespace inkwell
}  // namespace zebui

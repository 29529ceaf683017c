// A path kept as the list of its operations, replayed into a Cairo context at each use.
#include "zebui/inkwell/cairo/CairoPath.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>

#include "zebui/inkwell/cairo/CairoLimits.h"
#include "zebui/inkwell/cairo/CallLogFormat.h"

namespace zebui {
namespace inkwell {

void CairoPath::append(const Step& step, int count) {
    for (int i = 0; i < count; ++i)
        mFinite = mFinite && std::isfinite(step.v[i]);
    mSteps.push_back(step);
}

void CairoPath::MoveTo(const zebcore::geom::PointT<float>& point) {
    append({Op::kMoveTo, {point.x, point.y}}, 2);
}

void CairoPath::LineTo(const zebcore::geom::PointT<float>& point) {
    append({Op::kLineTo, {point.x, point.y}}, 2);
}

void CairoPath::BezierTo(const zebcore::geom::PointT<float>& control1,
                         const zebcore::geom::PointT<float>& control2,
                         const zebcore::geom::PointT<float>& end) {
    append({Op::kBezierTo, {control1.x, control1.y, control2.x, control2.y, end.x, end.y}}, 6);
}

void CairoPath::AddRect(const zebcore::geom::RectT<float>& rect) {
    append({Op::kRect, {rect.left, rect.top, rect.width, rect.height}}, 4);
}

void CairoPath::AddArc(const zebcore::geom::PointT<float>& centre, float radius, float firstAngle,
                       float secondAngle) {
    append({Op::kArc, {centre.x, centre.y, radius, firstAngle, secondAngle}}, 5);
}

void CairoPath::ClosePath() {
    mSteps.push_back({Op::kClose, {}});
}

void CairoPath::Replay(cairo_t* context) const {
    constexpr double kRadiansPerDegree = M_PI / 180.0;
    cairo_new_path(context);
    // Cairo joins an arc to any current point, also the start of a subpath that was just
    // closed; the toolkit joins it only to a subpath that is still open.
    bool subpathOpen = false;
    for (const Step& step : mSteps) {
        const float* v = step.v;
        switch (step.op) {
        case Op::kMoveTo:
            cairo_move_to(context, v[0], v[1]);
            subpathOpen = true;
            break;
        case Op::kLineTo:
            cairo_line_to(context, v[0], v[1]);
            subpathOpen = true;
            break;
        case Op::kBezierTo:
            cairo_curve_to(context, v[0], v[1], v[2], v[3], v[4], v[5]);
            subpathOpen = true;
            break;
        case Op::kRect:
            cairo_rectangle(context, v[0], v[1], v[2], v[3]);
            subpathOpen = false;
            break;
        case Op::kArc: {
            if (!subpathOpen) cairo_new_sub_path(context);
            // Cairo takes a sweep of many turns one turn at a time, and a huge angle in
            // steps that no longer change it; the start is brought near zero so that the
            // sweep keeps its precision.
            const double sweep = std::clamp(double(v[4]) - v[3], -360.0, 360.0);
            const double first = std::fmod(double(v[3]), 360.0);
            const double radius = std::min(double(v[2]), kLargestRadius);
            if (sweep >= 0.0)
                cairo_arc(context, v[0], v[1], radius, first * kRadiansPerDegree,
                          (first + sweep) * kRadiansPerDegree);
            else
                cairo_arc_negative(context, v[0], v[1], radius, first * kRadiansPerDegree,
                                   (first + sweep) * kRadiansPerDegree);
            subpathOpen = true;
            break;
        }
        case Op::kClose:
            cairo_close_path(context);
            subpathOpen = false;
            break;
        }
    }
}

std::string CairoPath::Describe() const {
    std::string text = "[";
    for (const Step& step : mSteps) {
        if (text.size() > 1) text += ' ';
        const float* v = step.v;
        switch (step.op) {
        case Op::kMoveTo:
            text += "M" + FormatNumbers(v, 2);
            break;
        case Op::kLineTo:
            text += "L" + FormatNumbers(v, 2);
            break;
        case Op::kBezierTo:
            text += "C" + FormatNumbers(v, 6);
            break;
        case Op::kRect:
            text += "R" + FormatNumbers(v, 4);
            break;
        case Op::kArc:
            text += "A" + FormatNumbers(v, 5);
            break;
        case Op::kClose:
            text += "Z";
            break;
        }
    }
    return text + "]";
}

}  // namespace inkwell
}  // namespace zebui

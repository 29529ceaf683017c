// A path kept as the list of its operations, replayed into a Cairo context at each use.
#include "zebui/inkwell/cairo/CairoPath.h"

#include <cairo.h>

#include <cmath>

#include "zebui/inkwell/cairo/CallLogFormat.h"

namespace zebui {
namespace inkwell {

void CairoPath::MoveTo(const zebcore::geom::PointT<float>& point) {
    mSteps.push_back({Op::kMoveTo, {point.x, point.y}});
}

void CairoPath::LineTo(const zebcore::geom::PointT<float>& point) {
    mSteps.push_back({Op::kLineTo, {point.x, point.y}});
}

void CairoPath::BezierTo(const zebcore::geom::PointT<float>& control1,
                         const zebcore::geom::PointT<float>& control2,
                         const zebcore::geom::PointT<float>& end) {
    mSteps.push_back(
        {Op::kBezierTo, {control1.x, control1.y, control2.x, control2.y, end.x, end.y}});
}

void CairoPath::AddRect(const zebcore::geom::RectT<float>& rect) {
    mSteps.push_back({Op::kRect, {rect.left, rect.top, rect.width, rect.height}});
}

void CairoPath::AddArc(const zebcore::geom::PointT<float>& centre, float radius, float firstAngle,
                       float secondAngle) {
    mSteps.push_back({Op::kArc, {centre.x, centre.y, radius, firstAngle, secondAngle}});
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
        case Op::kArc:
            if (!subpathOpen) cairo_new_sub_path(context);
            if (v[4] >= v[3])
                cairo_arc(context, v[0], v[1], v[2], v[3] * kRadiansPerDegree,
                          v[4] * kRadiansPerDegree);
            else
                cairo_arc_negative(context, v[0], v[1], v[2], v[3] * kRadiansPerDegree,
                                   v[4] * kRadiansPerDegree);
            subpathOpen = true;
            break;
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

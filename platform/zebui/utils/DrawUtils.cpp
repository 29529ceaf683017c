// Outlined and filled rectangles with rounded corners, drawn through an Inkwell.
#include "zebui/utils/DrawUtils.h"

#include <algorithm>

#include "zebui/inkwell/BrushP.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/PathP.h"
#include "zebui/inkwell/PenP.h"
#include "zebui/inkwell/SurfaceInterface.h"

namespace zebui {
namespace utils {
namespace {

using zebcore::geom::PointT;
using zebcore::geom::RectT;

// Clockwise from the top left; a square corner is a plain line to the corner point.
void addRoundedRect(inkwell::PathInterface& path, const RectT<float>& rect, float cornerRadius,
                    unsigned corners) {
    const float radius =
        std::max(0.0f, std::min(cornerRadius, std::min(rect.width, rect.height) / 2));
    if (radius == 0.0f) {
        path.AddRect(rect);
        return;
    }
    auto radiusAt = [&](unsigned corner) { return (corners & corner) ? radius : 0.0f; };
    auto corner = [&](float x, float y, float r, float cx, float cy, float fromAngle) {
        if (r == 0.0f)
            path.LineTo(PointT<float>(x, y));
        else
            path.AddArc(PointT<float>(cx, cy), r, fromAngle, fromAngle + 90.0f);
    };
    const float left = rect.left, top = rect.top, right = rect.Right(), bottom = rect.Bottom();
    const float tl = radiusAt(kTopLeftCorner), tr = radiusAt(kTopRightCorner);
    const float br = radiusAt(kBottomRightCorner), bl = radiusAt(kBottomLeftCorner);
    path.MoveTo(PointT<float>(left + tl, top));
    corner(right, top, tr, right - tr, top + tr, 270.0f);
    corner(right, bottom, br, right - br, bottom - br, 0.0f);
    corner(left, bottom, bl, left + bl, bottom - bl, 90.0f);
    corner(left, top, tl, left + tl, top + tl, 180.0f);
    path.ClosePath();
}

}  // namespace

void DrawOutline(inkwell::Inkwell* inkwell, const RectT<float>& rect,
                 const inkwell::ColorRGBA& colour, float cornerRadius, unsigned corners,
                 float lineWidth) {
    if (!inkwell || !inkwell->GetSurface()) return;
    inkwell::PathP path(inkwell->GetSupplier());
    inkwell::PenP pen(inkwell->GetSupplier(), colour, lineWidth);
    if (!path.mScPtr || !pen.mScPtr) return;
    const float inset = lineWidth / 2;
    addRoundedRect(*path.mScPtr,
                   RectT<float>(rect.left + inset, rect.top + inset, rect.width - lineWidth,
                                rect.height - lineWidth),
                   cornerRadius - inset, corners);
    inkwell->GetSurface()->StrokePath(*pen.mScPtr, *path.mScPtr);
}

void DrawRoundedFill(inkwell::Inkwell* inkwell, const RectT<float>& rect,
                     const inkwell::ColorRGBA& colour, float cornerRadius, unsigned corners) {
    if (!inkwell || !inkwell->GetSurface()) return;
    inkwell::PathP path(inkwell->GetSupplier());
    inkwell::BrushP brush(inkwell->GetSupplier(), colour);
    if (!path.mScPtr || !brush.mScPtr) return;
    addRoundedRect(*path.mScPtr, rect, cornerRadius, corners);
    inkwell->GetSurface()->FillPath(*brush.mScPtr, *path.mScPtr, true);
}

}  // namespace utils
}  // namespace zebui

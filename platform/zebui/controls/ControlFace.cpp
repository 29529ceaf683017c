// Control faces: paths, pens and text made with the inkwell's own supplier.
#include "zebui/controls/ControlFace.h"

#include <algorithm>

#include "zebui/controls/UI_ControlView.h"
#include "zebui/inkwell/BrushInterface.h"
#include "zebui/inkwell/FontInterface.h"
#include "zebui/inkwell/ImageInterface.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/PathInterface.h"
#include "zebui/inkwell/PenInterface.h"
#include "zebui/inkwell/SupplierInterface.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/ui/ThemeFonts.h"
#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace controls {
namespace face {

const inkwell::ColorRGBA kFaceFill(0.84f, 0.85f, 0.87f);
const inkwell::ColorRGBA kFaceEdge(0.38f, 0.40f, 0.45f);
const inkwell::ColorRGBA kFieldFill(0.98f, 0.98f, 0.97f);
const inkwell::ColorRGBA kAccent(0.20f, 0.45f, 0.85f);
const inkwell::ColorRGBA kText(0.10f, 0.10f, 0.12f);

namespace {

using zebcore::geom::PointT;
using zebcore::geom::RectT;

constexpr float kLargestMark = 14.0f;
constexpr float kMarkGap = 4.0f;

template <class T> using Held = boost::intrusive_ptr<T>;

// Both halves of the inkwell, or false when there is nothing to draw with.
bool drawable(inkwell::Inkwell* inkwell) {
    return inkwell && inkwell->GetSurface() && inkwell->GetSupplier();
}

void fillAndEdge(inkwell::Inkwell* inkwell, const inkwell::PathInterface& path,
                 const inkwell::ColorRGBA& fill, const inkwell::ColorRGBA& edge) {
    const inkwell::SupplierInterface& supplier = *inkwell->GetSupplier();
    const Held<inkwell::BrushInterface> brush(supplier.MakeBrush(fill));
    const Held<inkwell::PenInterface> pen(supplier.MakePen(edge, 1.0f));
    inkwell->GetSurface()->FillPath(*brush, path, true);
    inkwell->GetSurface()->StrokePath(*pen, path);
}

// The rect as a closed subpath, its corners quarter arcs of radius.
void addRoundRect(inkwell::PathInterface& path, const RectT<float>& rect, float radius) {
    if (!(radius > 0)) {
        path.AddRect(rect);
        return;
    }
    const float right = rect.left + rect.width;
    const float bottom = rect.top + rect.height;
    path.MoveTo(PointT<float>(rect.left + radius, rect.top));
    path.AddArc(PointT<float>(right - radius, rect.top + radius), radius, 270, 360);
    path.AddArc(PointT<float>(right - radius, bottom - radius), radius, 0, 90);
    path.AddArc(PointT<float>(rect.left + radius, bottom - radius), radius, 90, 180);
    path.AddArc(PointT<float>(rect.left + radius, rect.top + radius), radius, 180, 270);
    path.ClosePath();
}

}  // namespace

RectT<float> Bounds(const ui::UI_Node& node) {
    const RectT<float> frame = node.UI_GetLocalRectF(false);
    return RectT<float>(0, 0, frame.width, frame.height);
}

RectT<float> MarkSquare(const RectT<float>& bounds) {
    const float side = std::min(bounds.height, kLargestMark);
    return RectT<float>(bounds.left, bounds.top + (bounds.height - side) / 2, side, side);
}

RectT<float> BesideMark(const RectT<float>& bounds) {
    const float start = MarkSquare(bounds).width + kMarkGap;
    return RectT<float>(bounds.left + start, bounds.top, std::max(bounds.width - start, 0.0f),
                        bounds.height);
}

void FrameRect(inkwell::Inkwell* inkwell, const RectT<float>& rect, const inkwell::ColorRGBA& fill,
               const inkwell::ColorRGBA& edge) {
    if (!drawable(inkwell) || rect.width < 1 || rect.height < 1) return;
    const Held<inkwell::PathInterface> path(inkwell->GetSupplier()->MakePath());
    // The line's middle half a unit inside, so that it covers whole pixels of the rect.
    path->AddRect(RectT<float>(rect.left + 0.5f, rect.top + 0.5f, rect.width - 1, rect.height - 1));
    fillAndEdge(inkwell, *path, fill, edge);
}

void FrameCircle(inkwell::Inkwell* inkwell, const PointT<float>& centre, float radius,
                 const inkwell::ColorRGBA& fill, const inkwell::ColorRGBA& edge) {
    if (!drawable(inkwell) || radius < 1) return;
    const Held<inkwell::PathInterface> path(inkwell->GetSupplier()->MakePath());
    path->AddArc(centre, radius - 0.5f, 0, 360);
    path->ClosePath();
    fillAndEdge(inkwell, *path, fill, edge);
}

void FillRoundRect(inkwell::Inkwell* inkwell, const RectT<float>& rect, float radius,
                   const inkwell::ColorRGBA& fill) {
    if (!drawable(inkwell) || rect.width <= 0 || rect.height <= 0) return;
    const inkwell::SupplierInterface& supplier = *inkwell->GetSupplier();
    const Held<inkwell::PathInterface> path(supplier.MakePath());
    addRoundRect(*path, rect, radius);
    const Held<inkwell::BrushInterface> brush(supplier.MakeBrush(fill));
    inkwell->GetSurface()->FillPath(*brush, *path, true);
}

void EdgeRoundRect(inkwell::Inkwell* inkwell, const RectT<float>& rect, float radius, float width,
                   const inkwell::ColorRGBA& edge) {
    if (!drawable(inkwell) || !(width > 0) || rect.width < width || rect.height < width) return;
    const inkwell::SupplierInterface& supplier = *inkwell->GetSupplier();
    const Held<inkwell::PathInterface> path(supplier.MakePath());
    // The line's middle half its width inside, so that it lies within the rect.
    const float half = width / 2;
    addRoundRect(
        *path,
        RectT<float>(rect.left + half, rect.top + half, rect.width - width, rect.height - width),
        std::max(radius - half, 0.0f));
    const Held<inkwell::PenInterface> pen(supplier.MakePen(edge, width));
    inkwell->GetSurface()->StrokePath(*pen, *path);
}

void FillPolygon(inkwell::Inkwell* inkwell, const PointT<float>* points, int count,
                 const inkwell::ColorRGBA& colour) {
    if (!drawable(inkwell) || count < 3) return;
    const Held<inkwell::PathInterface> path(inkwell->GetSupplier()->MakePath());
    path->MoveTo(points[0]);
    for (int i = 1; i < count; ++i)
        path->LineTo(points[i]);
    path->ClosePath();
    const Held<inkwell::BrushInterface> brush(inkwell->GetSupplier()->MakeBrush(colour));
    inkwell->GetSurface()->FillPath(*brush, *path, true);
}

void DrawText(inkwell::Inkwell* inkwell, const zebcore::UTF16String& text, const RectT<float>& rect,
              inkwell::TextAlignment alignment, float size, const inkwell::ColorRGBA& colour) {
    if (!drawable(inkwell) || text.empty()) return;
    const inkwell::SupplierInterface& supplier = *inkwell->GetSupplier();
    const zebcore::UTF16String family = ui::GetFontName(0);
    if (!(size > 0)) size = UI_ControlView::DefaultTextSize();
    const Held<inkwell::FontInterface> font(
        supplier.MakeFont(reinterpret_cast<const unsigned short*>(family.c_str()), nullptr, size));
    const Held<inkwell::BrushInterface> brush(supplier.MakeBrush(colour));
    // Lines are a little taller than the size; centre that height.
    const float top = rect.top + (rect.height - size * 1.2f) / 2;
    inkwell->GetSurface()->DrawString(*brush, *font, text, PointT<float>(rect.left, top), alignment,
                                      inkwell::kTextTruncation_EndEllipsis, rect.width);
}

void DrawImage(inkwell::Inkwell* inkwell, const Held<inkwell::ImageInterface>& image,
               const RectT<float>& rect, float opacity) {
    if (!drawable(inkwell) || !image) return;
    inkwell->GetSurface()->DrawImage2(inkwell->GetSupplier(), *image, rect, nullptr, opacity);
}

}  // namespace face
}  // namespace controls
}  // namespace zebui

// A view that lays out its children in a column.
#include "zebui/ui/UI_ArrangementView.h"

#include <algorithm>

namespace zebui {
namespace ui {

using zebcore::geom::PointT;
using zebcore::geom::RectT;

UI_ArrangementView::UI_ArrangementView() = default;

UI_ArrangementView::~UI_ArrangementView() = default;

void UI_ArrangementView::UI_LayoutChildren(const PointT<float>& margin,
                                           const PointT<float>& spacing) {
    const auto keep = KeepNodeAlive(this);
    const float width = std::max(0.0f, UI_GetLocalRectF(false).width - 2 * margin.x);
    float top = margin.y;
    for (const auto& child : HeldChildren(*this)) {
        if (!child->UI_IsShown() || child->UI_GetParentNode() != this) continue;
        const float height = child->UI_GetLocalRectF(false).height;
        child->UI_SetLocalRectF(RectT<float>(margin.x, top, width, height));
        top += height + spacing.y;
    }
}

void UI_ArrangementView::UI_LayoutChildrenForSize(const PointT<float>&, const PointT<float>&) {
    UI_LayoutChildren(PointT<float>(), PointT<float>());
}

}  // namespace ui
}  // namespace zebui

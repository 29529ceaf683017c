// Sub views and the layout bindings of their children.
#include "zebui/ui/UI_SubView.h"

#include <algorithm>

namespace zebui {
namespace ui {
namespace {

using zebcore::geom::PointT;
using zebcore::geom::RectT;

// One axis of a child's frame after its parent grew by delta.
void followEdges(float& origin, float& extent, float delta, bool nearBound, bool farBound) {
    if (nearBound && farBound)
        extent = std::max(0.0f, extent + delta);
    else if (farBound)
        origin += delta;
}

}  // namespace

UI_SubView::UI_SubView() = default;

UI_SubView::~UI_SubView() = default;

void UI_SubView::UI_SetLayoutsChildren(bool layouts) {
    mLayoutsChildren = layouts;
}

void UI_SubView::UI_SetLayoutBinding(LayoutBinding binding) {
    mLayoutBinding = binding;
}

void UI_SubView::UI_SizeChanged(const RectT<float>& rect) {
    const auto keep = KeepNodeAlive(this);
    const PointT<float> before = mLaidOutSize;
    mLaidOutSize = rect.GetSize();
    if (mLayoutsChildren) UI_LayoutChildrenForSize(before, mLaidOutSize);
    UI_Node::UI_SizeChanged(rect);
}

void UI_SubView::UI_LayoutChildrenForSize(const PointT<float>& before, const PointT<float>& after) {
    const PointT<float> delta = after - before;
    for (const auto& child : HeldChildren(*this)) {
        const auto* view = dynamic_cast<const UI_SubView*>(child.get());
        if (!view || child->UI_GetParentNode() != this) continue;
        const LayoutBinding binding = view->UI_GetLayoutBinding();
        RectT<float> frame = child->UI_GetLocalRectF(false);
        followEdges(frame.left, frame.width, delta.x, binding.IsSet(kBindLeft),
                    binding.IsSet(kBindRight));
        followEdges(frame.top, frame.height, delta.y, binding.IsSet(kBindTop),
                    binding.IsSet(kBindBottom));
        child->UI_SetLocalRectF(frame);
    }
}

std::vector<boost::intrusive_ptr<UI_Node>> HeldChildren(const UI_Node& node) {
    return std::vector<boost::intrusive_ptr<UI_Node>>(node.ChildBegin(), node.ChildEnd());
}

}  // namespace ui
}  // namespace zebui

// A node with its own coordinate space and layout: the base of most controls.
#pragma once

#include <vector>

#include "zebcore/utility/Flags.h"
#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace ui {

// Layout: when a sub view's size changes and it lays out its children, each child that is
// a sub view follows the parent's edges it is bound to (its layout binding). Bound to both
// edges of an axis it stretches with the parent; bound to the far edge alone it moves with
// it; bound to the near edge alone, or to neither, it stays where it is. A sub view that
// doesn't lay out its children leaves them alone. Children are moved through
// UI_SetLocalRectF, so their own size listeners and layouts run in turn.
class UI_SubView : public UI_Node {
public:
    using LayoutBinding = zebcore::utility::Flags<unsigned char>;
    static constexpr unsigned char kBindLeft = 1;
    static constexpr unsigned char kBindTop = 2;
    static constexpr unsigned char kBindRight = 4;
    static constexpr unsigned char kBindBottom = 8;

    UI_SubView();
    ~UI_SubView() override;

    bool UI_GetLayoutsChildren() const { return mLayoutsChildren; }
    virtual void UI_SetLayoutsChildren(bool layouts);
    // How this view follows its parent's edges; left and top until set.
    LayoutBinding UI_GetLayoutBinding() const { return mLayoutBinding; }
    virtual void UI_SetLayoutBinding(LayoutBinding binding);

    // Lays the children out for the new size before the size listeners hear of it.
    void UI_SizeChanged(const zebcore::geom::RectT<float>& rect) override;

protected:
    // Moves the children for a change of size from before to after; the bindings' way here.
    virtual void UI_LayoutChildrenForSize(const zebcore::geom::PointT<float>& before,
                                          const zebcore::geom::PointT<float>& after);

private:
    bool mLayoutsChildren = true;
    LayoutBinding mLayoutBinding = LayoutBinding(kBindLeft | kBindTop);
    zebcore::geom::PointT<float> mLaidOutSize;
};

// The children of node, held, so that a caller may run script between them.
std::vector<boost::intrusive_ptr<UI_Node>> HeldChildren(const UI_Node& node);

}  // namespace ui
}  // namespace zebui

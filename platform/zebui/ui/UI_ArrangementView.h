// A view that lays out its children.
#pragma once

#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace ui {

// Stacks its shown children in one column from the top, each as wide as the view less
// the margins and as tall as it is, again at every change of the view's size.
class UI_ArrangementView : public UI_SubView {
public:
    UI_ArrangementView();
    ~UI_ArrangementView() override;

    // margin: the space at the left and right (x) and above the first child (y); spacing.y
    // the space between two children (spacing.x is not used by a column).
    virtual void UI_LayoutChildren(const zebcore::geom::PointT<float>& margin,
                                   const zebcore::geom::PointT<float>& spacing);

protected:
    void UI_LayoutChildrenForSize(const zebcore::geom::PointT<float>& before,
                                  const zebcore::geom::PointT<float>& after) override;
};

}  // namespace ui
}  // namespace zebui

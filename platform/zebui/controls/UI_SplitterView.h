// A view split in two panes by a movable bar.
#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "zebui/ui/UI_SubView.h"

namespace boost {
template <class Signature> class function;
}  // namespace boost

namespace zebui {
namespace controls {

// The panes fill the view on either side of the bar, which stands at the split: the
// first pane's share of the view, 0 to 1. Every new split (SetSplitPercentage, a drag of
// the bar) is first offered to the validation function, whose answer is taken, held to 0
// to 1; each change of size lays the panes out again at the split. A drag starts with a
// left-button down on the bar.
class UI_SplitterView : public ui::UI_SubView {
public:
    using SplitValidationFunctionP = boost::shared_ptr<boost::function<float(float)>>;

    // direction 0 puts the panes side by side (a vertical bar), any other value one above
    // the other; split is the first pane's share of the view, 0 to 1; barWidth in units.
    UI_SplitterView(int direction, float split, float barWidth);
    ~UI_SplitterView() override;

    int GetDirection() const { return mDirection; }
    void SetSplitDirection(int direction);
    float GetSplit() const { return mSplit; }
    float GetSplitPercentage() const { return mSplit; }
    void SetSplitPercentage(float split);
    float GetBarWidth() const { return mBarWidth; }
    // A pane replaces the one before it, which leaves the view; null just removes it.
    void SetTopLeftView(const boost::intrusive_ptr<ui::UI_Node>& view);
    void SetBottomRightView(const boost::intrusive_ptr<ui::UI_Node>& view);
    ui::UI_Node* GetTopLeftView() const { return mTopLeft.get(); }
    ui::UI_Node* GetBottomRightView() const { return mBottomRight.get(); }
    void SetSplitValidationFunction(const SplitValidationFunctionP& function);
    // The bar in the view's own coordinates.
    zebcore::geom::RectT<float> GetBarRect() const;

    bool UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) override;

protected:
    // The bar at the split.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_LayoutChildrenForSize(const zebcore::geom::PointT<float>& before,
                                  const zebcore::geom::PointT<float>& after) override;

private:
    void setPane(boost::intrusive_ptr<ui::UI_Node>& pane,
                 const boost::intrusive_ptr<ui::UI_Node>& view);
    void layoutPanes();
    // The share at which a bar centred at point would stand.
    float splitAt(const zebcore::geom::PointT<float>& point) const;

    int mDirection;
    float mSplit;
    float mBarWidth;
    boost::intrusive_ptr<ui::UI_Node> mTopLeft;
    boost::intrusive_ptr<ui::UI_Node> mBottomRight;
    SplitValidationFunctionP mValidation;
    bool mDragging = false;
};

}  // namespace controls
}  // namespace zebui

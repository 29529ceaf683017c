// A view split in two panes by a movable bar.
#pragma once

#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace controls {

class UI_SplitterView : public ui::UI_SubView {
public:
    // direction 0 puts the panes side by side (a vertical bar), any other value one above
    // the other; split is the first pane's share of the view, 0 to 1; barWidth in units.
    UI_SplitterView(int direction, float split, float barWidth);
    ~UI_SplitterView() override;

    int GetDirection() const { return mDirection; }
    float GetSplit() const { return mSplit; }
    float GetBarWidth() const { return mBarWidth; }

protected:
    // The bar at the split.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    int mDirection;
    float mSplit;
    float mBarWidth;
};

}  // namespace controls
}  // namespace zebui

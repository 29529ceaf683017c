// A view split in two panes by a movable bar.
#include "zebui/controls/UI_SplitterView.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_SplitterView::UI_SplitterView(int direction, float split, float barWidth)
    : mDirection(direction), mSplit(split), mBarWidth(barWidth) {}

UI_SplitterView::~UI_SplitterView() = default;

void UI_SplitterView::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const zebcore::geom::RectT<float> bar =
        mDirection == 0 ? zebcore::geom::RectT<float>(bounds.width * mSplit - mBarWidth / 2, 0,
                                                      mBarWidth, bounds.height)
                        : zebcore::geom::RectT<float>(0, bounds.height * mSplit - mBarWidth / 2,
                                                      bounds.width, mBarWidth);
    face::FrameRect(inkwell, bar, face::kFaceFill, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui

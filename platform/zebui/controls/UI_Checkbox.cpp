// A check box.
#include "zebui/controls/UI_Checkbox.h"

#include <algorithm>

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_Checkbox::UI_Checkbox() = default;

UI_Checkbox::~UI_Checkbox() = default;

void UI_Checkbox::SetChecked(bool checked) {
    ChangeValue(mChecked, checked);
}

void UI_Checkbox::UI_TrackPointer(InteractiveChangePhase phase,
                                  const zebcore::geom::PointT<float>& where) {
    const zebcore::geom::RectT<float> frame = UI_GetLocalRectF(false);
    const bool inside =
        where.x >= 0 && where.y >= 0 && where.x < frame.width && where.y < frame.height;
    if (phase == kInteractiveChange_Finish && inside) SetChecked(!mChecked);
}

void UI_Checkbox::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    const float side = std::min(bounds.height, 14.0f);
    face::FrameRect(inkwell, zebcore::geom::RectT<float>(0, (bounds.height - side) / 2, side, side),
                    face::kFieldFill, face::kFaceEdge);
}

}  // namespace controls
}  // namespace zebui

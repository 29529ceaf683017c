// A check box.
#include "zebui/controls/UI_Checkbox.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_Checkbox::UI_Checkbox() : UI_TextControlBase(static_cast<ui::UI_Node&>(*this)) {}

UI_Checkbox::~UI_Checkbox() = default;

void UI_Checkbox::SetChecked(bool checked) {
    if (checked != mChecked || IsValueUnknown()) UI_Invalidate(nullptr, 0);
    ChangeValue(mChecked, checked);
}

bool UI_Checkbox::UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) {
    return UI_InteractiveControlView::UI_DoKeyboardEvent(target, event) ||
           PressOnSpace(target, event);
}

zebcore::geom::RectT<float> UI_Checkbox::GetLabelTextRect() const {
    return face::BesideMark(face::Bounds(*this));
}

void UI_Checkbox::UI_TrackPointer(InteractiveChangePhase phase,
                                  const zebcore::geom::PointT<float>& where) {
    if (phase == kInteractiveChange_Finish && ContainsLocalPoint(where))
        SetChecked(IsValueUnknown() || !mChecked);
}

void UI_Checkbox::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> box = face::MarkSquare(face::Bounds(*this));
    face::FrameRect(inkwell, box, face::kFieldFill, face::kFaceEdge);
    const float side = box.width;
    if (IsValueUnknown())
        face::FillRoundRect(inkwell, {box.left + 3, box.top + side / 2 - 1, side - 6, 2}, 0,
                            face::kAccent);
    else if (mChecked)
        face::FillRoundRect(inkwell, {box.left + 3, box.top + 3, side - 6, side - 6}, 0,
                            face::kAccent);
    DrawLabelText(inkwell, GetLabelText(), GetLabelTextRect());
}

}  // namespace controls
}  // namespace zebui

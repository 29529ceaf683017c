// A radio button.
#include "zebui/controls/UI_RadioButton.h"

#include "zebui/controls/ControlFace.h"
#include "zebui/controls/UI_RadioGroup.h"

namespace zebui {
namespace controls {

UI_RadioButton::UI_RadioButton() : UI_TextControlBase(static_cast<ui::UI_Node&>(*this)) {}

UI_RadioButton::~UI_RadioButton() = default;

// The group learns of a change of its selection after the button's own change functions
// ran; the group is held, since they may take the button out of it.
void UI_RadioButton::SetValue(RadioValue value) {
    const auto keep = ui::KeepNodeAlive(this);
    UI_RadioGroup* group = GetRadioGroup();
    const auto keepGroup = ui::KeepNodeAlive(group);
    const bool wasOn = mValue == kRadioValue_On;
    if (group && value == kRadioValue_On) group->SwitchOffAllBut(this);
    changeValue(value);
    if (group && wasOn != (value == kRadioValue_On)) group->SendValueChangedMessage();
}

UI_RadioGroup* UI_RadioButton::GetRadioGroup() const {
    for (ui::UI_Node* node = UI_GetParentNode(); node; node = node->UI_GetParentNode())
        if (auto* group = dynamic_cast<UI_RadioGroup*>(node)) return group;
    return nullptr;
}

bool UI_RadioButton::UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) {
    return UI_InteractiveControlView::UI_DoKeyboardEvent(target, event) ||
           PressOnSpace(target, event);
}

zebcore::geom::RectT<float> UI_RadioButton::GetLabelTextRect() const {
    return face::BesideMark(face::Bounds(*this));
}

void UI_RadioButton::UI_TrackPointer(InteractiveChangePhase phase,
                                     const zebcore::geom::PointT<float>& where) {
    if (phase == kInteractiveChange_Finish && ContainsLocalPoint(where)) SetValue(kRadioValue_On);
}

void UI_RadioButton::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> mark = face::MarkSquare(face::Bounds(*this));
    const float radius = mark.width / 2;
    const zebcore::geom::PointT<float> centre(mark.left + radius, mark.top + radius);
    face::FrameCircle(inkwell, centre, radius, face::kFieldFill, face::kFaceEdge);
    if (mValue == kRadioValue_On && !IsValueUnknown())
        face::FrameCircle(inkwell, centre, radius / 2, face::kAccent, face::kAccent);
    DrawLabelText(inkwell, GetLabelText(), GetLabelTextRect());
}

void UI_RadioButton::changeValue(RadioValue value) {
    if (value != mValue || IsValueUnknown()) UI_Invalidate(nullptr, 0);
    ChangeValue(mValue, value);
}

}  // namespace controls
}  // namespace zebui

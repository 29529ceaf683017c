// Interactive control views.
#include "zebui/controls/UI_InteractiveControlView.h"

#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/MouseEvent.h"

namespace zebui {
namespace controls {

UI_InteractiveControlView::UI_InteractiveControlView() = default;

UI_InteractiveControlView::~UI_InteractiveControlView() = default;

void UI_InteractiveControlView::NotifyWhenChangedInteractively(
    const ui::MessageFunctionP& listener) {
    if (listener) mInteractiveListeners.push_back(listener);
}

void UI_InteractiveControlView::BeginInteractiveChange() {
    mInInteractiveChange = true;
    sendPhase(kInteractiveChange_Begin, 0);
}

void UI_InteractiveControlView::ContinueInteractiveChange(ui::ModifierFlags modifiers) {
    sendPhase(kInteractiveChange_Continue, modifiers);
}

void UI_InteractiveControlView::FinishInteractiveChange() {
    mInInteractiveChange = false;
    sendPhase(kInteractiveChange_Finish, 0);
}

void UI_InteractiveControlView::CancelInteractiveChange() {
    mInInteractiveChange = false;
    sendPhase(kInteractiveChange_Cancel, 0);
}

bool UI_InteractiveControlView::UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) {
    if (UI_ControlView::UI_DoMouseEvent(target, event)) return true;
    const zebcore::geom::PointT<float>& where = event.GetPosition();
    switch (event.GetAction()) {
    case ui::kMouseAction_Down:
        if (target != this || event.GetButton() != ui::kMouseButton_Left) return false;
        UI_TrackPointer(kInteractiveChange_Begin, where);
        BeginInteractiveChange();
        return true;
    case ui::kMouseAction_Drag:
        if (!mInInteractiveChange) return false;
        UI_TrackPointer(kInteractiveChange_Continue, where);
        ContinueInteractiveChange(event.GetModKey());
        return true;
    case ui::kMouseAction_Up:
        if (!mInInteractiveChange) return false;
        UI_TrackPointer(kInteractiveChange_Finish, where);
        FinishInteractiveChange();
        return true;
    default:
        return false;
    }
}

void UI_InteractiveControlView::UI_TrackPointer(InteractiveChangePhase,
                                                const zebcore::geom::PointT<float>&) {}

bool UI_InteractiveControlView::ContainsLocalPoint(
    const zebcore::geom::PointT<float>& where) const {
    const zebcore::geom::RectT<float> frame = UI_GetLocalRectF(false);
    return where.x >= 0 && where.y >= 0 && where.x < frame.width && where.y < frame.height;
}

bool UI_InteractiveControlView::PressOnSpace(ui::UI_Node* target, const ui::KeyboardEvent& event) {
    if (target != this || event.GetAction() != ui::kKeyboardAction_Down ||
        event.GetCode().GetValue(true) != ui::kKeyCode_Space || mInInteractiveChange)
        return false;
    const auto keep = ui::KeepNodeAlive(this);  // a listener may drop the last holder
    const zebcore::geom::RectT<float> frame = UI_GetLocalRectF(false);
    const zebcore::geom::PointT<float> middle(frame.width / 2, frame.height / 2);
    UI_TrackPointer(kInteractiveChange_Begin, middle);
    BeginInteractiveChange();
    UI_TrackPointer(kInteractiveChange_Finish, middle);
    FinishInteractiveChange();
    return true;
}

void UI_InteractiveControlView::sendPhase(InteractiveChangePhase phase,
                                          ui::ModifierFlags modifiers) {
    UI_InteractiveControlChangedMessage message(this, phase, modifiers);
    SendToListeners(mInteractiveListeners, message);
}

}  // namespace controls
}  // namespace zebui

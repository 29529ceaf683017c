// Interactive control views.
#include "zebui/controls/UI_InteractiveControlView.h"

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

void UI_InteractiveControlView::sendPhase(InteractiveChangePhase phase,
                                          ui::ModifierFlags modifiers) {
    UI_InteractiveControlChangedMessage message(this, phase, modifiers);
    SendToListeners(mInteractiveListeners, message);
}

}  // namespace controls
}  // namespace zebui

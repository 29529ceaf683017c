// Control views.
#include "zebui/controls/UI_ControlView.h"

#include <boost/function.hpp>

#include "zebui/controls/UI_ControlChangedMessage.h"

namespace zebui {
namespace controls {

UI_ControlView::UI_ControlView() = default;

UI_ControlView::~UI_ControlView() = default;

float UI_ControlView::DefaultTextSize() {
    return 12.0f;
}

void UI_ControlView::NotifyWhenChanged(const ui::MessageFunctionP& listener) {
    if (listener) mChangedListeners.push_back(listener);
}

void UI_ControlView::SendValueChangedMessage() {
    UI_ControlChangedMessage message(this);
    SendToListeners(mChangedListeners, message);
}

void UI_ControlView::SetDisabled(bool disabled) {
    UI_SetDisabled(disabled);
}

void UI_ControlView::SetValueUnknown() {
    if (mValueUnknown) return;
    mValueUnknown = true;
    SendValueChangedMessage();
}

void UI_ControlView::SetSuppressFocusDrawing(bool suppress) {
    mSuppressFocusDrawing = suppress;
}

void UI_ControlView::SendToListeners(const std::vector<ui::MessageFunctionP>& listeners,
                                     ui::MessageT<ui::UI_Node>& message) {
    const auto keep = ui::KeepNodeAlive(this);
    const std::vector<ui::MessageFunctionP> calling = listeners;
    for (const auto& listener : calling)
        if (!listener->empty()) (*listener)(&message);
}

}  // namespace controls
}  // namespace zebui

// A control view whose value the user changes in phases: begin, continue, then finish
// or cancel.
#pragma once

#include <vector>

#include "zebui/controls/UI_ControlView.h"
#include "zebui/controls/UI_InteractiveControlChangedMessage.h"
#include "zebui/ui/InputCodes.h"

namespace zebui {
namespace controls {

// Each phase sends a UI_InteractiveControlChangedMessage to the interactive listeners.
// The phases aren't policed: a phase called out of order is still reported, since
// scripts can drive them for testing. A control class that changes its value during a
// phase sends the plain value change message itself.
class UI_InteractiveControlView : public UI_ControlView {
public:
    UI_InteractiveControlView();
    ~UI_InteractiveControlView() override;

    void NotifyWhenChangedInteractively(const ui::MessageFunctionP& listener);

    virtual void BeginInteractiveChange();
    virtual void ContinueInteractiveChange(ui::ModifierFlags modifiers);
    virtual void FinishInteractiveChange();
    virtual void CancelInteractiveChange();
    // Between a begin and its finish or cancel.
    bool IsInInteractiveChange() const { return mInInteractiveChange; }

private:
    void sendPhase(InteractiveChangePhase phase, ui::ModifierFlags modifiers);

    std::vector<ui::MessageFunctionP> mInteractiveListeners;
    bool mInInteractiveChange = false;
};

}  // namespace controls
}  // namespace zebui

// A control view whose value the user changes in phases: begin, continue, then finish
// or cancel.
#pragma once

#include <vector>

#include "zebcore/geom/PointT.h"
#include "zebui/controls/UI_ControlView.h"
#include "zebui/controls/UI_InteractiveControlChangedMessage.h"
#include "zebui/ui/InputCodes.h"

namespace zebui {
namespace controls {

// Each phase sends a UI_InteractiveControlChangedMessage to the interactive listeners.
// The phases aren't policed: a phase called out of order is still reported, since
// scripts can drive them for testing. A control class that changes its value during a
// phase sends the plain value change message itself.
//
// The pointer drives the phases: a left-button down aimed at the control itself (not
// one bubbling up from a child) begins a change and takes the event, so the pointer is
// captured; each drag continues it with the drag's modifier keys, and the up finishes
// it. Before each phase is reported the class sees where the pointer is
// (UI_TrackPointer), so a listener of the phase reads the value it led to. A bound
// mouse hook that takes the event leaves the control out.
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

    bool UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) override;

protected:
    // The pointer at phase, in the control's own coordinates, just before the phase is
    // reported: where a class moves its value. The plain control has none to move.
    virtual void UI_TrackPointer(InteractiveChangePhase phase,
                                 const zebcore::geom::PointT<float>& where);
    // where, in the control's own coordinates, lies on the control.
    bool ContainsLocalPoint(const zebcore::geom::PointT<float>& where) const;
    // For a control that a click presses (buttons, check boxes, radio buttons), called from
    // its UI_DoKeyboardEvent: Space on the focused control runs the phases a click in its
    // middle would, so no listener can tell a key from the pointer. True when it did.
    bool PressOnSpace(ui::UI_Node* target, const ui::KeyboardEvent& event);

private:
    void sendPhase(InteractiveChangePhase phase, ui::ModifierFlags modifiers);

    std::vector<ui::MessageFunctionP> mInteractiveListeners;
    bool mInInteractiveChange = false;
};

}  // namespace controls
}  // namespace zebui

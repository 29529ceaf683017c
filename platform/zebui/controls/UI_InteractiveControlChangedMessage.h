// The message a control sends at each phase of a change the user makes interactively.
#pragma once

#include "zebui/controls/UI_ControlMessage.h"
#include "zebui/ui/InputCodes.h"

namespace zebui {
namespace controls {

// Scripts see these numbers as beginChange, continueChange, finishChange, cancelChange.
enum InteractiveChangePhase : int {
    kInteractiveChange_Begin = 0,
    kInteractiveChange_Continue = 1,
    kInteractiveChange_Finish = 2,
    kInteractiveChange_Cancel = 3,
};

class UI_InteractiveControlChangedMessage : public UI_ControlMessage {
public:
    UI_InteractiveControlChangedMessage(ui::UI_Node* control, InteractiveChangePhase phase,
                                        ui::ModifierFlags modifiers);
    ~UI_InteractiveControlChangedMessage() override;

    // The phase, an InteractiveChangePhase.
    int GetChangeMessage() const { return mPhase; }
    // The modifier keys held at this phase; none outside continue.
    ui::ModifierFlags GetModifiers() const { return mModifiers; }

private:
    InteractiveChangePhase mPhase;
    ui::ModifierFlags mModifiers;
};

}  // namespace controls
}  // namespace zebui

// Interactive change messages.
#include "zebui/controls/UI_InteractiveControlChangedMessage.h"

namespace zebui {
namespace controls {

UI_InteractiveControlChangedMessage::UI_InteractiveControlChangedMessage(
    ui::UI_Node* control, InteractiveChangePhase phase, ui::ModifierFlags modifiers)
    : UI_ControlMessage(control), mPhase(phase), mModifiers(modifiers) {}

UI_InteractiveControlChangedMessage::~UI_InteractiveControlChangedMessage() = default;

}  // namespace controls
}  // namespace zebui

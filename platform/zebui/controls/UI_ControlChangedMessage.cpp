// Value change messages.
#include "zebui/controls/UI_ControlChangedMessage.h"

namespace zebui {
namespace controls {

UI_ControlChangedMessage::UI_ControlChangedMessage(ui::UI_Node* control)
    : UI_ControlMessage(control) {}

UI_ControlChangedMessage::~UI_ControlChangedMessage() = default;

}  // namespace controls
}  // namespace zebui

// Control messages.
#include "zebui/controls/UI_ControlMessage.h"

namespace zebui {
namespace controls {

UI_ControlMessage::UI_ControlMessage(ui::UI_Node* control) : ui::MessageT<ui::UI_Node>(control) {}

UI_ControlMessage::~UI_ControlMessage() = default;

}  // namespace controls
}  // namespace zebui

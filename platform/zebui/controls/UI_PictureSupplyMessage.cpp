// Picture supply messages.
#include "zebui/controls/UI_PictureSupplyMessage.h"

namespace zebui {
namespace controls {

UI_PictureSupplyMessage::UI_PictureSupplyMessage(const ui::UI_Node* control, StateFlags stateFlags)
    : ui::MessageT<const ui::UI_Node>(control), mStateFlags(stateFlags) {}

UI_PictureSupplyMessage::~UI_PictureSupplyMessage() = default;

}  // namespace controls
}  // namespace zebui

// Picture supply messages.
#include "zebui/controls/UI_PictureSupplyMessage.h"

#include <boost/function.hpp>

namespace zebui {
namespace controls {

UI_PictureSupplyMessage::UI_PictureSupplyMessage(const ui::UI_Node* control, StateFlags stateFlags)
    : ui::MessageT<const ui::UI_Node>(control), mStateFlags(stateFlags) {}

UI_PictureSupplyMessage::~UI_PictureSupplyMessage() = default;

boost::intrusive_ptr<inkwell::ImageInterface>
UI_PictureSupplyMessage::Ask(const ui::ConstMessageFunctionP& supply, const ui::UI_Node* control,
                             StateFlags stateFlags) {
    if (!supply || supply->empty()) return nullptr;
    UI_PictureSupplyMessage message(control, stateFlags);
    (*supply)(&message);
    return message.GetImage();
}

}  // namespace controls
}  // namespace zebui

// The message a control sends when its value changed.
#pragma once

#include "zebui/controls/UI_ControlMessage.h"

namespace zebui {
namespace controls {

// Carries nothing but the control: a listener asks the control for its value.
class UI_ControlChangedMessage : public UI_ControlMessage {
public:
    explicit UI_ControlChangedMessage(ui::UI_Node* control);
    ~UI_ControlChangedMessage() override;
};

}  // namespace controls
}  // namespace zebui

// The base of the messages a control sends about itself.
#pragma once

#include "zebui/ui/MessageT.h"

namespace zebui {
namespace ui {
class UI_Node;
}  // namespace ui

namespace controls {

class UI_ControlMessage : public ui::MessageT<ui::UI_Node> {
public:
    explicit UI_ControlMessage(ui::UI_Node* control);
    ~UI_ControlMessage() override;

    // The control that sent the message.
    ui::UI_Node* GetControl() const { return GetSender(); }
};

}  // namespace controls
}  // namespace zebui

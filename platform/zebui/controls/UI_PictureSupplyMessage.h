// The message in which a picture control asks for the image of its present state.
#pragma once

#include "zebcore/utility/Flags.h"
#include "zebui/ui/MessageT.h"

namespace zebui {
namespace ui {
class UI_Node;
}  // namespace ui

namespace controls {

// Sent by a const control; the supplier answers by handing the message an image.
class UI_PictureSupplyMessage : public ui::MessageT<const ui::UI_Node> {
public:
    using StateFlags = zebcore::utility::Flags<unsigned int>;

    UI_PictureSupplyMessage(const ui::UI_Node* control, StateFlags stateFlags);
    ~UI_PictureSupplyMessage() override;

    const ui::UI_Node* GetControl() const { return GetSender(); }
    // The drawing state of the control; bit 1 is the pointer over it.
    StateFlags GetStateFlags() const { return mStateFlags; }

private:
    StateFlags mStateFlags;
};

}  // namespace controls
}  // namespace zebui

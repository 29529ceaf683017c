// The message in which a picture control asks for the image of its present state.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/Flags.h"
#include "zebui/inkwell/ImageInterface.h"
#include "zebui/ui/MessageT.h"
#include "zebui/ui/NodeFunctions.h"

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

    // What a picture control draws: the image that supply hands a new message from
    // control in that state, null without a supply function or an answer.
    static boost::intrusive_ptr<inkwell::ImageInterface>
    Ask(const ui::ConstMessageFunctionP& supply, const ui::UI_Node* control, StateFlags stateFlags);

    const ui::UI_Node* GetControl() const { return GetSender(); }
    // The drawing state of the control: mask 1 pressed, mask 2 the pointer over it; mask 4
    // asks for the plain image whatever else is set.
    StateFlags GetStateFlags() const { return mStateFlags; }

    // The answer: the image the control draws, held by the message; null until set.
    void SetImage(const boost::intrusive_ptr<inkwell::ImageInterface>& image) { mImage = image; }
    const boost::intrusive_ptr<inkwell::ImageInterface>& GetImage() const { return mImage; }

private:
    StateFlags mStateFlags;
    boost::intrusive_ptr<inkwell::ImageInterface> mImage;
};

}  // namespace controls
}  // namespace zebui

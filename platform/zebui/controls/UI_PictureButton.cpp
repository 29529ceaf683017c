// A button drawn from images.
#include "zebui/controls/UI_PictureButton.h"

#include "zebui/controls/ControlFace.h"
#include "zebui/controls/UI_PictureSupplyMessage.h"

namespace zebui {
namespace controls {

namespace {
constexpr unsigned kRolloverState = 2;
}  // namespace

UI_PictureButton::UI_PictureButton() = default;

UI_PictureButton::~UI_PictureButton() = default;

void UI_PictureButton::SetImageBaseName(const zebcore::UTF8String& name) {
    mImageBaseName = name;
}

void UI_PictureButton::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const unsigned state = UI_IsMouseOver(false) ? kRolloverState : 0;
    face::DrawImage(inkwell, UI_PictureSupplyMessage::Ask(GetImageSupplyFunction(), this, state),
                    GetContentRect());
}

}  // namespace controls
}  // namespace zebui

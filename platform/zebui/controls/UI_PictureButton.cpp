// A button drawn from images.
#include "zebui/controls/UI_PictureButton.h"

namespace zebui {
namespace controls {

UI_PictureButton::UI_PictureButton() = default;

UI_PictureButton::~UI_PictureButton() = default;

void UI_PictureButton::SetImageBaseName(const zebcore::UTF8String& name) {
    mImageBaseName = name;
}

}  // namespace controls
}  // namespace zebui

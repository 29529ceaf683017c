// A text button that also shows an image.
#include "zebui/controls/UI_PictureTextButton.h"

namespace zebui {
namespace controls {

UI_PictureTextButton::UI_PictureTextButton() = default;

UI_PictureTextButton::~UI_PictureTextButton() = default;

void UI_PictureTextButton::SetImageBaseName(const zebcore::UTF8String& name) {
    mImageBaseName = name;
}

}  // namespace controls
}  // namespace zebui

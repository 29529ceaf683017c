// A control that shows an image.
#include "zebui/controls/UI_StaticImage.h"

namespace zebui {
namespace controls {

UI_StaticImage::UI_StaticImage() = default;

UI_StaticImage::~UI_StaticImage() = default;

void UI_StaticImage::SetImageName(const zebcore::UTF8String& name) {
    mImageName = name;
}

}  // namespace controls
}  // namespace zebui

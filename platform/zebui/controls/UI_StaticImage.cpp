// A control that shows an image.
#include "zebui/controls/UI_StaticImage.h"

#include <algorithm>

#include "zebui/controls/ControlFace.h"
#include "zebui/controls/UI_PictureSupplyMessage.h"

namespace zebui {
namespace controls {

UI_StaticImage::UI_StaticImage() = default;

UI_StaticImage::~UI_StaticImage() = default;

void UI_StaticImage::SetImageName(const zebcore::UTF8String& name) {
    mImageName = name;
}

void UI_StaticImage::SetAlpha(float alpha) {
    mAlpha = alpha;
    UI_Invalidate(nullptr, 0);
}

void UI_StaticImage::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    face::DrawImage(inkwell, UI_PictureSupplyMessage::Ask(GetImageSupplyFunction(), this, 0),
                    face::Bounds(*this), mAlpha >= 0 ? std::min(mAlpha, 1.0f) : 0.0f);
}

}  // namespace controls
}  // namespace zebui

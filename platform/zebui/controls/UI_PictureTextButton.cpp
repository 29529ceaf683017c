// A text button that also shows an image.
#include "zebui/controls/UI_PictureTextButton.h"

#include <algorithm>

#include "zebui/controls/ControlFace.h"
#include "zebui/controls/UI_PictureSupplyMessage.h"

namespace zebui {
namespace controls {

namespace {
constexpr unsigned kRolloverState = 2;
constexpr float kImageGap = 4.0f;
}  // namespace

UI_PictureTextButton::UI_PictureTextButton() = default;

UI_PictureTextButton::~UI_PictureTextButton() = default;

void UI_PictureTextButton::SetImageBaseName(const zebcore::UTF8String& name) {
    mImageBaseName = name;
    TextChanged();
}

zebcore::geom::RectT<float> UI_PictureTextButton::GetLabelTextRect() const {
    zebcore::geom::RectT<float> rect = UI_TextButton::GetLabelTextRect();
    const float start = imageSquare().width + kImageGap;
    rect.left += start;
    rect.width = std::max(rect.width - start, 0.0f);
    return rect;
}

void UI_PictureTextButton::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    UI_Button::UI_DrawFace(inkwell);
    const unsigned state = UI_IsMouseOver(false) ? kRolloverState : 0;
    face::DrawImage(inkwell, UI_PictureSupplyMessage::Ask(GetImageSupplyFunction(), this, state),
                    imageSquare());
    DrawLabelText(inkwell, GetLabelText(), GetLabelTextRect());
}

// As tall as the content rect, at its leading edge.
zebcore::geom::RectT<float> UI_PictureTextButton::imageSquare() const {
    const zebcore::geom::RectT<float> content = GetContentRect();
    const float side = std::max(std::min(content.width, content.height), 0.0f);
    return zebcore::geom::RectT<float>(content.left, content.top, side, side);
}

}  // namespace controls
}  // namespace zebui

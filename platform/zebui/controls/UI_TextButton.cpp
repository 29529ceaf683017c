// A button with a text label.
#include "zebui/controls/UI_TextButton.h"

#include <algorithm>
#include <cmath>

namespace zebui {
namespace controls {

UI_TextButton::UI_TextButton() : UI_TextControlBase(static_cast<ui::UI_Node&>(*this)) {}

UI_TextButton::~UI_TextButton() = default;

void UI_TextButton::SetTextIndent(float indent) {
    mTextIndent = indent;
    TextChanged();
}

zebcore::geom::RectT<float> UI_TextButton::GetLabelTextRect() const {
    zebcore::geom::RectT<float> rect = GetContentRect();
    const float indent = std::isfinite(mTextIndent) ? mTextIndent : 0;  // a script's NaN
    rect.left += indent;
    rect.width = std::max(rect.width - indent, 0.0f);
    return rect;
}

void UI_TextButton::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    UI_Button::UI_DrawFace(inkwell);
    DrawLabelText(inkwell, GetLabelText(), GetLabelTextRect());
}

}  // namespace controls
}  // namespace zebui

// A text that acts as a control.
#include "zebui/controls/UI_HotText.h"

#include "zebui/controls/ControlFace.h"

namespace zebui {
namespace controls {

UI_HotText::UI_HotText() : UI_TextControlBase(static_cast<ui::UI_Node&>(*this)) {}

UI_HotText::~UI_HotText() = default;

void UI_HotText::SetText(const zebcore::UTF16String& text, bool redraw) {
    mText = text;
    if (redraw) TextChanged();
}

void UI_HotText::SetAlignment(ControlAlignment alignment) {
    mAlignment = alignment;
    TextChanged();
}

bool UI_HotText::IsEditingInPlace() const {
    return false;
}

void UI_HotText::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    const zebcore::geom::RectT<float> area = GetLabelTextRect();
    const zebcore::UTF16String& label = GetLabelText();
    const zebcore::UTF16String shown = label.empty() ? mText : label + u" " + mText;
    const auto alignment = mAlignment == kControlAlignment_Right    ? inkwell::kTextAlignment_Right
                           : mAlignment == kControlAlignment_Center ? inkwell::kTextAlignment_Center
                                                                    : inkwell::kTextAlignment_Left;
    face::DrawText(inkwell, shown, area, alignment, GetTextSize(), face::kAccent);
}

}  // namespace controls
}  // namespace zebui

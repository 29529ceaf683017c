// A control that shows a text the user can't edit.
#include "zebui/controls/UI_StaticText.h"

namespace zebui {
namespace controls {

UI_StaticText::UI_StaticText() : UI_TextControlBase(static_cast<ui::UI_Node&>(*this)) {}

UI_StaticText::~UI_StaticText() = default;

void UI_StaticText::SetValue(const zebcore::UTF16String& text) {
    ChangeValue(mValue, text);
    TextChanged();
}

void UI_StaticText::SetCustomTextColor(const inkwell::ColorRGBA& colour, bool redraw) {
    mCustomColour = colour;
    mHasCustomColour = true;
    if (redraw) TextChanged();
}

void UI_StaticText::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    DrawLabelText(inkwell, mValue.empty() ? GetLabelText() : mValue, GetLabelTextRect(),
                  GetCustomTextColor());
}

}  // namespace controls
}  // namespace zebui

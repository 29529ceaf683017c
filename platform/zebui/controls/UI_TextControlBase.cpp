// The label of a control that shows a text.
#include "zebui/controls/UI_TextControlBase.h"

#include "zebui/controls/ControlFace.h"
#include "zebui/controls/UI_ControlView.h"
#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace controls {
namespace {

// Sizes beyond this are a script's mistake; they draw at the id's size.
constexpr float kLargestTextSize = 1024.0f;

}  // namespace

UI_TextControlBase::UI_TextControlBase(ui::UI_Node& owner) : mOwner(owner) {}

UI_TextControlBase::~UI_TextControlBase() = default;

void UI_TextControlBase::SetLabelText(const zebcore::UTF16String& text) {
    mLabel = text;
    TextChanged();
}

zebcore::UTF16String UI_TextControlBase::GetLabelText() const {
    return mLabel;
}

void UI_TextControlBase::SetFontSizeId(int id) {
    mFontSizeId = id;
    TextChanged();
}

zebcore::geom::RectT<float> UI_TextControlBase::GetLabelTextRect() const {
    return face::Bounds(mOwner);
}

void UI_TextControlBase::SetTextAlignment(inkwell::TextAlignment alignment) {
    mAlignment = alignment;
    TextChanged();
}

void UI_TextControlBase::SetCustomFontSize(float size) {
    mCustomFontSize = size;
    TextChanged();
}

float UI_TextControlBase::GetTextSize() const {
    if (mCustomFontSize > 0 && mCustomFontSize <= kLargestTextSize) return mCustomFontSize;
    const float regular = UI_ControlView::DefaultTextSize();
    switch (mFontSizeId) {
    case kFontSizeId_Small:
        return regular - 2;
    case kFontSizeId_Mini:
        return regular - 3;
    case kFontSizeId_Large:
        return regular + 2;
    default:
        return regular;
    }
}

void UI_TextControlBase::TextChanged() {
    mOwner.UI_Invalidate(nullptr, 0);
}

void UI_TextControlBase::DrawLabelText(inkwell::Inkwell* inkwell, const zebcore::UTF16String& text,
                                       const zebcore::geom::RectT<float>& area,
                                       const inkwell::ColorRGBA* colour) const {
    const bool known =
        mAlignment >= inkwell::kTextAlignment_Left && mAlignment <= inkwell::kTextAlignment_Right;
    face::DrawText(inkwell, text, area, known ? mAlignment : inkwell::kTextAlignment_Left,
                   GetTextSize(), colour ? *colour : face::kText);
}

}  // namespace controls
}  // namespace zebui

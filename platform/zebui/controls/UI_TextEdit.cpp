// An editable text field.
#include "zebui/controls/UI_TextEdit.h"

#include <algorithm>

#include "zebui/controls/ControlFace.h"
#include "zebui/ui/InputCodes.h"
#include "zebui/ui/KeyboardEvent.h"

namespace zebui {
namespace controls {
namespace {

constexpr float kTextInset = 4.0f;
const inkwell::ColorRGBA kGhostColour(0.55f, 0.56f, 0.58f);

bool isHighSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xD800;
}

bool isLowSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xDC00;
}

}  // namespace

UI_TextEdit::UI_TextEdit(EditFlags flags, int alignment)
    : UI_TextControlBase(static_cast<ui::UI_Node&>(*this)), mFlags(flags), mAlignment(alignment) {}

UI_TextEdit::~UI_TextEdit() = default;

void UI_TextEdit::SetValue(const zebcore::UTF16String& text) {
    mSelection = Selection(text.size(), text.size());
    ChangeValue(mValue, text);
    TextChanged();
}

void UI_TextEdit::SetSelection(std::size_t start, std::size_t end) {
    start = std::min(start, mValue.size());
    end = std::min(end, mValue.size());
    mSelection = std::minmax(start, end);
    TextChanged();
}

void UI_TextEdit::SelectAll() {
    SetSelection(0, mValue.size());
}

void UI_TextEdit::SetGhostText(const zebcore::UTF16String& text) {
    mGhostText = text;
    TextChanged();
}

bool UI_TextEdit::UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) {
    if (UI_InteractiveControlView::UI_DoKeyboardEvent(target, event)) return true;
    if (event.GetAction() != ui::kKeyboardAction_Down) return false;
    const unsigned int code = event.GetCode().GetValue(true);
    switch (code) {
    case ui::kKeyCode_Backspace:
    case ui::kKeyCode_ForwardDelete:
        mSelection = deletionRange(code == ui::kKeyCode_ForwardDelete);
        replaceSelection(zebcore::UTF16String());
        return true;
    case ui::kKeyCode_LeftArrow:
    case ui::kKeyCode_RightArrow: {
        const bool right = code == ui::kKeyCode_RightArrow;
        const std::size_t to = right ? deletionRange(true).second : deletionRange(false).first;
        SetSelection(to, to);
        return true;
    }
    default:
        break;
    }
    if (HandleOtherKey(event)) return true;
    const zebcore::UTF16String& characters = event.GetCharacters();
    const bool printable = !characters.empty() && characters[0] >= 0x20 && characters[0] != 0x7F;
    if (!printable) return false;
    replaceSelection(characters);
    return true;
}

bool UI_TextEdit::HandleOtherKey(const ui::KeyboardEvent&) {
    return false;
}

void UI_TextEdit::replaceSelection(const zebcore::UTF16String& replacement) {
    zebcore::UTF16String text = mValue;
    text.replace(mSelection.first, mSelection.second - mSelection.first, replacement);
    const std::size_t caret = mSelection.first + replacement.size();
    mSelection = Selection(caret, caret);
    ChangeValue(mValue, text);
    TextChanged();
}

UI_TextEdit::Selection UI_TextEdit::deletionRange(bool forward) const {
    if (mSelection.first != mSelection.second) return mSelection;
    std::size_t at = mSelection.first;
    if (forward) {
        if (at == mValue.size()) return mSelection;
        const bool pair =
            isHighSurrogate(mValue[at]) && at + 1 < mValue.size() && isLowSurrogate(mValue[at + 1]);
        return Selection(at, at + (pair ? 2 : 1));
    }
    if (at == 0) return mSelection;
    const bool pair = at >= 2 && isLowSurrogate(mValue[at - 1]) && isHighSurrogate(mValue[at - 2]);
    return Selection(at - (pair ? 2 : 1), at);
}

zebcore::geom::RectT<float> UI_TextEdit::GetLabelTextRect() const {
    const zebcore::geom::RectT<float> bounds = face::Bounds(*this);
    return {kTextInset, 0, bounds.width - 2 * kTextInset, bounds.height};
}

void UI_TextEdit::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    face::FrameRect(inkwell, face::Bounds(*this), face::kFieldFill, face::kFaceEdge);
    if (mValue.empty())
        DrawLabelText(inkwell, mGhostText, GetLabelTextRect(), &kGhostColour);
    else
        DrawLabelText(inkwell, mValue, GetLabelTextRect());
}

}  // namespace controls
}  // namespace zebui

// An editable text field.
#pragma once

#include <cstddef>
#include <utility>

#include "zebcore/utility/Flags.h"
#include "zebcore/utility/Strings.h"
#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/controls/UI_TextControlBase.h"

namespace zebui {
namespace controls {

// Its value is its UTF-16 text. Positions (the caret, the selection) count UTF-16 units
// and always lie within the text. While it has the keyboard focus, typed characters
// replace the selection, backspace and delete remove it (or the character before or after
// the caret, a surrogate pair as one), and the left and right arrows move the caret; each
// edit is a change of value, reported with the caret already moved. While the text is
// empty the field shows its ghost text instead, in grey.
class UI_TextEdit : public UI_InteractiveControlView, public UI_TextControlBase {
public:
    using EditFlags = zebcore::utility::Flags<unsigned int>;
    using Selection = std::pair<std::size_t, std::size_t>;

    // flags and alignment are the toolkit's field options, kept as given.
    UI_TextEdit(EditFlags flags, int alignment);
    ~UI_TextEdit() override;

    EditFlags GetEditFlags() const { return mFlags; }
    int GetAlignment() const { return mAlignment; }

    // The caret goes to the end.
    void SetValue(const zebcore::UTF16String& text);
    const zebcore::UTF16String& GetValue() const { return mValue; }
    // Start and end, start first; equal when it is only the caret.
    Selection GetSelection() const { return mSelection; }
    void SetSelection(std::size_t start, std::size_t end);
    void SelectAll();
    virtual void SetGhostText(const zebcore::UTF16String& text);
    const zebcore::UTF16String& GetGhostText() const { return mGhostText; }

    bool UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) override;
    // Inside the field's inset.
    zebcore::geom::RectT<float> GetLabelTextRect() const override;

protected:
    // A sunken field with the text, or the ghost text while there is none.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    // A key the field itself doesn't edit with; the plain field takes none.
    virtual bool HandleOtherKey(const ui::KeyboardEvent& event);

private:
    // Puts replacement in place of the selection, the caret after it.
    void replaceSelection(const zebcore::UTF16String& replacement);
    // The selection, or one character beside the caret (after it when forward).
    Selection deletionRange(bool forward) const;

    EditFlags mFlags;
    int mAlignment;
    zebcore::UTF16String mValue;
    zebcore::UTF16String mGhostText;
    Selection mSelection{0, 0};
};

}  // namespace controls
}  // namespace zebui

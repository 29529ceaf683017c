// A text that acts as a control: the base of hot text buttons and numbers.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/controls/UI_InteractiveControlView.h"
#include "zebui/controls/UI_TextControlBase.h"

namespace zebui {
namespace controls {

// Where a hot text sits in its frame.
enum ControlAlignment : int {
    kControlAlignment_Left = 0,
    kControlAlignment_Center = 1,
    kControlAlignment_Right = 2,
};

// Draws its label, then its text, in the accent colour, at the label's size. The text is
// what it shows, not its value: setting it reports no change.
class UI_HotText : public UI_InteractiveControlView, public UI_TextControlBase {
public:
    UI_HotText();
    ~UI_HotText() override;

    // redraw: invalidate the control now, else the next draw shows the text.
    void SetText(const zebcore::UTF16String& text, bool redraw = true);
    const zebcore::UTF16String& GetText() const { return mText; }
    void SetAlignment(ControlAlignment alignment);
    ControlAlignment GetAlignment() const { return mAlignment; }
    // True while a typed value is being taken in place; the stand-in never opens an editor.
    virtual bool IsEditingInPlace() const;

protected:
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    zebcore::UTF16String mText;
    ControlAlignment mAlignment = kControlAlignment_Left;
};

}  // namespace controls
}  // namespace zebui

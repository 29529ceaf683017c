// An editable text field.
#pragma once

#include "zebcore/utility/Flags.h"
#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_TextEdit : public UI_InteractiveControlView {
public:
    using EditFlags = zebcore::utility::Flags<unsigned int>;

    // flags and alignment are the toolkit's field options, kept as given.
    UI_TextEdit(EditFlags flags, int alignment);
    ~UI_TextEdit() override;

    EditFlags GetEditFlags() const { return mFlags; }
    int GetAlignment() const { return mAlignment; }
    // The text size in units in place of the theme's; 0 (the start) keeps the theme's.
    void SetCustomFontSize(float size) { mCustomFontSize = size; }
    float GetCustomFontSize() const { return mCustomFontSize; }

protected:
    // A sunken field.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    EditFlags mFlags;
    int mAlignment;
    float mCustomFontSize = 0;
};

}  // namespace controls
}  // namespace zebui

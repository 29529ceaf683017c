// A control that shows a text the user can't edit.
#pragma once

#include "zebcore/utility/Strings.h"
#include "zebui/controls/UI_ControlView.h"
#include "zebui/controls/UI_TextControlBase.h"
#include "zebui/inkwell/ColorRGBA.h"

namespace zebui {
namespace controls {

// Its value is the text it shows; while that is empty it shows its label. The text is
// drawn in the theme's text colour until a custom colour is set.
class UI_StaticText : public UI_ControlView, public UI_TextControlBase {
public:
    UI_StaticText();
    ~UI_StaticText() override;

    void SetValue(const zebcore::UTF16String& text);
    const zebcore::UTF16String& GetValue() const { return mValue; }
    // redraw: invalidate now, else the next draw shows the colour.
    void SetCustomTextColor(const inkwell::ColorRGBA& colour, bool redraw);
    const inkwell::ColorRGBA* GetCustomTextColor() const {
        return mHasCustomColour ? &mCustomColour : nullptr;
    }

protected:
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    zebcore::UTF16String mValue;
    inkwell::ColorRGBA mCustomColour;
    bool mHasCustomColour = false;
};

}  // namespace controls
}  // namespace zebui

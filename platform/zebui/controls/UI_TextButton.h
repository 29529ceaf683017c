// A button with a text label.
#pragma once

#include "zebui/controls/UI_Button.h"
#include "zebui/controls/UI_TextControlBase.h"

namespace zebui {
namespace controls {

// The label is drawn over the button's face, within its content rect.
class UI_TextButton : public UI_Button, public UI_TextControlBase {
public:
    UI_TextButton();
    ~UI_TextButton() override;

    // Units between the content rect's leading edge and the label; any number is kept.
    void SetTextIndent(float indent);
    float GetTextIndent() const { return mTextIndent; }

    // The content rect less the text indent.
    zebcore::geom::RectT<float> GetLabelTextRect() const override;

protected:
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    float mTextIndent = 0;
};

}  // namespace controls
}  // namespace zebui

// A text button with a triangle that shows whether something is open.
#pragma once

#include "zebui/controls/UI_TextButton.h"

namespace zebui {
namespace controls {

class UI_DisclosureTriangleButton : public UI_TextButton {
public:
    UI_DisclosureTriangleButton();
    ~UI_DisclosureTriangleButton() override;

protected:
    // A triangle pointing right, in place of the button's face.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
};

}  // namespace controls
}  // namespace zebui

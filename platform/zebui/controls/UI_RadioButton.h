// A radio button.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_RadioButton : public UI_InteractiveControlView {
public:
    UI_RadioButton();
    ~UI_RadioButton() override;

protected:
    // A round button at the left, as tall as the control up to 14 units.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
};

}  // namespace controls
}  // namespace zebui

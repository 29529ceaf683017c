// A rotary control.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_Knob : public UI_InteractiveControlView {
public:
    UI_Knob();
    ~UI_Knob() override;

protected:
    // A disc with the accent dot of its pointer at the top.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
};

}  // namespace controls
}  // namespace zebui

// A dividing line between groups of controls.
#pragma once

#include "zebui/controls/UI_ControlView.h"

namespace zebui {
namespace controls {

class UI_Divider : public UI_ControlView {
public:
    UI_Divider();
    ~UI_Divider() override;

protected:
    // A two-unit line across the middle, along the longer side.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
};

}  // namespace controls
}  // namespace zebui

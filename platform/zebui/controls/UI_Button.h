// A push button: the base of the button family.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_Button : public UI_InteractiveControlView {
public:
    UI_Button();
    ~UI_Button() override;

protected:
    // A raised rect: the face of every button that draws no other.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
};

}  // namespace controls
}  // namespace zebui

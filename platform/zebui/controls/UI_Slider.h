// A linear slider.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_Slider : public UI_InteractiveControlView {
public:
    UI_Slider();
    ~UI_Slider() override;
};

}  // namespace controls
}  // namespace zebui

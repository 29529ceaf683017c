// A radio button.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_RadioButton : public UI_InteractiveControlView {
public:
    UI_RadioButton();
    ~UI_RadioButton() override;
};

}  // namespace controls
}  // namespace zebui

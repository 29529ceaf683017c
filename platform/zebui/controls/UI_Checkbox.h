// A check box.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_Checkbox : public UI_InteractiveControlView {
public:
    UI_Checkbox();
    ~UI_Checkbox() override;
};

}  // namespace controls
}  // namespace zebui

// A dividing line between groups of controls.
#pragma once

#include "zebui/controls/UI_ControlView.h"

namespace zebui {
namespace controls {

class UI_Divider : public UI_ControlView {
public:
    UI_Divider();
    ~UI_Divider() override;
};

}  // namespace controls
}  // namespace zebui

// A scroll bar.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_ScrollBar : public UI_InteractiveControlView {
public:
    UI_ScrollBar();
    ~UI_ScrollBar() override;
};

}  // namespace controls
}  // namespace zebui

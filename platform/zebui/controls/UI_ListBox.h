// A list of items to pick from.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_ListBox : public UI_InteractiveControlView {
public:
    UI_ListBox(bool first, bool second, bool third, bool fourth);
    ~UI_ListBox() override;
};

}  // namespace controls
}  // namespace zebui

// An item of a list box.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_ListBoxItem : public UI_InteractiveControlView {
public:
    UI_ListBoxItem();
    ~UI_ListBoxItem() override;
};

}  // namespace controls
}  // namespace zebui

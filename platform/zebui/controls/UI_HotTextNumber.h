// A number shown as text that the user changes by dragging or typing.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_HotTextNumber : public UI_InteractiveControlView {
public:
    UI_HotTextNumber();
    ~UI_HotTextNumber() override;
};

}  // namespace controls
}  // namespace zebui

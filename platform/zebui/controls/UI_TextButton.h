// A button with a text label.
#pragma once

#include "zebui/controls/UI_Button.h"

namespace zebui {
namespace controls {

class UI_TextButton : public UI_Button {
public:
    UI_TextButton();
    ~UI_TextButton() override;
};

}  // namespace controls
}  // namespace zebui

// A text that acts as a button.
#pragma once

#include "zebui/controls/UI_HotText.h"

namespace zebui {
namespace controls {

class UI_HotTextButton : public UI_HotText {
public:
    UI_HotTextButton();
    ~UI_HotTextButton() override;
};

}  // namespace controls
}  // namespace zebui

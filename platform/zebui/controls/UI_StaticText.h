// A control that shows a text the user can't edit.
#pragma once

#include "zebui/controls/UI_ControlView.h"

namespace zebui {
namespace controls {

class UI_StaticText : public UI_ControlView {
public:
    UI_StaticText();
    ~UI_StaticText() override;
};

}  // namespace controls
}  // namespace zebui

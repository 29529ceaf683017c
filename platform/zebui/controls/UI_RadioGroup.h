// A group that keeps one of its radio buttons on.
#pragma once

#include "zebui/controls/UI_ControlView.h"

namespace zebui {
namespace controls {

class UI_RadioGroup : public UI_ControlView {
public:
    UI_RadioGroup();
    ~UI_RadioGroup() override;
};

}  // namespace controls
}  // namespace zebui

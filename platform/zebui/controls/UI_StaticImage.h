// A control that shows an image.
#pragma once

#include "zebui/controls/UI_ControlView.h"

namespace zebui {
namespace controls {

class UI_StaticImage : public UI_ControlView {
public:
    UI_StaticImage();
    ~UI_StaticImage() override;
};

}  // namespace controls
}  // namespace zebui

// A button drawn from images.
#pragma once

#include "zebui/controls/UI_Button.h"

namespace zebui {
namespace controls {

class UI_PictureButton : public UI_Button {
public:
    UI_PictureButton();
    ~UI_PictureButton() override;
};

}  // namespace controls
}  // namespace zebui

// A button that opens a menu of choices and shows the chosen one.
#pragma once

#include "zebui/controls/UI_Button.h"

namespace zebui {
namespace controls {

// A button, so that the button methods answer on a popup too.
class UI_Popup : public UI_Button {
public:
    UI_Popup(int popupType, bool flag);
    ~UI_Popup() override;
};

}  // namespace controls
}  // namespace zebui

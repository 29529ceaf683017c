// A button that opens a menu of choices and shows the chosen one.
#pragma once

#include "zebui/controls/UI_Button.h"

namespace zebui {
namespace controls {

// A button, so that the button methods answer on a popup too.
class UI_Popup : public UI_Button {
public:
    // popupType is the toolkit's kind of menu (0 the plain one); the flag is kept for the
    // toolkit and means nothing here.
    UI_Popup(int popupType, bool flag);
    ~UI_Popup() override;

    int GetPopupType() const { return mPopupType; }

protected:
    // The button's face with the menu's arrow at the right.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    int mPopupType;
};

}  // namespace controls
}  // namespace zebui

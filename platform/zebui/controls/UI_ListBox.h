// A list of items to pick from.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_ListBox : public UI_InteractiveControlView {
public:
    UI_ListBox(bool first, bool second, bool third, bool fourth);
    ~UI_ListBox() override;

protected:
    // A sunken field that its items lie on.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
};

}  // namespace controls
}  // namespace zebui

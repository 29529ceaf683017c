// A text field for search terms.
#pragma once

#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_SearchBox : public UI_InteractiveControlView {
public:
    UI_SearchBox(bool first, bool second);
    ~UI_SearchBox() override;
};

}  // namespace controls
}  // namespace zebui

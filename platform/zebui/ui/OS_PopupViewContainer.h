// A view container that pops up over other windows.
#pragma once

#include "zebui/ui/OS_ViewContainer.h"

namespace zebui {
namespace ui {

class OS_PopupViewContainer : public OS_ViewContainer {
public:
    OS_PopupViewContainer();
    ~OS_PopupViewContainer() override;
};

}  // namespace ui
}  // namespace zebui

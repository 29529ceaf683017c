// A platform window that holds a view tree.
#pragma once

#include "zebui/ui/OS_Window.h"

namespace zebui {
namespace ui {

// A window, so scripts meet it through the window wrapper.
class OS_ViewContainer : public OS_Window {
public:
    explicit OS_ViewContainer(bool flag);
    ~OS_ViewContainer() override;
};

}  // namespace ui
}  // namespace zebui

// A platform window that holds a view tree.
#pragma once

#include "zebui/ui/OS_Window.h"

namespace zebui {
namespace ui {

// A window, so scripts meet it through the window wrapper.
class OS_ViewContainer : public OS_Window {
public:
    // popsUp: the container floats over other windows, as a popup's does.
    explicit OS_ViewContainer(bool popsUp);
    ~OS_ViewContainer() override;

    bool PopsUp() const { return mPopsUp; }

private:
    bool mPopsUp;
};

}  // namespace ui
}  // namespace zebui

// A top-level window: the top of a view tree, placed in screen coordinates.
#pragma once

#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace ui {

// The local rect of a window is its place on the screen, so global coordinates of
// the nodes inside it are screen coordinates. A new window is hidden until shown.
class OS_Window : public UI_Node {
public:
    OS_Window();
    ~OS_Window() override;
};

}  // namespace ui
}  // namespace zebui

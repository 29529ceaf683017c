// Top-level windows.
#include "zebui/ui/OS_Window.h"

namespace zebui {
namespace ui {

OS_Window::OS_Window() {
    UI_Show(false);
}

OS_Window::~OS_Window() = default;

}  // namespace ui
}  // namespace zebui

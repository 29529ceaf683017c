// Top-level windows.
#include "zebui/ui/OS_Window.h"

namespace zebui {
namespace ui {

OS_Window::OS_Window() : OS_Window(nullptr) {}

OS_Window::OS_Window(const inkwell::SupplierInterface* supplier) : mSupplier(supplier) {
    UI_Show(false);
}

OS_Window::~OS_Window() = default;

const inkwell::SupplierInterface* OS_Window::UI_GetDrawSupplier() const {
    return mSupplier ? mSupplier : UI_Node::UI_GetDrawSupplier();
}

void OS_Window::UI_SetGlobalStructureRect(const zebcore::geom::RectT<int>& rect) {
    UI_SetLocalRectF(zebcore::geom::RectT<float>(
        static_cast<float>(rect.left), static_cast<float>(rect.top), static_cast<float>(rect.width),
        static_cast<float>(rect.height)));
}

}  // namespace ui
}  // namespace zebui

// Top-level windows.
#include "zebui/ui/OS_Window.h"

#include "os/NSWindow.h"

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

zebcore::geom::RectT<int> OS_Window::UI_GetGlobalStructureRect() const {
    const zebcore::geom::RectT<float> frame = UI_GetLocalRectF(false);
    return zebcore::geom::RectT<int>(static_cast<int>(frame.left), static_cast<int>(frame.top),
                                     static_cast<int>(frame.width), static_cast<int>(frame.height));
}

void OS_Window::UI_CreateWindow(const zebcore::geom::RectT<float>& rect, unsigned long /*style*/,
                                long level, const zebcore::utility::Flags<unsigned int>& /*flags*/,
                                objc_class* windowClass) {
    mPlatformWindow = std::make_unique<NSWindow>(this, windowClass, level);
    UI_SetLocalRectF(rect);
}

NSWindow* OS_Window::GetPlatformWindow(bool create) {
    if (!mPlatformWindow && create) mPlatformWindow = std::make_unique<NSWindow>(this);
    return mPlatformWindow.get();
}

long OS_Window::GetWindowLevel() const {
    return mPlatformWindow ? mPlatformWindow->GetLevel() : 0;
}

}  // namespace ui
}  // namespace zebui

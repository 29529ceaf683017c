// A top-level window: the top of a view tree, placed in screen coordinates.
#pragma once

#include <memory>

#include "zebcore/utility/Flags.h"
#include "zebui/ui/UI_Window.h"

class NSWindow;
struct objc_class;

namespace zebui {
namespace ui {

// The local rect of a window is its place on the screen, so global coordinates of
// the nodes inside it are screen coordinates. A new window is hidden until shown.
class OS_Window : public UI_Window {
public:
    OS_Window();
    // A window that draws with supplier (which outlives it); null as the plain window.
    explicit OS_Window(const inkwell::SupplierInterface* supplier);
    ~OS_Window() override;

    // The window's own supplier, else the plain node's answer: with no parent to ask, the
    // manager's default supplier.
    const inkwell::SupplierInterface* UI_GetDrawSupplier() const override;
    // The frame on the screen, window decorations included, in whole units; headless
    // windows have no decorations, so it is the local rect (its numbers truncated).
    virtual void UI_SetGlobalStructureRect(const zebcore::geom::RectT<int>& rect);
    virtual zebcore::geom::RectT<int> UI_GetGlobalStructureRect() const;

    // Makes the operating system's window of the given class at level, and places the
    // toolkit window at rect. The style and flags are kept for the platform.
    void UI_CreateWindow(const zebcore::geom::RectT<float>& rect, unsigned long style, long level,
                         const zebcore::utility::Flags<unsigned int>& flags,
                         objc_class* windowClass);
    // The operating system's window; with create, a plain one is made when there is none.
    NSWindow* GetPlatformWindow(bool create);
    const NSWindow* GetPlatformWindow() const { return mPlatformWindow.get(); }
    // The platform window's level, 0 without one.
    long GetWindowLevel() const;

private:
    const inkwell::SupplierInterface* mSupplier = nullptr;
    std::unique_ptr<NSWindow> mPlatformWindow;
};

}  // namespace ui
}  // namespace zebui

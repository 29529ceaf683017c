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
    // A window that draws with supplier (which outlives it); null as the plain window.
    explicit OS_Window(const inkwell::SupplierInterface* supplier);
    ~OS_Window() override;

    // The window's own supplier, else the plain node's answer: with no parent to ask, the
    // manager's default supplier.
    const inkwell::SupplierInterface* UI_GetDrawSupplier() const override;
    // The frame on the screen, window decorations included, in whole units; headless
    // windows have no decorations, so it is the local rect.
    virtual void UI_SetGlobalStructureRect(const zebcore::geom::RectT<int>& rect);

private:
    const inkwell::SupplierInterface* mSupplier = nullptr;
};

}  // namespace ui
}  // namespace zebui

// A sub view laid over others that draws its children on demand and lets the pointer through.
#include "zeblua/ui/src/LuaOverlaySubView.h"

namespace zeblua {
namespace ui {

LuaOverlaySubView::LuaOverlaySubView() {
    UI_SetStateFlags(kStateFlag_PassesMouse, true);
}

LuaOverlaySubView::~LuaOverlaySubView() = default;

bool LuaOverlaySubView::UI_DoMouseEvent(zebui::ui::UI_Node*, const zebui::ui::MouseEvent&) {
    return false;
}

void LuaOverlaySubView::MyDispatchDrawToChildren(zebui::inkwell::Inkwell* inkwell) const {
    // A child's draw hook may change the list, so the walk goes over held copies.
    for (const auto& child : zebui::ui::HeldChildren(*this))
        UI_DispatchDrawToChild(child.get(), inkwell);
}

}  // namespace ui
}  // namespace zeblua

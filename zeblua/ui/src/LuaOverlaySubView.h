// A sub view laid over others that draws its children on demand and lets the pointer through.
#pragma once

#include "zebui/ui/UI_SubView.h"

namespace zeblua {
namespace ui {

// Passes the mouse (state flag 16): a click on the overlay itself reaches what lies
// beneath it, and no mouse event offered to it is taken, so one bubbling up from a child
// goes on to the overlay's ancestors.
class LuaOverlaySubView : public zebui::ui::UI_SubView {
public:
    LuaOverlaySubView();
    ~LuaOverlaySubView() override;

    bool UI_DoMouseEvent(zebui::ui::UI_Node* target, const zebui::ui::MouseEvent& event) override;

    // Each child in container order, through UI_DispatchDrawToChild.
    void MyDispatchDrawToChildren(zebui::inkwell::Inkwell* inkwell) const;
};

}  // namespace ui
}  // namespace zeblua

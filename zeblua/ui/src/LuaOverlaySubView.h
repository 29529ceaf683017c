// A sub view laid over others that draws its children on demand.
#pragma once

#include "zebui/ui/UI_SubView.h"

namespace zeblua {
namespace ui {

class LuaOverlaySubView : public zebui::ui::UI_SubView {
public:
    LuaOverlaySubView();
    ~LuaOverlaySubView() override;
};

}  // namespace ui
}  // namespace zeblua

// The multi-column tree whose rows scripts fill and whose events go to Lua.
#pragma once

#include "zebui/ui/UI_SubView.h"

namespace zeblua {
namespace ui {

class LuaMultiColumnTree : public zebui::ui::UI_SubView {
public:
    LuaMultiColumnTree();
    ~LuaMultiColumnTree() override;
};

}  // namespace ui
}  // namespace zeblua

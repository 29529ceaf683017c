// A tab well whose tab actions go to a Lua function.
#pragma once

#include "zebui/controls/UI_TabWell.h"

namespace zeblua {
namespace ui {

class LuaUI_TabWell : public zebui::controls::UI_TabWell {
public:
    LuaUI_TabWell();
    ~LuaUI_TabWell() override;
};

}  // namespace ui
}  // namespace zeblua

// A popup window whose events go to Lua functions.
#pragma once

#include "zebui/ui/OS_Window.h"

struct lua_State;

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell
}  // namespace zebui

namespace zeblua {
namespace ui {

// Draws with the supplier it was made with. A floating window stays above the
// application's other windows.
class LuaPopupWindow : public zebui::ui::OS_Window {
public:
    LuaPopupWindow(lua_State* L, const zebui::inkwell::SupplierInterface* supplier, bool floating);
    ~LuaPopupWindow() override;

    bool IsFloating() const { return mFloating; }

private:
    bool mFloating;
};

}  // namespace ui
}  // namespace zeblua

// A popup window whose events go to Lua functions.
#include "zeblua/ui/src/LuaPopupWindow.h"

namespace zeblua {
namespace ui {

LuaPopupWindow::LuaPopupWindow(lua_State* /*L*/, const zebui::inkwell::SupplierInterface* supplier,
                               bool floating)
    : OS_Window(supplier), mFloating(floating) {}

LuaPopupWindow::~LuaPopupWindow() = default;

}  // namespace ui
}  // namespace zeblua

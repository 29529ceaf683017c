// A tab well whose tab actions go to a Lua function.
#include "zeblua/ui/src/LuaUI_TabWell.h"

namespace zeblua {
namespace ui {

LuaUI_TabWell::LuaUI_TabWell() = default;

LuaUI_TabWell::~LuaUI_TabWell() = default;

}  // namespace ui
}  // namespace zeblua

// Multi-column tree rows.
#include "zeblua/ui/src/LuaMultiColumnTreeRow.h"

namespace zeblua {
namespace ui {

LuaMultiColumnTreeRow::LuaMultiColumnTreeRow() = default;

LuaMultiColumnTreeRow::~LuaMultiColumnTreeRow() = default;

}  // namespace ui
}  // namespace zeblua

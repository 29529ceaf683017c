// Multi-column tree rows.
#include "zeblua/ui/src/LuaMultiColumnTreeRow.h"

namespace zeblua {
namespace ui {

LuaMultiColumnTreeRow::LuaMultiColumnTreeRow() : UI_MultiColumnTreeRow(true) {}

LuaMultiColumnTreeRow::LuaMultiColumnTreeRow(const zebcore::UTF8String& id)
    : UI_MultiColumnTreeRow(true), mID(id) {}

LuaMultiColumnTreeRow::~LuaMultiColumnTreeRow() = default;

}  // namespace ui
}  // namespace zeblua

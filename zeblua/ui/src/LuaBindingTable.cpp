// Binding tables: found in, or made into, a node's user data.
#include "zeblua/ui/src/LuaBindingTable.h"

#include <boost/any.hpp>

#include "zebui/ui/UI_Node.h"

namespace zeblua {
namespace ui {

LuaBindingTable::~LuaBindingTable() {
    for (int slot = kSlotCount; slot-- > 0;)
        slots[slot].reset();
}

boost::intrusive_ptr<LuaBindingTable> LuaBindingTable::GetLuaBindingTable(zebui::ui::UI_Node* node,
                                                                          bool create) {
    if (!node) return nullptr;
    using TableP = boost::intrusive_ptr<LuaBindingTable>;
    if (const TableP* held = boost::any_cast<TableP>(&node->GetUserData())) return *held;
    if (!create) return nullptr;
    const TableP table(new LuaBindingTable);
    node->SetUserData(table);
    return table;
}

}  // namespace ui
}  // namespace zeblua

// The multi-column tree whose rows scripts fill and whose events go to Lua.
#include "zeblua/ui/src/LuaMultiColumnTree.h"

namespace zeblua {
namespace ui {

LuaMultiColumnTree::LuaMultiColumnTree() = default;

LuaMultiColumnTree::~LuaMultiColumnTree() = default;

}  // namespace ui
}  // namespace zeblua

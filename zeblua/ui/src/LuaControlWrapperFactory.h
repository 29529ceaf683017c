// Choosing and pushing the wrapper class of a node.
#pragma once

#include <boost/intrusive_ptr.hpp>

struct lua_State;

namespace zebui {
namespace ui {
class UI_Node;
}  // namespace ui
}  // namespace zebui

namespace zeblua {
namespace ui {

class LuaControlWrapperBase;

// Pushes a new wrapper userdata for node, of the class that the first matching test picks
// (a dynamic_cast, in a fixed order, with LuaUI_NodeWrapper for any other node). With a
// null node it pushes nothing and returns null.
LuaControlWrapperBase*
LuaControlWrapperFactory(const boost::intrusive_ptr<zebui::ui::UI_Node>& node, lua_State* L);

}  // namespace ui
}  // namespace zeblua

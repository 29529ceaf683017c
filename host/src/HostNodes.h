// zebhost.newNode: nodes of the toolkit's classes for scripts, and the wrapper push the
// harness shares.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zeblua/ui/src/ControlWrapperPush.h"

struct lua_State;

namespace zebui {
namespace ui {
class UI_Node;
}  // namespace ui
}  // namespace zebui

namespace zebhost {

// Adds to the global table zebhost:
//   zebhost.newNode(className) -> a new node of that toolkit class ("UI_Node",
//       "UI_SubView", "UI_Button", "UI_RadioGroup", "UI_Slider", "UI_ScrollBar",
//       "UI_TabWell", ...) with its wrapper from the factory (whose push opens the
//       controls module if needed). An unknown name raises an error that lists the known
//       ones. The script layer adds optional id, frame and parent arguments.
void OpenHostNodes(lua_State* L);

// Pushing a node's wrapper from a frame that holds C++ objects: the library's two steps.
using zeblua::ui::FinishWrapperPush;
using zeblua::ui::PrepareWrapperPush;

// The node of the wrapper at index: "Bad user data" for anything but a wrapper, an
// argument error for a released one.
zebui::ui::UI_Node* CheckNodeArgument(lua_State* L, int index);

// The toolkit class of node, without namespaces ("UI_Slider"), into a buffer of size.
void NodeClassName(const zebui::ui::UI_Node& node, char* buffer, unsigned long size);

}  // namespace zebhost

// Pushing a node's wrapper from a frame that holds C++ objects.
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

// A wrapper push allocates, so Lua's memory error may come from it; a frame that holds
// the node by intrusive_ptr must not see that longjmp. So the push runs in two steps:
//   PrepareWrapperPush(L);                                   // may raise: nothing held yet
//   const bool pushed = RunNative(L, "...", [&] {
//       const boost::intrusive_ptr<UI_Node> node = ...;
//       return FinishWrapperPush(L, node);                   // never raises
//   });
//   return pushed ? 1 : lua_error(L);                        // raised with nothing held
// Prepare reserves the stack and pushes the protected pusher; Finish replaces it with a
// new wrapper of node from the factory (nil for null), or with the error message of a
// failed push, and answers whether it worked.
void PrepareWrapperPush(lua_State* L);
bool FinishWrapperPush(lua_State* L, const boost::intrusive_ptr<zebui::ui::UI_Node>& node);

}  // namespace ui
}  // namespace zeblua

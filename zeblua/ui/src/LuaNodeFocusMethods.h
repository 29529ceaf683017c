// The node set's focus and tool tip methods.
#pragma once

struct lua_State;

namespace zeblua {
namespace ui {

//   ok = node:UI_GainKeyboardFocus(reason)    (a disabled node gets none: false)
//   has = node:UI_HasKeyboardFocus([orDescendant])   (missing: the node alone)
//   node:UI_SetToolTip(text [, width])        (width 400 when absent or nil)
//   node:UI_SetToolTipAvoidsBounds([avoids])  avoids = node:UI_GetToolTipAvoidsBounds()
int nodeUI_GainKeyboardFocus(lua_State* L);
int nodeUI_HasKeyboardFocus(lua_State* L);
int nodeUI_SetToolTip(lua_State* L);
int nodeUI_SetToolTipAvoidsBounds(lua_State* L);
int nodeUI_GetToolTipAvoidsBounds(lua_State* L);

}  // namespace ui
}  // namespace zeblua

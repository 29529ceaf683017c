// The node set's state and appearance methods: visibility, enabling, redrawing, theme,
// draw cache, mouse over and mouse events.
#pragma once

struct lua_State;

namespace zeblua {
namespace ui {

// A flag that defaults to true takes a nil that is there as false: UI_Show() shows,
// UI_Show(nil) hides.
//   node:UI_Show([shown])          shown = node:UI_IsShown()
//   node:UI_SetEnabled([enabled])  enabled = node:UI_IsEnabled()
//   node:UI_Invalidate([rect])     (absent or nil: all of the node)
//   node:UI_UpdateNow([flags])     (default -1: every flag; draws at once)
//   supplier = node:UI_GetDrawSupplier()      (nothing without one)
//   node:UI_SetDrawCachePolicy(policy)   ("never", "always", "always_as_bitmap", else 0)
//   node:SetThemeName(name)        over = node:UI_IsMouseOver()   (descendants count)
//   node:UI_DoMouseEvent(target, event)       (the answer is not passed on)
int nodeUI_Show(lua_State* L);
int nodeUI_IsShown(lua_State* L);
int nodeUI_SetEnabled(lua_State* L);
int nodeUI_IsEnabled(lua_State* L);
int nodeUI_Invalidate(lua_State* L);
int nodeUI_UpdateNow(lua_State* L);
int nodeUI_GetDrawSupplier(lua_State* L);
int nodeUI_SetDrawCachePolicy(lua_State* L);
int nodeSetThemeName(lua_State* L);
int nodeUI_IsMouseOver(lua_State* L);
int nodeUI_DoMouseEvent(lua_State* L);

}  // namespace ui
}  // namespace zeblua

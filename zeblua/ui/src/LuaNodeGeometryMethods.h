// The node set's geometry methods: frames, coordinate conversion, size and clipping.
#pragma once

struct lua_State;

namespace zeblua {
namespace ui {

// Rects and points are the script layer's tables, read into zeroed values.
//   rect = node:UI_GetLocalRectF([withDecorations])      node:UI_SetLocalRectF(rect)
//   rect = node:UI_LocalToGlobalRectF(rect)     point = node:UI_LocalToGlobalPointF(point)
//   rect = node:UI_GlobalToLocalRectF(rect)     point = node:UI_GlobalToLocalPointF(point)
//   size = node:UI_GetRecommendedSize()   (a point; nothing without a supplier or surface)
//   on = node:UI_GetClipToSelfEnabled()   node:UI_SetClipToSelfEnabled(on)  (missing: off)
int nodeUI_GetLocalRectF(lua_State* L);
int nodeUI_SetLocalRectF(lua_State* L);
int nodeUI_LocalToGlobalRectF(lua_State* L);
int nodeUI_LocalToGlobalPointF(lua_State* L);
int nodeUI_GlobalToLocalRectF(lua_State* L);
int nodeUI_GlobalToLocalPointF(lua_State* L);
int nodeUI_GetRecommendedSize(lua_State* L);
int nodeUI_GetClipToSelfEnabled(lua_State* L);
int nodeUI_SetClipToSelfEnabled(lua_State* L);

}  // namespace ui
}  // namespace zeblua

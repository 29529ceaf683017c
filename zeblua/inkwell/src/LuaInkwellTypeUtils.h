// Geometry and colour across the Lua boundary: named-field tables read by native code,
// made by the host script layer's global constructors.
#pragma once

#include "zebcore/geom/Geometry.h"
#include "zebui/inkwell/ColorRGBA.h"

struct lua_State;

namespace zeblua {
namespace inkwell {

// Readers. index is the absolute (positive) stack position of the table: keys are pushed
// above it. A non-table at index raises Lua's type error. A nil on top of the stack (the
// top, not index: a further nil argument after the table) leaves the target unchanged, so
// callers prepare it (zero, or opaque black for a colour). Fields are read with
// lua_gettable, so __index metamethods run, in the order given below; a missing or
// non-numeric field raises Lua's argument error at position -1; extra fields are ignored.
// The target is written only after every read has succeeded.
//   point: x, y             rect: top, left, height, width (integers truncated)
//   colour: red, green, blue, alpha (0..1, not checked)
void GetPointF32FromLua(lua_State* L, int index, zebcore::geom::PointT<float>& point);
void GetRectF32FromLua(lua_State* L, int index, zebcore::geom::RectT<float>& rect);
void GetRect32FromLua(lua_State* L, int index, zebcore::geom::RectT<int>& rect);
void GetColorRGBAFromLua(lua_State* L, int index, zebui::inkwell::ColorRGBA& colour);
// GetRectF32FromLua at rectIndex, then GetColorRGBAFromLua at colourIndex: the same values,
// errors and __index order, for the draw calls that take both, as C closures that keep the
// eight field names as their upvalues 1 to 8 (a draw method that runs for every shape):
//   lua_pushcclosure(L, paintRect, PushRectAndColorKeys(L));
// When both are tables whose eight fields are all present numbers, no __index can run in
// either read, and then they are taken in one raw pass that pushes nothing but the values.
// PushRectAndColorKeys pushes the names and returns 8; it raises only Lua's memory error.
// GetRectAndColorFromUpvalues called from a function without upvalues reads the full way.
int PushRectAndColorKeys(lua_State* L);
void GetRectAndColorFromUpvalues(lua_State* L, int rectIndex, int colourIndex,
                                 zebcore::geom::RectT<float>& rect,
                                 zebui::inkwell::ColorRGBA& colour);
// The table's row tables are walked in lua_next order, and in each the values for which
// lua_isnumber holds (numeric strings too) are taken; anything else is skipped. Unless
// that gives exactly nine numbers, the report "matData.size() == 9" is made and the Lua
// error "incorrect number of values for MatrixF32" raised. The nine fill row after row.
void GetMatrixF32FromLua(lua_State* L, int index, zebcore::geom::MatrixT<float>& matrix);

// Writers: each fetches its global constructor by name, pushes the elements in storage
// order (a rect: left, top, width, height) and calls it with lua_pcall(L, n, 1, 0). The
// status is not looked at: exactly one value is left, the table or, with a missing or
// failing constructor, its error value. Each returns 1, so a lua_CFunction can end with
// "return PushRectF32ToLua(L, rect)". The constructor is script code: anything may happen
// during the call, a garbage collection included.
//   zeblua_CreateNewPointF32(x, y)       zeblua_CreateNewRectF32(left, top, width, height)
//   zeblua_CreateNewRGBA(r, g, b, a)     zeblua_CreateNewMatrixF32(m00, m01, ..., m22)
// PushRect32ToLua uses the float constructor too, its elements pushed as integers.
int PushPointF32ToLua(lua_State* L, const zebcore::geom::PointT<float>& point);
int PushRectF32ToLua(lua_State* L, const zebcore::geom::RectT<float>& rect);
int PushRect32ToLua(lua_State* L, const zebcore::geom::RectT<int>& rect);
int PushColorRGBAToLua(lua_State* L, const zebui::inkwell::ColorRGBA& colour);
int PushMatrixF32ToLua(lua_State* L, const zebcore::geom::MatrixT<float>& matrix);

}  // namespace inkwell
}  // namespace zeblua

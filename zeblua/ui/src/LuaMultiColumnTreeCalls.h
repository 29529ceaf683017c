// Calls from the multi-column tree into the Lua functions bound to its operations.
#pragma once

#include "zebcore/geom/PointT.h"
#include "zebcore/geom/RectT.h"
#include "zeblua/ui/src/LuaMultiColumnTreeRowWrapper.h"

namespace zebui {
namespace inkwell {
class Inkwell;
}  // namespace inkwell
namespace ui {
class UI_Node;
}  // namespace ui
}  // namespace zebui

namespace zeblua {
namespace ui {

struct LuaFunctionEntry;

// Each call runs on entry.state inside a protected frame of its own (lua_cpcall), as the
// node operations do (ZebOperationCalls.h): the rows, lists and rects it is handed live in
// the caller's frame, nothing pushed can raise through the toolkit, and the stack the
// caller found is the stack it gets back, whatever the script did. A row reaches the
// script as a new wrapper, an empty one for a row that isn't the script's class.

// "mctDrawCell": the surface's state pushed with medium anti-aliasing, then the function
// gets the inkwell proxy of a draw scope, the row, the column plus 1 and the cell rect; its
// one result is dropped, the scope closed and the state popped.
void CallTreeDrawCell(const LuaFunctionEntry& entry, zebui::inkwell::Inkwell* inkwell,
                      const TreeRowP& row, unsigned int column,
                      const zebcore::geom::RectT<float>& rect);

// "mctRowVisibilityChanged": the row. No result.
void CallTreeRowVisibility(const LuaFunctionEntry& entry, const TreeRowP& row);

// "mctRowDisclosureChanged": the row and whether it is open. No result.
void CallTreeRowDisclosure(const LuaFunctionEntry& entry, const TreeRowP& row, bool open);

// The three clicks: the row, the point table, the flags as a number, the column plus 1.
// No result.
void CallTreeRowClick(const LuaFunctionEntry& entry, const TreeRowP& row,
                      const zebcore::geom::PointT<float>& point, unsigned char flags,
                      unsigned int column);

// "mctSelectionChanged": one table of the rows, from 1. No result.
void CallTreeSelection(const LuaFunctionEntry& entry, const TreeRowList& rows);

// "mctRowContextMenu": the row, the point table, a new wrapper of node (nil when none can
// be made), the column plus 1; answers the one result as a boolean, a failure counting
// true (handled).
bool CallTreeContextMenu(const LuaFunctionEntry& entry, const TreeRowP& row,
                         const zebcore::geom::PointT<float>& point,
                         const boost::intrusive_ptr<zebui::ui::UI_Node>& node, unsigned int column);

}  // namespace ui
}  // namespace zeblua

// The multi-column tree whose rows scripts fill and whose events go to Lua.
#include "zeblua/ui/src/LuaMultiColumnTree.h"

#include <boost/bind/bind.hpp>
#include <boost/function.hpp>
#include <boost/make_shared.hpp>

#include "zeblua/ui/src/LuaMultiColumnTreeCalls.h"
#include "zeblua/ui/src/LuaMultiColumnTreeDragMethods.h"
#include "zebui/inkwell/BrushInterface.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/PathInterface.h"
#include "zebui/inkwell/SupplierInterface.h"
#include "zebui/inkwell/SurfaceInterface.h"

namespace zeblua {
namespace ui {

namespace tc = zebui::controls;
using zebcore::geom::PointT;
using zebcore::geom::RectT;
using namespace boost::placeholders;

LuaMultiColumnTree::LuaMultiColumnTree() : LuaZebNode<tc::UI_MultiColumnTree>(1, 18.0f) {}

LuaMultiColumnTree::~LuaMultiColumnTree() = default;

bool LuaMultiColumnTree::BindZEBOperation(lua_State* L, const std::string& name, int reference) {
    if (GetZEBBoundFunctionIndex(name) == 0) installCallback(name);
    return LuaBindableNode::BindZEBOperation(L, name, reference);
}

void LuaMultiColumnTree::installCallback(const std::string& name) {
    using Self = LuaMultiColumnTree;
    if (name == kMCTDrawCell) {
        SetDrawCellOfRowCallback(boost::make_shared<DrawCellOfRowCallback::element_type>(
            boost::bind(&Self::OnDrawCellOfRow, this, _1, _2, _3, _4)));
    } else if (name == kMCTRowVisibilityChanged) {
        SetRowVisibilityChangedCallback(
            boost::make_shared<RowVisibilityChangedCallback::element_type>(
                boost::bind(&Self::OnRowVisibilityChanged, this, _1)));
    } else if (name == kMCTRowDisclosureChanged) {
        SetRowDisclosureChangedCallback(
            boost::make_shared<RowDisclosureChangedCallback::element_type>(
                boost::bind(&Self::OnRowDisclosureChanged, this, _1, _2)));
    } else if (name == kMCTRowSingleClickDown) {
        SetRowSingleClickDownCallback(boost::make_shared<RowClickCallback::element_type>(
            boost::bind(&Self::OnRowSingleClickDown, this, _1, _2, _3, _4)));
    } else if (name == kMCTRowSingleClickUp) {
        SetRowSingleClickUpCallback(boost::make_shared<RowClickCallback::element_type>(
            boost::bind(&Self::OnRowSingleClickUp, this, _1, _2, _3, _4)));
    } else if (name == kMCTRowDoubleClick) {
        SetRowDoubleClickedCallback(boost::make_shared<RowClickCallback::element_type>(
            boost::bind(&Self::OnRowDoubleClick, this, _1, _2, _3, _4)));
    } else {
        InstallTreeDragCallback(*this, name);
    }
}

void LuaMultiColumnTree::SetCustomBackgroundColor(const zebui::inkwell::ColorRGBA& colour) {
    mCustomBackground = colour;
    mHasCustomBackground = true;
    UI_Invalidate(nullptr, 0);
}

void LuaMultiColumnTree::SetCustomSelectionColor(zebui::ui::UI_Color colour) {
    mCustomSelection = colour;
    mHasCustomSelection = true;
    SetRowSelectionColorCallback(boost::make_shared<RowSelectionColorCallback::element_type>(
        boost::bind(&LuaMultiColumnTree::GetCustomSelColor, this)));
}

void LuaMultiColumnTree::ClearCustomSelectionColor() {
    mHasCustomSelection = false;
    SetRowSelectionColorCallback(RowSelectionColorCallback());
}

// The stored colour is painted whether or not the flag is set: a tree that never got one
// fills with transparent black, and a cleared one keeps its last colour.
void LuaMultiColumnTree::DrawBackground(zebui::inkwell::Inkwell* inkwell) const {
    const RectT<float> frame = UI_GetLocalRectF(false);
    const RectT<float> bounds(0, 0, frame.width, frame.height);
    if (DoRequestDrawTreeBackground(inkwell, bounds)) return;
    if (!inkwell || !inkwell->GetSupplier() || !inkwell->GetSurface()) return;
    const zebui::inkwell::SupplierInterface& supplier = *inkwell->GetSupplier();
    const boost::intrusive_ptr<zebui::inkwell::BrushInterface> brush(
        supplier.MakeBrush(mCustomBackground));
    const boost::intrusive_ptr<zebui::inkwell::PathInterface> path(supplier.MakePath());
    path->AddRect(bounds);
    inkwell->GetSurface()->FillPath(*brush, *path, true);
}

void LuaMultiColumnTree::NotifyOfSelectionChanged(const RowList& rows) {
    const auto keep = zebui::ui::KeepNodeAlive(this);
    LuaFunctionEntry entry;
    if (FindBound(kMCTSelectionChanged, entry) && entry.reference > 0)
        CallTreeSelection(entry, rows);
    const RowList copy = rows;
    UI_MultiColumnTree::NotifyOfSelectionChanged(copy);
}

bool LuaMultiColumnTree::NotifyOfRowContextMenu(RowPtr row, const PointT<float>& point,
                                                zebui::ui::UI_Node& node, unsigned int column) {
    const auto keep = zebui::ui::KeepNodeAlive(this);
    LuaFunctionEntry entry;
    if (FindBound(kMCTRowContextMenu, entry) && entry.reference > 0 &&
        CallTreeContextMenu(entry, row, point, zebui::ui::KeepNodeAlive(&node), column))
        return true;
    return UI_MultiColumnTree::NotifyOfRowContextMenu(row, point, node, column);
}

void LuaMultiColumnTree::OnDrawCellOfRow(zebui::inkwell::Inkwell* inkwell, RowPtr row,
                                         unsigned int column, RectT<float> rect) {
    LuaFunctionEntry entry;
    if (!FindBound(kMCTDrawCell, entry) || entry.reference < 1) return;
    const auto keep = zebui::ui::KeepNodeAlive(this);
    CallTreeDrawCell(entry, inkwell, row, column, rect);
}

void LuaMultiColumnTree::OnRowVisibilityChanged(RowPtr row) {
    LuaFunctionEntry entry;
    if (!FindBound(kMCTRowVisibilityChanged, entry) || entry.reference < 1) return;
    const auto keep = zebui::ui::KeepNodeAlive(this);
    CallTreeRowVisibility(entry, row);
}

void LuaMultiColumnTree::OnRowDisclosureChanged(RowPtr row, bool open) {
    LuaFunctionEntry entry;
    if (!FindBound(kMCTRowDisclosureChanged, entry) || entry.reference < 1) return;
    const auto keep = zebui::ui::KeepNodeAlive(this);
    CallTreeRowDisclosure(entry, row, open);
}

void LuaMultiColumnTree::onClick(const char* name, const RowPtr& row, const PointT<float>& point,
                                 ClickFlags flags, unsigned int column) {
    LuaFunctionEntry entry;
    if (!FindBound(name, entry) || entry.reference < 1) return;
    const auto keep = zebui::ui::KeepNodeAlive(this);
    CallTreeRowClick(entry, row, point, flags.GetValue(), column);
}

void LuaMultiColumnTree::OnRowSingleClickDown(RowPtr row, const PointT<float>& point,
                                              ClickFlags flags, unsigned int column) {
    onClick(kMCTRowSingleClickDown, row, point, flags, column);
}

void LuaMultiColumnTree::OnRowSingleClickUp(RowPtr row, const PointT<float>& point,
                                            ClickFlags flags, unsigned int column) {
    onClick(kMCTRowSingleClickUp, row, point, flags, column);
}

void LuaMultiColumnTree::OnRowDoubleClick(RowPtr row, const PointT<float>& point, ClickFlags flags,
                                          unsigned int column) {
    onClick(kMCTRowDoubleClick, row, point, flags, column);
}

}  // namespace ui
}  // namespace zeblua

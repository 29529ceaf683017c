// The multi-column tree.
#include "zebui/controls/UI_MultiColumnTree.h"

#include <algorithm>
#include <cmath>
#include <set>

#include <boost/function.hpp>

#include "zebui/controls/ControlFace.h"
#include "zebui/controls/UI_ScrollView.h"
#include "zebui/inkwell/BrushInterface.h"
#include "zebui/inkwell/FontInterface.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/PathInterface.h"
#include "zebui/inkwell/PenInterface.h"
#include "zebui/inkwell/SupplierInterface.h"
#include "zebui/inkwell/SurfaceInterface.h"
#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/ThemeFonts.h"

namespace zebui {
namespace controls {

using zebcore::geom::PointT;
using zebcore::geom::RectT;

namespace {

template <class T> using Held = boost::intrusive_ptr<T>;
using RowPtr = UI_MultiColumnTree::RowPtr;

constexpr float kCellTextFontSize = 11.0f;
constexpr float kCellTextLeftInset = 4.0f;
constexpr float kMinimumColumnWidth = 8.0f;
const inkwell::ColorRGBA kTreeFill(1.0f, 1.0f, 1.0f);

bool drawable(inkwell::Inkwell* inkwell) {
    return inkwell && inkwell->GetSurface() && inkwell->GetSupplier();
}

void fillRect(inkwell::Inkwell* inkwell, const RectT<float>& rect,
              const inkwell::ColorRGBA& colour) {
    inkwell->GetSurface()->PaintRect(colour, rect);
}

void clipTo(inkwell::Inkwell* inkwell, const RectT<float>& rect) {
    const Held<inkwell::PathInterface> path(inkwell->GetSupplier()->MakePath());
    path->AddRect(rect);
    inkwell->GetSurface()->Clip(*path, true);
}

inkwell::ColorRGBA colourOf(ui::UI_Color colour) {
    return inkwell::ColorRGBA(static_cast<float>((colour >> 24) & 0xFF) / 255.0f,
                              static_cast<float>((colour >> 16) & 0xFF) / 255.0f,
                              static_cast<float>((colour >> 8) & 0xFF) / 255.0f,
                              static_cast<float>(colour & 0xFF) / 255.0f);
}

std::set<const UI_MultiColumnTreeRow*> membersOf(const UI_MultiColumnTree::RowList& rows) {
    std::set<const UI_MultiColumnTreeRow*> members;
    for (const RowPtr& row : rows)
        members.insert(row.get());
    return members;
}

}  // namespace

// The content of the tree's scroll view: it draws the rows; the pointer over them goes on
// to the tree. It knows its tree by a plain pointer that the tree's destructor clears.
class TreeRowsView : public ui::UI_SubView {
public:
    explicit TreeRowsView(UI_MultiColumnTree* tree) : mTree(tree) { UI_SetLayoutsChildren(false); }

    void Forget() { mTree = nullptr; }

protected:
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override {
        if (mTree) mTree->DrawRows(inkwell);
    }

private:
    UI_MultiColumnTree* mTree;
};

UI_MultiColumnTree::UI_MultiColumnTree(unsigned int columns, float rowHeight)
    : mWidths(columns, kDefaultColumnWidth), mRowHeight(rowHeight) {
    mRowsView = new TreeRowsView(this);
    mScrollView = new UI_ScrollView(UI_ScrollView::ScrollFlags(0), mRowsView);
    ChildPushBack(mScrollView);
}

UI_MultiColumnTree::~UI_MultiColumnTree() {
    static_cast<TreeRowsView*>(mRowsView.get())->Forget();
    for (const RowPtr& row : mRows) {
        row->mTree = nullptr;
        RowList all;
        collectAll(row->mChildren, all);
        for (const RowPtr& below : all)
            below->mTree = nullptr;
    }
}

void UI_MultiColumnTree::Init(zebcore::utility::Flags<unsigned int> flags) {
    mInitFlags = flags;
    LayoutRows();
}

// -- Rows

bool UI_MultiColumnTree::inThisTree(const RowPtr& row) const {
    return row && row->mTree == this;
}

std::vector<RowPtr>& UI_MultiColumnTree::siblingsOf(UI_MultiColumnTreeRow* parent) {
    return parent ? parent->mChildren : mRows;
}

const std::vector<RowPtr>& UI_MultiColumnTree::GetSiblingRows(const RowPtr& parent) const {
    return parent ? parent->mChildren : mRows;
}

void UI_MultiColumnTree::ensureCells(UI_MultiColumnTreeRow& row) const {
    while (row.mCells.size() < mWidths.size())
        row.mCells.push_back(new ui::UI_SubView());
    row.mCells.resize(mWidths.size());
}

void UI_MultiColumnTree::attach(const RowPtr& row, UI_MultiColumnTreeRow* parent) {
    row->mParent = parent;
    RowList all{row};
    collectAll(row->mChildren, all);
    for (const RowPtr& each : all) {
        each->mTree = this;
        ensureCells(*each);
        if (each->mCustomChild) mRowsView->ChildPushBack(each->mCustomChild);
    }
}

// The row and everything under it leave the tree; the row keeps its children.
void UI_MultiColumnTree::detach(const RowPtr& row) {
    std::vector<RowPtr>& siblings = siblingsOf(row->mParent);
    siblings.erase(std::remove(siblings.begin(), siblings.end(), row), siblings.end());
    row->mParent = nullptr;
    RowList all{row};
    collectAll(row->mChildren, all);
    for (const RowPtr& each : all) {
        each->mTree = nullptr;
        each->mSelected = false;
        each->mLayoutTop = -1;
        if (each->mCustomChild) mRowsView->ChildRemove(each->mCustomChild);
        if (mAnchor == each) mAnchor.reset();
    }
}

int UI_MultiColumnTree::AppendRow(RowPtr row, RowPtr parent, bool layoutNow) {
    return InsertRow(row, parent, nullptr, layoutNow, false);
}

int UI_MultiColumnTree::InsertRow(RowPtr row, RowPtr parent, RowPtr reference, bool layoutNow,
                                  bool) {
    if (!row || row->mTree || row->mParent) return -1;
    if (parent && (!inThisTree(parent) || !parent->mCanHaveChildren || !mAllowChildren)) return -1;
    std::vector<RowPtr>& siblings = siblingsOf(parent.get());
    auto at = std::find(siblings.begin(), siblings.end(), reference);
    if (!reference) at = siblings.end();
    const int index = static_cast<int>(at - siblings.begin());
    siblings.insert(at, row);
    attach(row, parent.get());
    if (layoutNow) LayoutRows();
    return index;
}

void UI_MultiColumnTree::RemoveRow(RowPtr row, bool layoutNow, bool) {
    if (!inThisTree(row)) return;
    detach(row);
    if (layoutNow) LayoutRows();
}

void UI_MultiColumnTree::RemoveAllRows(bool layoutNow) {
    const std::vector<RowPtr> rows = mRows;
    for (const RowPtr& row : rows)
        detach(row);
    if (layoutNow) LayoutRows();
}

bool UI_MultiColumnTree::MoveRow(RowPtr row, RowPtr newParent, unsigned int index, bool layoutNow) {
    if (!inThisTree(row)) return false;
    if (newParent) {
        if (!inThisTree(newParent) || !newParent->mCanHaveChildren || !mAllowChildren) return false;
        for (UI_MultiColumnTreeRow* up = newParent.get(); up; up = up->mParent)
            if (up == row.get()) return false;
    }
    std::vector<RowPtr>& from = siblingsOf(row->mParent);
    from.erase(std::remove(from.begin(), from.end(), row), from.end());
    std::vector<RowPtr>& to = siblingsOf(newParent.get());
    to.insert(to.begin() + std::min<size_t>(index, to.size()), row);
    row->mParent = newParent.get();
    if (layoutNow) LayoutRows();
    return true;
}

void UI_MultiColumnTree::collectAll(const std::vector<RowPtr>& rows, RowList& out) const {
    for (const RowPtr& row : rows) {
        out.push_back(row);
        collectAll(row->mChildren, out);
    }
}

void UI_MultiColumnTree::collectVisible(const std::vector<RowPtr>& rows, RowList& out) const {
    for (const RowPtr& row : rows) {
        out.push_back(row);
        if (row->mOpen) collectVisible(row->mChildren, out);
    }
}

unsigned int UI_MultiColumnTree::CountRows(bool all) const {
    if (!all) return static_cast<unsigned int>(mRows.size());
    RowList rows;
    collectAll(mRows, rows);
    return static_cast<unsigned int>(rows.size());
}

RowPtr UI_MultiColumnTree::GetRow(unsigned int index) const {
    return index < mRows.size() ? mRows[index] : nullptr;
}

// -- Layout

void UI_MultiColumnTree::LayoutAfterAppendRow(RowPtr) {
    LayoutRows();
}

void UI_MultiColumnTree::LayoutAfterInsertRow(RowPtr, bool) {
    LayoutRows();
}

void UI_MultiColumnTree::LayoutAfterRemoveRow() {
    LayoutRows();
}

float UI_MultiColumnTree::totalWidth() const {
    float width = 0;
    for (float each : mWidths)
        width += each;
    return width;
}

float UI_MultiColumnTree::columnLeft(unsigned int column) const {
    float left = 0;
    for (unsigned int i = 0; i < column && i < mWidths.size(); ++i)
        left += mWidths[i];
    return left;
}

// Views' size listeners may run script, so the tree and each view it moves are held.
void UI_MultiColumnTree::LayoutRows() {
    const auto keep = ui::KeepNodeAlive(this);
    RowList all;
    collectAll(mRows, all);
    for (const RowPtr& row : all)
        row->mLayoutTop = -1;
    RowList visible;
    collectVisible(mRows, visible);
    mLaidOut.assign(visible.begin(), visible.end());
    const float width = totalWidth();
    float top = 0;
    for (const RowPtr& row : mLaidOut) {
        row->mLayoutTop = top;
        ensureCells(*row);
        top += mRowHeight;
        for (unsigned int column = 0; column < row->mCells.size(); ++column) {
            const Held<ui::UI_SubView> cell = row->mCells[column];
            cell->UI_SetLocalRectF(GetCellRect(row, column));
        }
        if (const Held<ui::UI_SubView> custom = row->mCustomChild) {
            custom->UI_SetLocalRectF(RectT<float>(0, top, width, row->mCustomChildHeight));
            custom->UI_Show(true);
            top += row->mCustomChildHeight;
        }
    }
    for (const RowPtr& row : all)
        if (row->mLayoutTop < 0 && row->mCustomChild) row->mCustomChild->UI_Show(false);
    const Held<UI_ScrollView> scroll = mScrollView;
    const RectT<float> viewable = scroll->GetViewableRectF();
    const RectT<float> content = scroll->GetContentRectF();
    scroll->SetContentRectF(RectT<float>(content.left, content.top, std::max(width, viewable.width),
                                         std::max(top, viewable.height)));
    UI_Invalidate(nullptr, 0);
}

void UI_MultiColumnTree::UI_LayoutChildrenForSize(const PointT<float>& before,
                                                  const PointT<float>& after) {
    ui::UI_SubView::UI_LayoutChildrenForSize(before, after);
    const auto keep = ui::KeepNodeAlive(this);
    const float inset = mShowBorder ? 1.0f : 0.0f;
    const Held<UI_ScrollView> scroll = mScrollView;
    scroll->UI_SetLocalRectF(RectT<float>(inset, inset, std::max(0.0f, after.x - 2 * inset),
                                          std::max(0.0f, after.y - 2 * inset)));
    fitAutoResizableColumns();
    LayoutRows();
}

void UI_MultiColumnTree::fitAutoResizableColumns() {
    if (mAutoResizable.empty()) return;
    float fixed = 0;
    for (unsigned int column = 0; column < mWidths.size(); ++column)
        if (std::find(mAutoResizable.begin(), mAutoResizable.end(), column) == mAutoResizable.end())
            fixed += mWidths[column];
    unsigned int shared = 0;
    for (unsigned int column : mAutoResizable)
        shared += column < mWidths.size() ? 1 : 0;
    const float spare = mScrollView->GetViewableRectF().width - fixed;
    if (shared == 0 || spare <= 0) return;
    for (unsigned int column : mAutoResizable)
        if (column < mWidths.size())
            mWidths[column] = std::max(kMinimumColumnWidth, spare / shared);
}

// The rows move down by distance (up when negative), never leaving empty space above the
// first row or, when they overflow, below the last.
void UI_MultiColumnTree::scrollRowsBy(float distance) {
    const auto keep = ui::KeepNodeAlive(this);
    const Held<UI_ScrollView> scroll = mScrollView;
    const RectT<float> content = scroll->GetContentRectF();
    const float lowest = std::min(0.0f, scroll->GetViewableRectF().height - content.height);
    const float top = std::min(0.0f, std::max(lowest, content.top + distance));
    if (top != content.top)
        scroll->SetContentRectF(RectT<float>(content.left, top, content.width, content.height));
}

void UI_MultiColumnTree::ScrollRowIntoView(RowPtr row, bool openAncestors, int) {
    if (!inThisTree(row)) return;
    const auto keep = ui::KeepNodeAlive(this);
    if (openAncestors)
        for (RowPtr up = row->GetParentRow(); up; up = up->GetParentRow())
            if (!up->mOpen) setOpen(up, true);
    if (row->mLayoutTop < 0) return;
    const Held<UI_ScrollView> scroll = mScrollView;
    scroll->ScrollIntoView(RectT<float>(0, row->mLayoutTop, 1, mRowHeight), true);
}

// -- Selection

void UI_MultiColumnTree::SelectRows(const RowList& rows, bool extend, bool notify,
                                    bool scrollIntoView) {
    const auto keep = ui::KeepNodeAlive(this);
    if (!extend || !mMultipleSelections) {
        RowList all;
        collectAll(mRows, all);
        for (const RowPtr& row : all)
            row->mSelected = false;
    }
    RowPtr first;
    for (const RowPtr& row : rows) {
        if (!inThisTree(row)) continue;
        row->mSelected = true;
        if (!first) first = row;
        if (!mMultipleSelections) break;
    }
    if (first) mAnchor = first;
    UI_Invalidate(nullptr, 0);
    if (scrollIntoView && first) ScrollRowIntoView(first, false, 0);
    if (notify) reportSelection();
}

void UI_MultiColumnTree::DeselectAllRows(bool notify) {
    SelectRows(RowList(), false, notify, false);
}

void UI_MultiColumnTree::GetSelectedRows(RowList& rows) const {
    RowList all;
    collectAll(mRows, all);
    for (const RowPtr& row : all)
        if (row->mSelected) rows.push_back(row);
}

void UI_MultiColumnTree::reportSelection() {
    RowList selected;
    GetSelectedRows(selected);
    NotifyOfSelectionChanged(selected);
}

void UI_MultiColumnTree::NotifyOfSelectionChanged(const RowList&) {
    UI_Invalidate(nullptr, 0);
}

bool UI_MultiColumnTree::NotifyOfRowContextMenu(RowPtr, const PointT<float>&, ui::UI_Node&,
                                                unsigned int) {
    return false;
}

// -- Open state

bool UI_MultiColumnTree::IsRowOpen(RowPtr row) const {
    return inThisTree(row) && row->mOpen;
}

bool UI_MultiColumnTree::IsRowVisible(RowPtr row) const {
    if (!inThisTree(row)) return false;
    for (const UI_MultiColumnTreeRow* up = row->mParent; up; up = up->mParent)
        if (!up->mOpen) return false;
    return true;
}

// The functions run script that may change the tree: the rows they name are held.
void UI_MultiColumnTree::setOpen(const RowPtr& row, bool open) {
    if (!inThisTree(row) || row->mOpen == open) return;
    const auto keep = ui::KeepNodeAlive(this);
    const RowList before = GetVisibleRows();
    row->mOpen = open;
    LayoutRows();
    if (const RowDisclosureChangedCallback callback = mDisclosureChanged)
        if (!callback->empty()) (*callback)(row, open);
    reportVisibilityChanges(before);
}

void UI_MultiColumnTree::reportVisibilityChanges(const RowList& before) {
    const RowVisibilityChangedCallback callback = mVisibilityChanged;
    if (!callback || callback->empty()) return;
    const RowList after = GetVisibleRows();
    const auto wasVisible = membersOf(before);
    const auto isVisible = membersOf(after);
    RowList changed;
    for (const RowPtr& row : before)
        if (!isVisible.count(row.get())) changed.push_back(row);
    for (const RowPtr& row : after)
        if (!wasVisible.count(row.get())) changed.push_back(row);
    for (const RowPtr& row : changed)
        (*callback)(row);
}

void UI_MultiColumnTree::OpenRow(RowPtr row) {
    setOpen(row, true);
}

void UI_MultiColumnTree::CloseRow(RowPtr row) {
    setOpen(row, false);
}

void UI_MultiColumnTree::OpenAllTopLevelRows() {
    const std::vector<RowPtr> rows = mRows;
    for (const RowPtr& row : rows)
        setOpen(row, true);
}

void UI_MultiColumnTree::CloseAllTopLevelRows() {
    const std::vector<RowPtr> rows = mRows;
    for (const RowPtr& row : rows)
        setOpen(row, false);
}

UI_MultiColumnTree::RowList UI_MultiColumnTree::GetOpenedRows() const {
    RowList all, opened;
    collectAll(mRows, all);
    for (const RowPtr& row : all)
        if (row->mOpen) opened.push_back(row);
    return opened;
}

UI_MultiColumnTree::RowList UI_MultiColumnTree::GetVisibleRows() const {
    RowList visible;
    collectVisible(mRows, visible);
    return visible;
}

float UI_MultiColumnTree::GetOpenedRowsFirstColumnMinWidth() const {
    float width = 0;
    for (const RowPtr& row : GetVisibleRows())
        width = std::max(width, static_cast<float>(row->GetDepth()) * kIndentWidth + kTriangleSize +
                                    kCellTextLeftInset);
    return width;
}

// A row of another tree is left to that tree; a detached row keeps its custom child for
// when it is added again.
void UI_MultiColumnTree::SetRowHasCustomChild(RowPtr row, bool has, float height) {
    if (!row || (row->mTree && row->mTree != this)) return;
    if (row->mCustomChild && row->mTree == this) mRowsView->ChildRemove(row->mCustomChild);
    row->mCustomChild.reset();
    row->mCustomChildHeight = 0;
    if (has) {
        row->mCustomChild = new ui::UI_SubView();
        row->mCustomChildHeight = std::isfinite(height) ? std::max(0.0f, height) : 0.0f;
        if (row->mTree == this) mRowsView->ChildPushBack(row->mCustomChild);
    }
    LayoutRows();
}

// -- Columns

void UI_MultiColumnTree::SetNumberOfColumns(unsigned int columns) {
    mWidths.resize(columns, kDefaultColumnWidth);
    if (mSpinnerColumn >= columns) mSpinnerColumn = 0;
    LayoutRows();
}

void UI_MultiColumnTree::SetRowHeight(float height) {
    mRowHeight = std::isfinite(height) ? std::max(0.0f, height) : mRowHeight;
    LayoutRows();
}

void UI_MultiColumnTree::SetColumnWidth(unsigned int column, float width) {
    if (column >= mWidths.size() || !std::isfinite(width)) return;
    mWidths[column] = std::max(0.0f, width);
    LayoutRows();
}

float UI_MultiColumnTree::GetColumnWidth(unsigned int column) const {
    return column < mWidths.size() ? mWidths[column] : 0.0f;
}

void UI_MultiColumnTree::SetAutoResizableColumns(const std::vector<unsigned int>& columns) {
    mAutoResizable = columns;
}

void UI_MultiColumnTree::SetDrawSpinnerBeforeColumn(unsigned int column) {
    mSpinnerColumn = column;
    UI_Invalidate(nullptr, 0);
}

// -- Appearance

void UI_MultiColumnTree::SetShowBorder(bool show) {
    mShowBorder = show;
    const RectT<float> frame = UI_GetLocalRectF(false);
    UI_LayoutChildrenForSize(frame.GetSize(), frame.GetSize());
}

void UI_MultiColumnTree::SetDrawGridLines(bool horizontal, bool vertical) {
    mHorizontalGrid = horizontal;
    mVerticalGrid = vertical;
    UI_Invalidate(nullptr, 0);
}

void UI_MultiColumnTree::SetGridLineColors(const inkwell::ColorRGBA& horizontal,
                                           const inkwell::ColorRGBA& vertical) {
    mHorizontalGridColor = horizontal;
    mVerticalGridColor = vertical;
    UI_Invalidate(nullptr, 0);
}

ui::UI_Color UI_MultiColumnTree::GetSelectionColor() const {
    const RowSelectionColorCallback callback = mSelectionColor;
    return callback && !callback->empty() ? (*callback)() : kDefaultSelectionColor;
}

void UI_MultiColumnTree::SetDrawCellOfRowCallback(const DrawCellOfRowCallback& callback) {
    mDrawCell = callback;
}
void UI_MultiColumnTree::SetRowVisibilityChangedCallback(
    const RowVisibilityChangedCallback& callback) {
    mVisibilityChanged = callback;
}
void UI_MultiColumnTree::SetRowDisclosureChangedCallback(
    const RowDisclosureChangedCallback& callback) {
    mDisclosureChanged = callback;
}
void UI_MultiColumnTree::SetRowSingleClickDownCallback(const RowClickCallback& callback) {
    mClickDown = callback;
}
void UI_MultiColumnTree::SetRowSingleClickUpCallback(const RowClickCallback& callback) {
    mClickUp = callback;
}
void UI_MultiColumnTree::SetRowDoubleClickedCallback(const RowClickCallback& callback) {
    mDoubleClick = callback;
}
void UI_MultiColumnTree::SetRowSelectionColorCallback(const RowSelectionColorCallback& callback) {
    mSelectionColor = callback;
    UI_Invalidate(nullptr, 0);
}

// -- Drawing

void UI_MultiColumnTree::DrawCellString(inkwell::Inkwell* inkwell, const RectT<float>& rect,
                                        const zebcore::UTF16String& text,
                                        const inkwell::ColorRGBA& colour, float size, float inset,
                                        const zebcore::UTF16String& family,
                                        const zebcore::UTF16String& style,
                                        inkwell::TextAlignment alignment,
                                        inkwell::TextTruncation truncation) {
    if (!drawable(inkwell) || text.empty() || !(size > 0)) return;
    const inkwell::SupplierInterface& supplier = *inkwell->GetSupplier();
    const Held<inkwell::FontInterface> font(supplier.MakeFont(
        reinterpret_cast<const unsigned short*>(family.c_str()),
        style.empty() ? nullptr : reinterpret_cast<const unsigned short*>(style.c_str()), size));
    const Held<inkwell::BrushInterface> brush(supplier.MakeBrush(colour));
    if (!font || !brush) return;
    const float top = rect.top + (rect.height - size * 1.2f) / 2;
    inkwell->GetSurface()->DrawString(*brush, *font, text, PointT<float>(rect.left + inset, top),
                                      alignment, truncation, std::max(0.0f, rect.width - inset));
}

float UI_MultiColumnTree::GetCellTextFontSize() {
    return kCellTextFontSize;
}

float UI_MultiColumnTree::GetCellTextLeftInset() {
    return kCellTextLeftInset;
}

bool UI_MultiColumnTree::DoRequestDrawTreeBackground(inkwell::Inkwell*, const RectT<float>&) const {
    return false;
}

void UI_MultiColumnTree::DrawBackground(inkwell::Inkwell* inkwell) const {
    const RectT<float> bounds = face::Bounds(*this);
    if (DoRequestDrawTreeBackground(inkwell, bounds) || !drawable(inkwell)) return;
    fillRect(inkwell, bounds, kTreeFill);
}

void UI_MultiColumnTree::DrawFrame(inkwell::Inkwell* inkwell) const {
    if (!drawable(inkwell)) return;
    const RectT<float> bounds = face::Bounds(*this);
    const Held<inkwell::PathInterface> path(inkwell->GetSupplier()->MakePath());
    path->AddRect(
        RectT<float>(bounds.left + 0.5f, bounds.top + 0.5f, bounds.width - 1, bounds.height - 1));
    const Held<inkwell::PenInterface> pen(inkwell->GetSupplier()->MakePen(face::kFaceEdge, 1.0f));
    inkwell->GetSurface()->StrokePath(*pen, *path);
}

void UI_MultiColumnTree::UI_DrawFace(inkwell::Inkwell* inkwell) const {
    DrawBackground(inkwell);
    if (mShowBorder) DrawFrame(inkwell);
}

RectT<float> UI_MultiColumnTree::GetCellRect(const RowPtr& row, unsigned int column) const {
    if (!row || row->mTree != this || row->mLayoutTop < 0 || column >= mWidths.size())
        return RectT<float>();
    return RectT<float>(columnLeft(column), row->mLayoutTop, mWidths[column], mRowHeight);
}

void UI_MultiColumnTree::DoRequestDrawCellOfRow(inkwell::Inkwell* inkwell, const RowPtr& row,
                                                unsigned int column,
                                                const RectT<float>& rect) const {
    const DrawCellOfRowCallback callback = mDrawCell;
    if (callback && !callback->empty()) {
        (*callback)(inkwell, row, column, rect);
        return;
    }
    DrawCellString(inkwell, rect, row->GetCellText(column), face::kText, kCellTextFontSize,
                   kCellTextLeftInset, ui::GetFontName(0), zebcore::UTF16String(),
                   inkwell::kTextAlignment_Left, inkwell::kTextTruncation_EndEllipsis);
}

// Cell functions run script that may change the rows: the laid-out list is copied and each
// row held while it is drawn, and a row that left the tree meanwhile is skipped.
void UI_MultiColumnTree::DrawRows(inkwell::Inkwell* inkwell) const {
    if (!drawable(inkwell)) return;
    const auto keep = ui::KeepNodeAlive(this);
    const std::vector<RowPtr> rows = mLaidOut;
    const float width = std::max(totalWidth(), mRowsView->UI_GetLocalRectF(false).width);
    const inkwell::ColorRGBA selection = colourOf(GetSelectionColor());
    inkwell::SurfaceInterface* surface = inkwell->GetSurface();
    // Only the rows inside the scroll view's viewable rect are drawn.
    const RectT<float> viewed = mScrollView->GetViewedContentRectF();
    float bottom = 0;
    for (const RowPtr& row : rows) {
        if (row->mTree != this || row->mLayoutTop < 0) continue;
        const RectT<float> line(0, row->mLayoutTop, width, mRowHeight);
        bottom = std::max(bottom, line.Bottom());
        if (line.Bottom() <= viewed.top || line.top >= viewed.Bottom()) continue;
        if (row->mSelected)
            fillRect(inkwell, line, selection);
        else if (row->mHasBackground)
            fillRect(inkwell, line, row->mBackground);
        for (unsigned int column = 0; column < mWidths.size(); ++column) {
            RectT<float> cell = GetCellRect(row, column);
            if (cell.width <= 0) continue;
            if (column == mSpinnerColumn) {
                const float indent = static_cast<float>(row->GetDepth()) * kIndentWidth;
                if (row->HasChild()) {
                    const float left = cell.left + indent + 2;
                    const float middle = cell.top + cell.height / 2;
                    const float half = kTriangleSize / 2;
                    const PointT<float> open[3] = {
                        PointT<float>(left, middle - half / 2),
                        PointT<float>(left + kTriangleSize, middle - half / 2),
                        PointT<float>(left + half, middle + half)};
                    const PointT<float> closed[3] = {PointT<float>(left + 1, middle - half),
                                                     PointT<float>(left + 1, middle + half),
                                                     PointT<float>(left + 1 + half, middle)};
                    face::FillPolygon(inkwell, row->mOpen ? open : closed, 3, face::kFaceEdge);
                }
                const float used = std::min(cell.width, indent + kTriangleSize + 4);
                cell.left += used;
                cell.width -= used;
            }
            surface->PushStateStack();
            clipTo(inkwell, cell);
            DoRequestDrawCellOfRow(inkwell, row, column, cell);
            surface->PopStateStack();
            if (row->mTree != this) break; /* a cell function removed it */
        }
        if (mHorizontalGrid)
            fillRect(inkwell, RectT<float>(0, line.Bottom() - 1, width, 1), mHorizontalGridColor);
    }
    if (mVerticalGrid)
        for (unsigned int column = 0; column < mWidths.size(); ++column)
            fillRect(inkwell, RectT<float>(columnLeft(column + 1) - 1, 0, 1, bottom),
                     mVerticalGridColor);
}

// -- Pointer and keys

RowPtr UI_MultiColumnTree::HitTestRow(const PointT<float>& point, int& column) const {
    column = -1;
    for (const RowPtr& row : mLaidOut) {
        if (row->mTree != this || row->mLayoutTop < 0) continue;
        if (point.y < row->mLayoutTop || point.y >= row->mLayoutTop + mRowHeight) continue;
        if (point.x < 0 || mWidths.empty()) return nullptr;
        column = static_cast<int>(mWidths.size()) - 1;
        float left = 0;
        for (unsigned int i = 0; i < mWidths.size(); ++i) {
            left += mWidths[i];
            if (point.x < left) {
                column = static_cast<int>(i);
                break;
            }
        }
        return row;
    }
    return nullptr;
}

bool UI_MultiColumnTree::HitsDisclosureTriangle(const RowPtr& row,
                                                const PointT<float>& point) const {
    if (!row || !row->HasChild() || row->mTree != this || row->mLayoutTop < 0) return false;
    const RectT<float> cell = GetCellRect(row, mSpinnerColumn);
    const float left = cell.left + static_cast<float>(row->GetDepth()) * kIndentWidth;
    return RectT<float>(left, cell.top, kTriangleSize + 4, cell.height).Contains(point);
}

PointT<float> UI_MultiColumnTree::rowsToTree(const PointT<float>& point) const {
    return UI_GlobalToLocalF(mRowsView->UI_LocalToGlobalF(point));
}

void UI_MultiColumnTree::callClick(const RowClickCallback& callback, const RowPtr& row,
                                   const PointT<float>& point, ClickFlags flags, int column) {
    if (callback && !callback->empty())
        (*callback)(row, rowsToTree(point), flags, static_cast<unsigned int>(std::max(column, 0)));
}

bool UI_MultiColumnTree::beginColumnResize(const PointT<float>& point) {
    for (unsigned int column : mAutoResizable) {
        if (column >= mWidths.size()) continue;
        const float edge = columnLeft(column + 1);
        if (std::fabs(point.x - edge) > kResizeGrip) continue;
        mResizingColumn = static_cast<int>(column);
        mResizeStartX = point.x;
        mResizeStartWidth = mWidths[column];
        return true;
    }
    return false;
}

// Each function may run script that drops the tree or its rows: the caller holds the tree,
// and the function objects and rows are copies.
bool UI_MultiColumnTree::HandleRowsMouseEvent(const ui::MouseEvent& event) {
    if (HandleRowDragEvent(event)) return true;
    const PointT<float> point = event.GetPosition();
    const ClickFlags flags(event.GetModKey().GetValue());
    const bool context = event.GetButton() == ui::kMouseButton_Right ||
                         (event.GetButton() == ui::kMouseButton_Left &&
                          event.GetModKey().IsSet(ui::kModifierKey_Control));
    int column = -1;
    switch (event.GetAction()) {
    case ui::kMouseAction_Down: {
        if (context) {
            const RowPtr row = HitTestRow(point, column);
            if (row)
                NotifyOfRowContextMenu(row, rowsToTree(point), *this,
                                       static_cast<unsigned>(column));
            return true;
        }
        if (event.GetButton() != ui::kMouseButton_Left) return false;
        if (beginColumnResize(point)) return true;
        const RowPtr row = HitTestRow(point, column);
        if (!row) {
            DeselectAllRows(true);
            return true;
        }
        if (HitsDisclosureTriangle(row, point)) {
            setOpen(row, !row->mOpen);
            return true;
        }
        if (event.GetClickCount() >= 2) {
            callClick(mDoubleClick, row, point, flags, column);
            return true;
        }
        mRowPressed = true;
        const bool adding =
            mMultipleSelections &&
            event.GetModKey().IsAnySet(ui::kModifierKey_Shift | ui::kModifierKey_Command);
        if (adding && row->mSelected) {
            row->mSelected = false;
            reportSelection();
        } else {
            SelectRows(RowList{row}, adding, true, false);
        }
        callClick(mClickDown, row, point, flags, column);
        return true;
    }
    case ui::kMouseAction_Wheel:
        scrollRowsBy(static_cast<float>(event.GetMouseWheelDelta()) * mRowHeight);
        return true;
    case ui::kMouseAction_Drag:
        if (mResizingColumn < 0) return false;
        SetColumnWidth(static_cast<unsigned int>(mResizingColumn),
                       std::max(kMinimumColumnWidth, mResizeStartWidth + point.x - mResizeStartX));
        return true;
    case ui::kMouseAction_Up: {
        if (mResizingColumn >= 0) {
            mResizingColumn = -1;
            return true;
        }
        if (event.GetButton() != ui::kMouseButton_Left || context) return false;
        const bool pressed = mRowPressed;
        mRowPressed = false;
        const RowPtr row = HitTestRow(point, column);
        if (row && pressed) callClick(mClickUp, row, point, flags, column);
        return true;
    }
    default:
        return false;
    }
}

// Events aimed at the rows view, and those of a drag the tree took (it then holds the
// pointer), are the tree's; the point is taken into the rows' coordinates.
bool UI_MultiColumnTree::UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) {
    if (ui::UI_SubView::UI_DoMouseEvent(target, event)) return true;
    if (target != mRowsView.get() && target != this) return false;
    const auto keep = ui::KeepNodeAlive(this);
    const PointT<float> inRows =
        mRowsView->UI_GlobalToLocalF(UI_LocalToGlobalF(event.GetPosition()));
    return HandleRowsMouseEvent(
        ui::MouseEvent(event.GetAction(), event.GetButton(), event.GetClickCount(), inRows,
                       event.GetModKey(), event.GetOSEvent(), event.GetMouseWheelDelta(),
                       event.GetMouseWheelAxis(), event.GetMagnification(), event.GetRotation(),
                       event.GetSwipeDirection(), event.GetGesturePhase()));
}

bool UI_MultiColumnTree::UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) {
    if (ui::UI_SubView::UI_DoKeyboardEvent(target, event)) return true;
    if (event.GetAction() != ui::kKeyboardAction_Down) return false;
    const unsigned int code = event.GetCode().GetValue(true);
    if (code != ui::kKeyCode_UpArrow && code != ui::kKeyCode_DownArrow) return false;
    const auto keep = ui::KeepNodeAlive(this);
    std::vector<RowPtr> rows;
    for (const RowPtr& row : mLaidOut)
        if (row->mTree == this && row->mLayoutTop >= 0) rows.push_back(row);
    if (rows.empty()) return true;
    const bool down = code == ui::kKeyCode_DownArrow;
    RowPtr from = mAnchor && mAnchor->mSelected ? mAnchor : nullptr;
    if (!from)
        for (const RowPtr& row : rows)
            if (row->mSelected) {
                from = row;
                break;
            }
    const auto at = std::find(rows.begin(), rows.end(), from);
    RowPtr next;
    if (at == rows.end())
        next = down ? rows.front() : rows.back();
    else if (down)
        next = at + 1 == rows.end() ? *at : *(at + 1);
    else
        next = at == rows.begin() ? *at : *(at - 1);
    SelectRows(RowList{next}, false, true, true);
    return true;
}

}  // namespace controls
}  // namespace zebui

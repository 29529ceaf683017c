// A tree of rows in columns: the row model, its layout, drawing, pointer and keys.
#pragma once

#include <list>
#include <vector>

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zebcore/geom/RectT.h"
#include "zebcore/utility/Flags.h"
#include "zebcore/utility/Strings.h"
#include "zebui/controls/UI_MultiColumnTreeDragSupport.h"
#include "zebui/controls/UI_MultiColumnTreeRow.h"
#include "zebui/inkwell/ColorRGBA.h"
#include "zebui/inkwell/InkwellTypes.h"
#include "zebui/ui/UI_SubView.h"

namespace boost {
template <class Signature> class function;
}  // namespace boost

namespace zebui {
namespace inkwell {
class Inkwell;
}  // namespace inkwell

namespace ui {
// A colour in 32 bits: red in the highest byte, then green, blue and alpha.
using UI_Color = unsigned int;
}  // namespace ui

namespace controls {

class UI_ScrollView;

// Rows: top-level rows count from 0 (GetRow, CountRows(false)); every row holds its own
// children. A row is visible when each of its ancestors is open; new rows start closed.
// Columns count from 0 and start 100 units wide.
//
// Layout: a change of the model (append, insert, remove) lays the rows out again at once
// when its flag says so; otherwise the layout waits for a LayoutAfter... call, and until
// then drawing and the pointer see the rows where they were. The visible rows lie one
// under the other, each RowHeight tall, a custom child below its row, in a rows view that
// is the content of the tree's scroll view, which fills the tree.
//
// Drawing (the rows view's face): per visible row inside the scroll view's viewable rect its
// background (the row's own colour, or the selection colour when selected), then each cell through
// DoRequestDrawCellOfRow (the cell function, or the row's cell text), the disclosure triangle of a
// row with children in the spinner column, then grid lines. The tree's own face is DrawBackground
// and, when asked, a border.
//
// Pointer: a left down on a disclosure triangle opens or closes its row; on a row with
// click count 1 it selects (shift or command adds to a multiple selection) and calls the
// single click down function; with click count 2 the double click function; the left up
// that ends a single click on a row calls the single click up function for the row under
// it; a right down, or a down with control, is a context
// click (NotifyOfRowContextMenu); the wheel scrolls by rows, a positive delta towards the
// first. Up and down arrows move a single selection.
//
// Every function and notification may run code that changes the tree or drops it: the
// tree holds itself and the rows it reports across each call.
class UI_MultiColumnTree : public ui::UI_SubView, public UI_MultiColumnTreeDragSupport {
public:
    using RowPtr = boost::intrusive_ptr<UI_MultiColumnTreeRow>;
    using RowList = std::list<RowPtr>;
    using ClickFlags = zebcore::utility::Flags<unsigned char>;

    using DrawCellOfRowCallback = boost::shared_ptr<boost::function<void(
        inkwell::Inkwell*, RowPtr, unsigned int, zebcore::geom::RectT<float>)>>;
    using RowVisibilityChangedCallback = boost::shared_ptr<boost::function<void(RowPtr)>>;
    using RowDisclosureChangedCallback = boost::shared_ptr<boost::function<void(RowPtr, bool)>>;
    using RowClickCallback = boost::shared_ptr<boost::function<void(
        RowPtr, const zebcore::geom::PointT<float>&, ClickFlags, unsigned int)>>;
    using RowSelectionColorCallback = boost::shared_ptr<boost::function<ui::UI_Color()>>;

    static constexpr float kDefaultColumnWidth = 100.0f;
    static constexpr float kIndentWidth = 14.0f;
    static constexpr float kTriangleSize = 9.0f;
    static constexpr float kResizeGrip = 3.0f;

    UI_MultiColumnTree(unsigned int columns, float rowHeight);
    ~UI_MultiColumnTree() override;

    // Flags are the toolkit's options, kept as given.
    virtual void Init(zebcore::utility::Flags<unsigned int> flags);
    zebcore::utility::Flags<unsigned int> GetInitFlags() const { return mInitFlags; }

    // Rows.

    // Adds row as the last child of parent (empty: top level). Answers the row's place
    // among its siblings, or -1 when it wasn't added: a row already in a tree, a parent
    // not in this tree, a parent that can't have children, or children not allowed.
    int AppendRow(RowPtr row, RowPtr parent, bool layoutNow);
    // The same, before reference (a sibling under parent; empty or not found: at the end).
    int InsertRow(RowPtr row, RowPtr parent, RowPtr reference, bool layoutNow, bool unused);
    // Detaches row with its children (deselected, closed state kept); a row not in this
    // tree is left alone.
    void RemoveRow(RowPtr row, bool layoutNow, bool unused);
    virtual void RemoveAllRows(bool layoutNow);
    // Moves a row of this tree under newParent (empty: top level) to index among its new
    // siblings (beyond the end: last). False when it would go under itself or a row not
    // in this tree, or under a parent that can't have children.
    bool MoveRow(RowPtr row, RowPtr newParent, unsigned int index, bool layoutNow);
    // The rows under parent (empty: the top-level rows), in order.
    const std::vector<RowPtr>& GetSiblingRows(const RowPtr& parent) const;

    void LayoutAfterAppendRow(RowPtr row);
    void LayoutAfterInsertRow(RowPtr row, bool unused);
    void LayoutAfterRemoveRow();
    virtual void LayoutRows();

    // With all: every row at every depth; without: the top-level rows, which GetRow indexes.
    unsigned int CountRows(bool all) const;
    // Empty beyond the last top-level row.
    RowPtr GetRow(unsigned int index) const;

    // Scrolls the row's place into the view; with openAncestors its closed ancestors are
    // opened first. The last argument is the toolkit's margin; unused here.
    void ScrollRowIntoView(RowPtr row, bool openAncestors, int margin);

    // Selection.

    void SetSupportMultipleSelections(bool multiple) { mMultipleSelections = multiple; }
    bool GetSupportMultipleSelections() const { return mMultipleSelections; }
    // Selects the rows of this tree in rows (without multiple selections only the first);
    // extend keeps the present selection, notify reports a change through
    // NotifyOfSelectionChanged, scrollIntoView brings the first into the view.
    void SelectRows(const RowList& rows, bool extend, bool notify, bool scrollIntoView);
    void DeselectAllRows(bool notify);
    // In the order of the tree, parents before children.
    void GetSelectedRows(RowList& rows) const;

    // Open state and visibility.

    bool IsRowOpen(RowPtr row) const;
    bool IsRowVisible(RowPtr row) const;
    void OpenRow(RowPtr row);
    void CloseRow(RowPtr row);
    void OpenAllTopLevelRows();
    void CloseAllTopLevelRows();
    RowList GetOpenedRows() const;
    RowList GetVisibleRows() const;
    // The first column's width that shows the deepest visible row's triangle and indent.
    float GetOpenedRowsFirstColumnMinWidth() const;
    void SetAllowChildren(bool allow) { mAllowChildren = allow; }
    bool GetAllowChildren() const { return mAllowChildren; }
    // Gives row a custom child view of height below it, or takes it away.
    void SetRowHasCustomChild(RowPtr row, bool has, float height);

    // Columns.

    void SetNumberOfColumns(unsigned int columns);
    unsigned int GetNumberOfColumns() const { return static_cast<unsigned int>(mWidths.size()); }
    void SetRowHeight(float height);
    float GetRowHeight() const { return mRowHeight; }
    // A column beyond the last is ignored, and answers 0.
    void SetColumnWidth(unsigned int column, float width);
    float GetColumnWidth(unsigned int column) const;
    // The columns that share the width the others leave when the tree is resized; the user
    // may also drag their right edges.
    void SetAutoResizableColumns(const std::vector<unsigned int>& columns);
    const std::vector<unsigned int>& GetAutoResizableColumns() const { return mAutoResizable; }
    // The column the disclosure triangles and indents are drawn in.
    void SetDrawSpinnerBeforeColumn(unsigned int column);
    unsigned int GetDrawSpinnerBeforeColumn() const { return mSpinnerColumn; }

    // Appearance.

    void SetShowBorder(bool show);
    bool GetShowBorder() const { return mShowBorder; }
    void SetDrawGridLines(bool horizontal, bool vertical);
    bool GetDrawHorizontalGridLines() const { return mHorizontalGrid; }
    bool GetDrawVerticalGridLines() const { return mVerticalGrid; }
    void SetGridLineColors(const inkwell::ColorRGBA& horizontal,
                           const inkwell::ColorRGBA& vertical);
    // The default selection colour, and the one in use (the callback's when installed).
    static constexpr ui::UI_Color kDefaultSelectionColor = 0x3D7DD8FF;
    ui::UI_Color GetSelectionColor() const;

    UI_ScrollView* GetScrollView() const { return mScrollView.get(); }
    ui::UI_SubView* GetRowsView() const { return mRowsView.get(); }

    // Where a row's cell lies in the rows view; empty for a row that isn't laid out.
    zebcore::geom::RectT<float> GetCellRect(const RowPtr& row, unsigned int column) const;
    // The laid-out visible row at a point of the rows view, and the column (or -1).
    RowPtr HitTestRow(const zebcore::geom::PointT<float>& point, int& column) const;
    // Whether point of the rows view lies on row's disclosure triangle.
    bool HitsDisclosureTriangle(const RowPtr& row, const zebcore::geom::PointT<float>& point) const;

    // Functions; an empty pointer removes one.
    void SetDrawCellOfRowCallback(const DrawCellOfRowCallback& callback);
    void SetRowVisibilityChangedCallback(const RowVisibilityChangedCallback& callback);
    void SetRowDisclosureChangedCallback(const RowDisclosureChangedCallback& callback);
    void SetRowSingleClickDownCallback(const RowClickCallback& callback);
    void SetRowSingleClickUpCallback(const RowClickCallback& callback);
    void SetRowDoubleClickedCallback(const RowClickCallback& callback);
    void SetRowSelectionColorCallback(const RowSelectionColorCallback& callback);

    // Text in a cell: text at inset from rect's left, centred in its height, aligned and
    // truncated within the rest of its width. Needs no tree.
    static void DrawCellString(inkwell::Inkwell* inkwell, const zebcore::geom::RectT<float>& rect,
                               const zebcore::UTF16String& text, const inkwell::ColorRGBA& colour,
                               float size, float inset, const zebcore::UTF16String& family,
                               const zebcore::UTF16String& style, inkwell::TextAlignment alignment,
                               inkwell::TextTruncation truncation);
    static float GetCellTextFontSize();
    static float GetCellTextLeftInset();

    // Virtual operations that subclasses take over.

    // The tree's background over rect; the face's first step.
    virtual void DrawBackground(inkwell::Inkwell* inkwell) const;
    virtual void DrawFrame(inkwell::Inkwell* inkwell) const;
    // Draws one cell: the cell function, or the row's text in the column.
    virtual void DoRequestDrawCellOfRow(inkwell::Inkwell* inkwell, const RowPtr& row,
                                        unsigned int column,
                                        const zebcore::geom::RectT<float>& rect) const;
    // Whether a subclass drew the background itself; the base draws none here.
    virtual bool DoRequestDrawTreeBackground(inkwell::Inkwell* inkwell,
                                             const zebcore::geom::RectT<float>& rect) const;
    // After every change of the selection that asked to be reported; the base redraws.
    virtual void NotifyOfSelectionChanged(const RowList& rows);
    // A context click on row at point of the tree; true when it was handled. The base
    // handles none.
    virtual bool NotifyOfRowContextMenu(RowPtr row, const zebcore::geom::PointT<float>& point,
                                        ui::UI_Node& node, unsigned int column);

    bool UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) override;
    bool UI_DoKeyboardEvent(ui::UI_Node* target, const ui::KeyboardEvent& event) override;

    // The rows view's face.
    void DrawRows(inkwell::Inkwell* inkwell) const;
    // A mouse event at a point of the rows view.
    bool HandleRowsMouseEvent(const ui::MouseEvent& event);

protected:
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_LayoutChildrenForSize(const zebcore::geom::PointT<float>& before,
                                  const zebcore::geom::PointT<float>& after) override;

private:
    bool inThisTree(const RowPtr& row) const;
    std::vector<RowPtr>& siblingsOf(UI_MultiColumnTreeRow* parent);
    void attach(const RowPtr& row, UI_MultiColumnTreeRow* parent);
    void detach(const RowPtr& row);
    void ensureCells(UI_MultiColumnTreeRow& row) const;
    void collectAll(const std::vector<RowPtr>& rows, RowList& out) const;
    void collectVisible(const std::vector<RowPtr>& rows, RowList& out) const;
    void setOpen(const RowPtr& row, bool open);
    void reportVisibilityChanges(const RowList& before);
    void reportSelection();
    void fitAutoResizableColumns();
    float totalWidth() const;
    float columnLeft(unsigned int column) const;
    zebcore::geom::PointT<float> rowsToTree(const zebcore::geom::PointT<float>& point) const;
    void callClick(const RowClickCallback& callback, const RowPtr& row,
                   const zebcore::geom::PointT<float>& point, ClickFlags flags, int column);
    bool beginColumnResize(const zebcore::geom::PointT<float>& point);
    void scrollRowsBy(float distance);

    zebcore::utility::Flags<unsigned int> mInitFlags;
    std::vector<RowPtr> mRows;
    std::vector<float> mWidths;
    std::vector<unsigned int> mAutoResizable;
    float mRowHeight;
    unsigned int mSpinnerColumn = 0;
    bool mMultipleSelections = false;
    bool mAllowChildren = true;
    bool mShowBorder = false;
    bool mHorizontalGrid = false;
    bool mVerticalGrid = false;
    inkwell::ColorRGBA mHorizontalGridColor;
    inkwell::ColorRGBA mVerticalGridColor;
    RowPtr mAnchor;            // the row arrows move from
    bool mRowPressed = false;  // a left down on a row began the click now going on
    int mResizingColumn = -1;
    float mResizeStartX = 0;
    float mResizeStartWidth = 0;
    std::vector<RowPtr> mLaidOut;  // visible rows, in the order and places of the last layout
    boost::intrusive_ptr<UI_ScrollView> mScrollView;
    boost::intrusive_ptr<ui::UI_SubView> mRowsView;
    DrawCellOfRowCallback mDrawCell;
    RowVisibilityChangedCallback mVisibilityChanged;
    RowDisclosureChangedCallback mDisclosureChanged;
    RowClickCallback mClickDown;
    RowClickCallback mClickUp;
    RowClickCallback mDoubleClick;
    RowSelectionColorCallback mSelectionColor;
};

}  // namespace controls
}  // namespace zebui

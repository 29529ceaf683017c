// What a multi-column tree adds for moving rows: dragging its selected rows, taking drops
// over its rows through a caller's function, and sorting.
#pragma once

#include <cstdint>
#include <vector>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zebcore/utility/Strings.h"
#include "zebui/controls/MultiColumnTreeSort.h"
#include "zebui/controls/UI_MultiColumnTreeRow.h"
#include "zebui/datatransfer/DragSession.h"

namespace zebui {
namespace ui {
class MouseEvent;
}  // namespace ui

namespace controls {

class UI_MultiColumnTree;
class UI_MultiColumnTreeRow;

// A base of UI_MultiColumnTree only. Rows travel in a drag as bytes of the rows dragged
// data type: the dragging tree's serial number and a token of each row, resolved against
// the live rows of the tree that reads them, never followed as pointers. A tree reads
// only the rows of its own drags, and a row that left it meanwhile is left out.
class UI_MultiColumnTreeDragSupport : public datatransfer::DropTarget {
public:
    enum DropAction {
        kDropAction_DragEnter = 0,
        kDropAction_DragOver = 1,
        kDropAction_DragLeave = 2,
        kDropAction_Drop = 3,
    };
    // What goes with a drop action: in fields are the toolkit's, out fields the answer's.
    struct DropSupportData {
        zebcore::geom::PointT<float> point;      // in the tree's coordinates
        datatransfer::OS_ReceiveDataBase* data;  // the drag's data, for the call only
        int* dropEffect;                         // may be null
        UI_MultiColumnTreeRow* row;              // under the drag; null over no row
        int dropPosition;                        // -1 top quarter, 0 middle, 1 bottom quarter
        bool valid;                              // false until the function says otherwise
    };
    using SelectedRowsBeingDraggedCallback =
        boost::shared_ptr<boost::function<bool(const ui::MouseEvent&)>>;
    using DropSupportCallback =
        boost::shared_ptr<boost::function<bool(DropAction, DropSupportData*)>>;
    using RowSortingFunctionP = boost::shared_ptr<RowSortingFunction>;

    // The distance a press on a selected row must move before it becomes a drag.
    static constexpr float kDragThreshold = 3.0f;
    // The type rows travel as until SetRowsDraggedDataType names another.
    static constexpr char16_t kDefaultRowsDraggedDataType[] = u"zebui.tree-rows";

    UI_MultiColumnTreeDragSupport();
    ~UI_MultiColumnTreeDragSupport() override;

    void SetAllowRowDragging(bool allow) { mAllowRowDragging = allow; }
    bool GetAllowRowDragging() const { return mAllowRowDragging; }
    // Without it, a drop never names a row: the whole tree is the target.
    void SetAllowDropOverRows(bool allow) { mAllowDropOverRows = allow; }
    bool GetAllowDropOverRows() const { return mAllowDropOverRows; }
    // Whether the row under a drag is kept as the drag-over row (GetDragOverRow).
    void SetSupportDragOverRow(bool support) { mSupportDragOverRow = support; }
    bool GetSupportDragOverRow() const { return mSupportDragOverRow; }
    void ShowDragFeedback(bool show) { mShowDragFeedback = show; }
    bool GetShowDragFeedback() const { return mShowDragFeedback; }
    // The row a drag is over now, when dragging over rows is supported; null otherwise.
    UI_MultiColumnTreeRow* GetDragOverRow() const { return mDragOverRow.get(); }

    // Registers the type as a custom data type too.
    void SetRowsDraggedDataType(const zebcore::UTF16String& type);
    const zebcore::UTF16String& GetRowsDraggedDataType() const { return mRowsDraggedDataType; }
    // The rows of bytes that a drag of this tree carries, in their dragged order; rows that
    // are gone, and the rows of another tree's drags, are left out.
    virtual void GetRowsBeingDragged(const std::vector<unsigned char>& bytes,
                                     std::vector<UI_MultiColumnTreeRow*>& rows);

    void SetRowSortingFunction(const RowSortingFunctionP& function) { mRowSorting = function; }
    // Without a sorting function the rows stay as they are.
    void SortTree();

    void SetSelectedRowsBeingDraggedCallback(const SelectedRowsBeingDraggedCallback& callback) {
        mSelectedRowsBeingDragged = callback;
    }
    void SetDropSupportCallback(const DropSupportCallback& callback) { mDropSupport = callback; }
    const DropSupportCallback& GetDropSupportCallback() const { return mDropSupport; }
    // Whether the selected rows may be dragged now: the callback's answer, false without one.
    virtual bool NotifySelectedRowsBeingDragged(const ui::MouseEvent& event);

    // The pointer in the rows' coordinates: a press on a selected row that moves past the
    // threshold, with dragging allowed and the callback's consent, runs a drag of the
    // selected rows (copy or move) and answers true. Everything else is left to the tree.
    bool HandleRowDragEvent(const ui::MouseEvent& event);

    // The drop target: each action goes to the drop support callback.
    int DragEntered(const zebcore::geom::PointT<float>& where,
                    datatransfer::OS_ReceiveDataBase& data, int allowedEffects) override;
    int DraggedOver(const zebcore::geom::PointT<float>& where,
                    datatransfer::OS_ReceiveDataBase& data, int allowedEffects) override;
    void DragLeft(datatransfer::OS_ReceiveDataBase& data) override;
    int Dropped(const zebcore::geom::PointT<float>& where, datatransfer::OS_ReceiveDataBase& data,
                int allowedEffects) override;

private:
    UI_MultiColumnTree& tree();
    int askDropSupport(DropAction action, const zebcore::geom::PointT<float>& where,
                       datatransfer::OS_ReceiveDataBase& data);
    std::vector<unsigned char> packSelectedRows();

    std::uint64_t mSerial;
    bool mAllowRowDragging = false;
    bool mAllowDropOverRows = true;
    bool mSupportDragOverRow = false;
    bool mShowDragFeedback = false;
    bool mPressed = false;
    zebcore::geom::PointT<float> mPressPoint;
    boost::intrusive_ptr<UI_MultiColumnTreeRow> mDragOverRow;  // while a drag is over the tree
    zebcore::UTF16String mRowsDraggedDataType;
    RowSortingFunctionP mRowSorting;
    SelectedRowsBeingDraggedCallback mSelectedRowsBeingDragged;
    DropSupportCallback mDropSupport;
};

}  // namespace controls
}  // namespace zebui

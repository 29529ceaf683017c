// Rows dragged out of a tree, drops taken over its rows, and its sort.
#include "zebui/controls/UI_MultiColumnTreeDragSupport.h"

#include <cmath>

#include "zebui/controls/UI_MultiColumnTree.h"
#include "zebui/datatransfer/DataTypes.h"
#include "zebui/datatransfer/OS_SendData.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace controls {
namespace {

using RowPtr = UI_MultiColumnTree::RowPtr;
using zebcore::geom::PointT;

std::uint64_t sNextSerial = 1;

void putWord(std::vector<unsigned char>& bytes, std::uint64_t value, int size) {
    for (int shift = 0; shift < size * 8; shift += 8)
        bytes.push_back(static_cast<unsigned char>(value >> shift));
}

// Reads size bytes at offset, little end first; false when the bytes run out.
bool takeWord(const std::vector<unsigned char>& bytes, size_t& offset, std::uint64_t& value,
              int size) {
    if (offset > bytes.size() || bytes.size() - offset < static_cast<size_t>(size)) return false;
    value = 0;
    for (int index = 0; index < size; ++index)
        value |= static_cast<std::uint64_t>(bytes[offset + index]) << (8 * index);
    offset += size;
    return true;
}

// Every row of the tree, parents before children.
void collectRows(const UI_MultiColumnTree& tree, const RowPtr& parent, std::vector<RowPtr>& rows) {
    for (const RowPtr& row : tree.GetSiblingRows(parent)) {
        rows.push_back(row);
        collectRows(tree, row, rows);
    }
}

}  // namespace

constexpr char16_t UI_MultiColumnTreeDragSupport::kDefaultRowsDraggedDataType[];

UI_MultiColumnTreeDragSupport::UI_MultiColumnTreeDragSupport()
    : mSerial(sNextSerial++), mRowsDraggedDataType(kDefaultRowsDraggedDataType) {
    datatransfer::RegisterCustomDataType(mRowsDraggedDataType);
}

UI_MultiColumnTreeDragSupport::~UI_MultiColumnTreeDragSupport() = default;

UI_MultiColumnTree& UI_MultiColumnTreeDragSupport::tree() {
    return static_cast<UI_MultiColumnTree&>(*this);
}

void UI_MultiColumnTreeDragSupport::SetRowsDraggedDataType(const zebcore::UTF16String& type) {
    mRowsDraggedDataType = type;
    datatransfer::RegisterCustomDataType(type);
}

// A row's address is only its token: it is compared with the addresses of live rows,
// never followed, so a row that went meanwhile is simply not found.
std::vector<unsigned char> UI_MultiColumnTreeDragSupport::packSelectedRows() {
    UI_MultiColumnTree::RowList rows;
    tree().GetSelectedRows(rows);
    std::vector<unsigned char> bytes;
    putWord(bytes, mSerial, 8);
    putWord(bytes, rows.size(), 4);
    for (const RowPtr& row : rows)
        putWord(bytes, reinterpret_cast<std::uintptr_t>(row.get()), 8);
    return bytes;
}

void UI_MultiColumnTreeDragSupport::GetRowsBeingDragged(const std::vector<unsigned char>& bytes,
                                                        std::vector<UI_MultiColumnTreeRow*>& rows) {
    size_t offset = 0;
    std::uint64_t serial = 0;
    std::uint64_t count = 0;
    if (!takeWord(bytes, offset, serial, 8) || serial != mSerial) return;
    if (!takeWord(bytes, offset, count, 4)) return;
    std::vector<RowPtr> live;
    collectRows(tree(), RowPtr(), live);
    for (std::uint64_t index = 0; index < count; ++index) {
        std::uint64_t token = 0;
        if (!takeWord(bytes, offset, token, 8)) return;
        for (const RowPtr& row : live) {
            if (reinterpret_cast<std::uintptr_t>(row.get()) == token) {
                rows.push_back(row.get());
                break;
            }
        }
    }
}

void UI_MultiColumnTreeDragSupport::SortTree() {
    if (mRowSorting && *mRowSorting) SortTreeRows(tree(), *mRowSorting);
}

bool UI_MultiColumnTreeDragSupport::NotifySelectedRowsBeingDragged(const ui::MouseEvent& event) {
    const SelectedRowsBeingDraggedCallback callback = mSelectedRowsBeingDragged;
    return callback && *callback && (*callback)(event);
}

// The drag runs a nested loop whose callbacks may change or drop the tree: it is held, and
// the send data lives in this frame and carries its own bytes.
bool UI_MultiColumnTreeDragSupport::HandleRowDragEvent(const ui::MouseEvent& event) {
    const PointT<float> point = event.GetPosition();
    switch (event.GetAction()) {
    case ui::kMouseAction_Down: {
        int column = -1;
        mPressed = event.GetButton() == ui::kMouseButton_Left && event.GetClickCount() == 1 &&
                   tree().HitTestRow(point, column);
        mPressPoint = point;
        return false;
    }
    case ui::kMouseAction_Drag: {
        if (!mPressed || !mAllowRowDragging) return false;
        if (std::hypot(point.x - mPressPoint.x, point.y - mPressPoint.y) < kDragThreshold)
            return false;
        mPressed = false;
        const auto keep = ui::KeepNodeAlive(&tree());
        int column = -1;
        const RowPtr pressed = tree().HitTestRow(mPressPoint, column);
        if (!pressed || !pressed->IsSelected()) return false;
        if (!NotifySelectedRowsBeingDragged(event)) return false;
        datatransfer::OS_SendData send(event.GetOSEvent());
        send.PutRawData(mRowsDraggedDataType, packSelectedRows());
        int effect = datatransfer::kDropEffectNone;
        send.DoDragAndDrop(datatransfer::kDropEffectCopy | datatransfer::kDropEffectMove, &effect);
        return true;
    }
    case ui::kMouseAction_Up:
        mPressed = false;
        return false;
    default:
        return false;
    }
}

int UI_MultiColumnTreeDragSupport::askDropSupport(DropAction action, const PointT<float>& where,
                                                  datatransfer::OS_ReceiveDataBase& data) {
    const DropSupportCallback callback = mDropSupport;
    const auto keep = ui::KeepNodeAlive(&tree());
    RowPtr row;
    int position = 0;
    ui::UI_SubView* rowsView = tree().GetRowsView();
    if (mAllowDropOverRows && rowsView) {
        const PointT<float> inRows = rowsView->UI_GlobalToLocalF(tree().UI_LocalToGlobalF(where));
        int column = -1;
        row = tree().HitTestRow(inRows, column);
        if (row) {
            const float height = tree().GetRowHeight();
            const float within = std::fmod(std::max(inRows.y, 0.0f), height > 0 ? height : 1.0f);
            position = within < height / 4 ? -1 : (within >= height * 3 / 4 ? 1 : 0);
        }
    }
    mDragOverRow = mSupportDragOverRow && action != kDropAction_Drop ? row : RowPtr();
    if (!callback || !*callback) return datatransfer::kDropEffectNone;
    int effect = datatransfer::kDropEffectNone;
    DropSupportData support{where, &data, &effect, row.get(), position, false};
    (*callback)(action, &support);
    return support.valid ? effect : datatransfer::kDropEffectNone;
}

int UI_MultiColumnTreeDragSupport::DragEntered(const PointT<float>& where,
                                               datatransfer::OS_ReceiveDataBase& data, int) {
    return askDropSupport(kDropAction_DragEnter, where, data);
}

int UI_MultiColumnTreeDragSupport::DraggedOver(const PointT<float>& where,
                                               datatransfer::OS_ReceiveDataBase& data, int) {
    return askDropSupport(kDropAction_DragOver, where, data);
}

void UI_MultiColumnTreeDragSupport::DragLeft(datatransfer::OS_ReceiveDataBase&) {
    mDragOverRow.reset();
    const DropSupportCallback callback = mDropSupport;
    const auto keep = ui::KeepNodeAlive(&tree());
    if (callback && *callback) (*callback)(kDropAction_DragLeave, nullptr);
}

int UI_MultiColumnTreeDragSupport::Dropped(const PointT<float>& where,
                                           datatransfer::OS_ReceiveDataBase& data, int) {
    const int effect = askDropSupport(kDropAction_Drop, where, data);
    mDragOverRow.reset();
    return effect;
}

}  // namespace controls
}  // namespace zebui

// Multi-column tree rows.
#include "zebui/controls/UI_MultiColumnTreeRow.h"

#include <algorithm>

#include "zebui/ui/UI_SubView.h"

namespace zebui {
namespace controls {

UI_MultiColumnTreeRow::UI_MultiColumnTreeRow(bool canHaveChildren)
    : mCanHaveChildren(canHaveChildren) {}

UI_MultiColumnTreeRow::~UI_MultiColumnTreeRow() {
    for (const RowPtr& child : mChildren)
        child->mParent = nullptr;
}

int UI_MultiColumnTreeRow::GetChildRowIndex(const RowPtr& child) const {
    const auto at = std::find(mChildren.begin(), mChildren.end(), child);
    return at == mChildren.end() ? -1 : static_cast<int>(at - mChildren.begin());
}

UI_MultiColumnTreeRow::RowPtr UI_MultiColumnTreeRow::GetChildRow(unsigned int index) const {
    return index < mChildren.size() ? mChildren[index] : nullptr;
}

UI_MultiColumnTreeRow::RowPtr UI_MultiColumnTreeRow::GetParentRow() const {
    return RowPtr(mParent);
}

unsigned int UI_MultiColumnTreeRow::GetDepth() const {
    unsigned int depth = 0;
    for (const UI_MultiColumnTreeRow* row = mParent; row; row = row->mParent)
        ++depth;
    return depth;
}

void UI_MultiColumnTreeRow::SetBackgroundColor(const inkwell::ColorRGBA& colour) {
    mBackground = colour;
    mHasBackground = true;
}

boost::intrusive_ptr<ui::UI_Node> UI_MultiColumnTreeRow::GetCustomChild() const {
    return mCustomChild;
}

boost::intrusive_ptr<ui::UI_Node> UI_MultiColumnTreeRow::GetCellView(unsigned int column) const {
    if (!mTree || column >= mCells.size()) return nullptr;
    return mCells[column];
}

void UI_MultiColumnTreeRow::SetCellText(unsigned int column, const zebcore::UTF16String& text) {
    if (column >= mCellTexts.size()) mCellTexts.resize(column + 1);
    mCellTexts[column] = text;
}

zebcore::UTF16String UI_MultiColumnTreeRow::GetCellText(unsigned int column) const {
    return column < mCellTexts.size() ? mCellTexts[column] : zebcore::UTF16String();
}

}  // namespace controls
}  // namespace zebui

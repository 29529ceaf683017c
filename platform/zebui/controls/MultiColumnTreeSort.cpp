// A merge sort of the tree's sibling lists that no comparison can lead out of bounds.
#include "zebui/controls/MultiColumnTreeSort.h"

#include <algorithm>
#include <vector>

#include "zebui/controls/UI_MultiColumnTree.h"
#include "zebui/controls/UI_MultiColumnTreeRow.h"
#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace controls {
namespace {

using RowPtr = UI_MultiColumnTree::RowPtr;

// Bottom-up merge by indices alone: the comparison only chooses which of two runs gives
// the next row, so any answers give a permutation. The left run wins unless the right
// row belongs before it, which keeps equal rows in their order.
void mergeSort(std::vector<RowPtr>& rows, const RowSortingFunction& firstBeforeSecond) {
    const size_t count = rows.size();
    std::vector<RowPtr> merged(count);
    for (size_t width = 1; width < count; width *= 2) {
        for (size_t left = 0; left < count; left += 2 * width) {
            const size_t middle = std::min(left + width, count);
            const size_t end = std::min(left + 2 * width, count);
            size_t a = left;
            size_t b = middle;
            size_t out = left;
            while (a < middle && b < end)
                merged[out++] =
                    firstBeforeSecond(rows[b].get(), rows[a].get()) ? rows[b++] : rows[a++];
            while (a < middle)
                merged[out++] = rows[a++];
            while (b < end)
                merged[out++] = rows[b++];
        }
        rows.swap(merged);
    }
}

bool isChildOf(const RowPtr& row, const RowPtr& parent) {
    return row->GetParentRow() == parent;
}

void sortSiblings(UI_MultiColumnTree& tree, const RowPtr& parent,
                  const RowSortingFunction& firstBeforeSecond) {
    std::vector<RowPtr> rows = tree.GetSiblingRows(parent);  // a copy: the tree may change
    mergeSort(rows, firstBeforeSecond);
    unsigned int place = 0;
    for (const RowPtr& row : rows) {
        if (!isChildOf(row, parent) || row->GetTree() != &tree) continue;
        tree.MoveRow(row, parent, place++, false);
    }
    for (const RowPtr& row : rows)
        if (isChildOf(row, parent) && row->GetTree() == &tree && row->HasChild())
            sortSiblings(tree, row, firstBeforeSecond);
}

}  // namespace

void SortTreeRows(UI_MultiColumnTree& tree, const RowSortingFunction& firstBeforeSecond) {
    if (!firstBeforeSecond) return;
    const auto keep = ui::KeepNodeAlive(&tree);
    sortSiblings(tree, RowPtr(), firstBeforeSecond);
    tree.LayoutRows();
}

}  // namespace controls
}  // namespace zebui

// Sorting a multi-column tree's rows by a caller's comparison of two rows.
#pragma once

#include <boost/function.hpp>

namespace zebui {
namespace controls {

class UI_MultiColumnTree;
class UI_MultiColumnTreeRow;

// True when the first row belongs before the second.
using RowSortingFunction = boost::function<bool(UI_MultiColumnTreeRow*, UI_MultiColumnTreeRow*)>;

// A stable sort of every sibling list of tree, top level first, then the children of each
// row in its new order; the rows are laid out again at the end. The comparison may answer
// anything, inconsistently too, and may run code that changes the tree: each list is
// sorted as a copy of counted rows by a bounded merge, so every row stays exactly once,
// and a row that left its list meanwhile is not moved back.
void SortTreeRows(UI_MultiColumnTree& tree, const RowSortingFunction& firstBeforeSecond);

}  // namespace controls
}  // namespace zebui

// One row of a multi-column tree: its children, open state and per-column cell views.
#pragma once

#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/RefCountedObject.h"
#include "zebcore/utility/Strings.h"
#include "zebui/inkwell/ColorRGBA.h"

namespace zebui {
namespace ui {
class UI_Node;
class UI_SubView;
}  // namespace ui

namespace controls {

class UI_MultiColumnTree;

// Ownership: a parent row holds its children, the tree holds its top-level rows, and each
// row holds its cell views and custom child. The links up (parent row, tree) are plain
// pointers, nulled when the row leaves its tree, so a detached row that a caller still
// holds answers its own questions (children, id in a subclass) and finds no parent or
// tree. The tree sets a row's place in the layout; a row knows nothing of drawing.
class UI_MultiColumnTreeRow : public zebcore::utility::RefCountedObject {
public:
    using RowPtr = boost::intrusive_ptr<UI_MultiColumnTreeRow>;

    // canHaveChildren: whether rows may be added under this one.
    explicit UI_MultiColumnTreeRow(bool canHaveChildren);
    ~UI_MultiColumnTreeRow() override;

    bool GetCanHaveChildren() const { return mCanHaveChildren; }
    void SetCanHaveChildren(bool canHaveChildren) { mCanHaveChildren = canHaveChildren; }

    unsigned int CountChildRows() const { return static_cast<unsigned int>(mChildren.size()); }
    // The zero-based place of child among this row's children; -1 when it is none of them.
    int GetChildRowIndex(const RowPtr& child) const;
    // Empty beyond the last child.
    RowPtr GetChildRow(unsigned int index) const;
    const std::vector<RowPtr>& GetChildRows() const { return mChildren; }
    // Empty for a top-level or detached row.
    RowPtr GetParentRow() const;
    bool HasChild() const { return !mChildren.empty(); }
    // The tree the row is in; null once it was removed.
    UI_MultiColumnTree* GetTree() const { return mTree; }
    // Levels above the row: 0 at the top.
    unsigned int GetDepth() const;

    void SetBackgroundColor(const inkwell::ColorRGBA& colour);
    bool HasBackgroundColor() const { return mHasBackground; }
    const inkwell::ColorRGBA& GetBackgroundColor() const { return mBackground; }

    bool HasCustomChild() const { return mCustomChild != nullptr; }
    // Empty without one.
    boost::intrusive_ptr<ui::UI_Node> GetCustomChild() const;
    float GetCustomChildHeight() const { return mCustomChildHeight; }

    // The view of a zero-based column; empty beyond the tree's columns or out of a tree.
    boost::intrusive_ptr<ui::UI_Node> GetCellView(unsigned int column) const;

    // The text drawn in a column when no cell drawing function is installed.
    void SetCellText(unsigned int column, const zebcore::UTF16String& text);
    zebcore::UTF16String GetCellText(unsigned int column) const;

    bool IsOpen() const { return mOpen; }
    bool IsSelected() const { return mSelected; }
    // Where the layout placed the row, in the rows' coordinates; -1 before it was placed.
    float GetLayoutTop() const { return mLayoutTop; }

private:
    friend class UI_MultiColumnTree;

    bool mCanHaveChildren;
    bool mOpen = false;
    bool mSelected = false;
    bool mHasBackground = false;
    inkwell::ColorRGBA mBackground;
    UI_MultiColumnTreeRow* mParent = nullptr;
    UI_MultiColumnTree* mTree = nullptr;
    std::vector<RowPtr> mChildren;
    std::vector<boost::intrusive_ptr<ui::UI_SubView>> mCells;
    std::vector<zebcore::UTF16String> mCellTexts;
    boost::intrusive_ptr<ui::UI_SubView> mCustomChild;
    float mCustomChildHeight = 0;
    float mLayoutTop = -1;
};

}  // namespace controls
}  // namespace zebui

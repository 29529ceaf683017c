// The multi-column tree whose rows scripts fill and whose events go to Lua.
#pragma once

#include <string>

#include "zeblua/ui/src/LuaZebNode.h"
#include "zebui/controls/UI_MultiColumnTree.h"
#include "zebui/inkwell/ColorRGBA.h"

namespace zeblua {
namespace ui {

// The tree's operation names. The metatable carries the first nine as string fields
// named like their values, so a script may write tree.mctDrawCell.
constexpr const char* kMCTDrawCell = "mctDrawCell";
constexpr const char* kMCTRowVisibilityChanged = "mctRowVisibilityChanged";
constexpr const char* kMCTRowDisclosureChanged = "mctRowDisclosureChanged";
constexpr const char* kMCTSelectionChanged = "mctSelectionChanged";
constexpr const char* kMCTSelectedRowsBeingDragged = "mctSelectedRowsBeingDragged";
constexpr const char* kMCTDropSupport = "mctDropSupport";
constexpr const char* kMCTRowSingleClickDown = "mctRowSingleClickDown";
constexpr const char* kMCTRowSingleClickUp = "mctRowSingleClickUp";
constexpr const char* kMCTRowDoubleClick = "mctRowDoubleClick";
constexpr const char* kMCTRowContextMenu = "mctRowContextMenu";

// What a script binds under an "mct" name lives in the LuaBindableNode map of the tree
// and dies with it. The first binding of a name with a toolkit callback installs the
// callback, which holds the tree by plain pointer and belongs to it; a later binding only
// swaps the function. The callbacks, the selection override and the context menu
// override call the bound function on the state stored with it (LuaMultiColumnTreeCalls.h).
class LuaMultiColumnTree : public LuaZebNode<zebui::controls::UI_MultiColumnTree> {
public:
    using RowPtr = zebui::controls::UI_MultiColumnTree::RowPtr;

    // One column, rows 18 units high.
    LuaMultiColumnTree();
    ~LuaMultiColumnTree() override;

    bool BindZEBOperation(lua_State* L, const std::string& name, int reference) override;

    void SetCustomBackgroundColor(const zebui::inkwell::ColorRGBA& colour);
    void ClearCustomBackgroundColor() { mHasCustomBackground = false; }
    const zebui::inkwell::ColorRGBA& GetCustomBackgroundColor() const { return mCustomBackground; }
    bool HasCustomBackgroundColor() const { return mHasCustomBackground; }
    void SetCustomSelectionColor(zebui::ui::UI_Color colour);
    void ClearCustomSelectionColor();
    bool HasCustomSelectionColor() const { return mHasCustomSelection; }
    zebui::ui::UI_Color GetCustomSelColor() const { return mCustomSelection; }

    void DrawBackground(zebui::inkwell::Inkwell* inkwell) const override;
    // The script hears first; the toolkit's own handling always runs after it.
    void NotifyOfSelectionChanged(const RowList& rows) override;
    bool NotifyOfRowContextMenu(RowPtr row, const zebcore::geom::PointT<float>& point,
                                zebui::ui::UI_Node& node, unsigned int column) override;

    void OnDrawCellOfRow(zebui::inkwell::Inkwell* inkwell, RowPtr row, unsigned int column,
                         zebcore::geom::RectT<float> rect);
    void OnRowVisibilityChanged(RowPtr row);
    void OnRowDisclosureChanged(RowPtr row, bool open);
    void OnRowSingleClickDown(RowPtr row, const zebcore::geom::PointT<float>& point,
                              ClickFlags flags, unsigned int column);
    void OnRowSingleClickUp(RowPtr row, const zebcore::geom::PointT<float>& point, ClickFlags flags,
                            unsigned int column);
    void OnRowDoubleClick(RowPtr row, const zebcore::geom::PointT<float>& point, ClickFlags flags,
                          unsigned int column);

private:
    // Installs the toolkit's callback for name, when it has one.
    void installCallback(const std::string& name);
    void onClick(const char* name, const RowPtr& row, const zebcore::geom::PointT<float>& point,
                 ClickFlags flags, unsigned int column);

    zebui::inkwell::ColorRGBA mCustomBackground = zebui::inkwell::ColorRGBA(0, 0, 0, 0);
    bool mHasCustomBackground = false;
    zebui::ui::UI_Color mCustomSelection = 0;
    bool mHasCustomSelection = false;
};

}  // namespace ui
}  // namespace zeblua

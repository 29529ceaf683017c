// A row of tabs.
#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "zebcore/utility/Strings.h"
#include "zebui/ui/UI_SubView.h"

namespace boost {
template <class Signature> class function;
}  // namespace boost

namespace zebui {
namespace controls {

class UI_TabItem;

enum TabItemAction : int {
    kTabItemAction_Click = 0,
    kTabItemFrameDrag_Click = 2,
    kTabItemAction_Close = 3,
    kTabItemAction_MultipanedPopup = 4,
    kTabItemAction_FlyoutMenu = 5,
    kTabItemAction_FrameDrag = 6,
    kTabItemAction_BecomeFrontmost = 7,
    kTabItemAction_BecomeNonFrontmost = 8,
    kTabItemAction_ToggleLock = 9,
    kTabItemAction_ContextMenu = 10,
    kTabItemAction_WheelScroll = 11,
};

// The tabs lie left to right in the tabs container, a strip across the top of the well,
// numbered from 0. Below the strip the well draws a panel unless it shows tabs only.
//
// The action function hears what happens to a tab: a left click on it (Click, with no
// rect), then, if the click moved the front-most tab, BecomeNonFrontmost for the old one
// and BecomeFrontmost for the new, both with no rect (SetFrontmost reports the same); a
// left click on a close box (Close, with the tab's rect in the well's coordinates: the
// well leaves the removing to its owner); a right-button down (ContextMenu, with the rect).
// The function may run script that changes the tabs or drops the well: the well is held.
class UI_TabWell : public ui::UI_SubView {
public:
    using TabItemActionFunctionP = boost::shared_ptr<
        boost::function<void(TabItemAction, int, const zebcore::geom::RectT<int>*)>>;

    static constexpr float kTabStripHeight = 20.0f;
    static constexpr float kTabWidth = 80.0f;

    UI_TabWell();
    // actionFunction may be null; showTabsOnly is the flag SetShowTabsOnly sets.
    UI_TabWell(const TabItemActionFunctionP& actionFunction, bool showTabsOnly);
    ~UI_TabWell() override;

    // Inserts a tab at index (held to 0 to the count). closable gives it a close box;
    // frontmost makes it the front-most at once; animate is a toolkit option with no
    // effect here.
    UI_TabItem* AddTab(int index, const zebcore::UTF16String& text, bool closable, bool frontmost,
                       bool animate);
    // The removed tab, or null for an index out of range. Removing the front-most leaves
    // none front-most.
    boost::intrusive_ptr<UI_TabItem> RemoveTab(int index);
    // Null for an index out of range.
    UI_TabItem* GetTabItem(int index) const;
    int GetTabCount() const;
    // The container of the tab items, made with the first tab: null until then.
    ui::UI_SubView* GetTabsContainer() const { return mTabs.get(); }
    // An index out of range does nothing.
    void SetFrontmost(int index);
    // -1 when no tab is front-most.
    int GetFrontmost() const;
    bool GetShowTabsOnly() const { return mShowTabsOnly; }
    void SetShowTabsOnly(bool tabsOnly);

    bool UI_DoMouseEvent(ui::UI_Node* target, const ui::MouseEvent& event) override;

protected:
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    void UI_LayoutChildrenForSize(const zebcore::geom::PointT<float>& before,
                                  const zebcore::geom::PointT<float>& after) override;

private:
    void layoutTabs();
    void sendAction(TabItemAction action, int index, const zebcore::geom::RectT<int>* rect);
    // The tab under target, an item of this well's strip, or -1.
    int tabIndexOf(const ui::UI_Node* target) const;

    TabItemActionFunctionP mActionFunction;
    bool mShowTabsOnly;
    boost::intrusive_ptr<ui::UI_SubView> mTabs;
};

}  // namespace controls
}  // namespace zebui

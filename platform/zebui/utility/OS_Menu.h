// Native menus: counted item lists with ids, separators, check marks and submenus, and the
// popup and context runs that let a person choose from them.
#pragma once

#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "zebcore/geom/PointT.h"
#include "zebcore/geom/RectT.h"
#include "zebcore/utility/RefCountedObject.h"
#include "zebcore/utility/Strings.h"

class NSMenu;

namespace zebui {
namespace ui {
class UI_Node;
}  // namespace ui

namespace utility {

// Items count from 0 in the order they were appended. An operation on an item number or
// id that no item has does nothing (a query answers false or null). A menu holds a
// reference to each of its submenus.
class OS_Menu : public zebcore::utility::RefCountedObject {
public:
    struct Item {
        zebcore::UTF16String text;
        int id = 0;
        bool separator = false;
        bool enabled = true;
        bool checked = false;
        boost::intrusive_ptr<OS_Menu> subMenu;
    };

    OS_Menu();
    ~OS_Menu() override;

    virtual int Size() const;
    // The item's id is 0.
    virtual void AppendItem(const unsigned short* text, boost::intrusive_ptr<OS_Menu> subMenu);
    virtual void AppendItem(const zebcore::UTF16String& text, int id,
                            boost::intrusive_ptr<OS_Menu> subMenu);
    // The integer is the separator's kind on platforms that have several; one kind here.
    virtual void AppendSeparator(int kind);
    virtual void SetItemEnabled(int item, bool enabled);
    virtual void SetItemChecked(int item, bool checked);
    // Every item with that id, in this menu only.
    virtual void SetItemIDChecked(int id, bool checked);
    virtual void SetItemIDSubMenu(int id, boost::intrusive_ptr<OS_Menu> subMenu);
    virtual boost::intrusive_ptr<OS_Menu> GetItemSubMenu(int item) const;
    virtual void SetItemID(int item, int id);
    virtual bool IsItemSeparator(int item) const;

    // For the runs and for tests: null for an item number out of range.
    const Item* GetItem(int item) const;
    // Whether a person can choose an item with that id here or in a submenu: an enabled
    // item that is no separator and opens no submenu, under enabled items only.
    bool CanChooseID(int id) const;

private:
    Item* item(int index);
    bool canChooseID(int id, int depth) const;
    std::vector<Item> mItems;
};

// A new menu with one reference for the caller.
boost::intrusive_ptr<OS_Menu> CreateOSMenu();
// A headless machine has no platform menus: an empty menu, whatever it is given.
boost::intrusive_ptr<OS_Menu> CreateOSMenuFromPlatformMenu(NSMenu* menu);

// The number of menus alive, for tests of who holds them.
int GetLiveOSMenuCount();

}  // namespace utility

namespace ui {

// Both runs are modal runs of the event loop that a person answers with the id of the
// item chosen (the answer's code). They answer that id when an item with it can be
// chosen; 0 when the answer names no such item, or when the run ends without an answer
// (the menu dismissed). The place only positions the menu on screen; the node is held
// for the run.
int UI_DoPopupMenu(utility::OS_Menu* menu, UI_Node* node,
                   const zebcore::geom::RectT<float>& placeInNode, bool selectCurrent);
int UI_DoContextMenu(utility::OS_Menu* menu, UI_Node* node,
                     const zebcore::geom::PointT<float>& placeInNode);

// What the last run was asked, for tests: the node's id and the place (a context menu's
// point as a rectangle without size).
struct MenuRunRecord {
    int runs = 0;
    zebcore::UTF8String nodeId;
    zebcore::geom::RectT<float> place;
    int menuSize = 0;
    int answer = 0;
};
const MenuRunRecord& GetLastMenuRun();
void ClearMenuRuns();

}  // namespace ui
}  // namespace zebui

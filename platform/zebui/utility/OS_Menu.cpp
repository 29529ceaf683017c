// Native menus held in memory, chosen from by the event loop's scripted user.
#include "zebui/utility/OS_Menu.h"

#include <atomic>

#include "zebui/ui/EventLoop.h"
#include "zebui/ui/UI_Node.h"

namespace zebui {
namespace utility {

namespace {

std::atomic<int> sLiveMenus{0};

}  // namespace

OS_Menu::OS_Menu() {
    ++sLiveMenus;
}

OS_Menu::~OS_Menu() {
    --sLiveMenus;
}

int OS_Menu::Size() const {
    return static_cast<int>(mItems.size());
}

void OS_Menu::AppendItem(const unsigned short* text, boost::intrusive_ptr<OS_Menu> subMenu) {
    zebcore::UTF16String copied;
    for (const unsigned short* at = text; at && *at; ++at)
        copied.push_back(static_cast<char16_t>(*at));
    AppendItem(copied, 0, std::move(subMenu));
}

void OS_Menu::AppendItem(const zebcore::UTF16String& text, int id,
                         boost::intrusive_ptr<OS_Menu> subMenu) {
    Item appended;
    appended.text = text;
    appended.id = id;
    appended.subMenu = std::move(subMenu);
    mItems.push_back(std::move(appended));
}

void OS_Menu::AppendSeparator(int /*kind*/) {
    Item separator;
    separator.separator = true;
    separator.enabled = false;
    mItems.push_back(std::move(separator));
}

void OS_Menu::SetItemEnabled(int index, bool enabled) {
    if (Item* found = item(index)) found->enabled = enabled;
}

void OS_Menu::SetItemChecked(int index, bool checked) {
    if (Item* found = item(index)) found->checked = checked;
}

void OS_Menu::SetItemIDChecked(int id, bool checked) {
    for (Item& each : mItems)
        if (!each.separator && each.id == id) each.checked = checked;
}

void OS_Menu::SetItemIDSubMenu(int id, boost::intrusive_ptr<OS_Menu> subMenu) {
    for (Item& each : mItems)
        if (!each.separator && each.id == id) each.subMenu = subMenu;
}

boost::intrusive_ptr<OS_Menu> OS_Menu::GetItemSubMenu(int index) const {
    const Item* found = GetItem(index);
    return found ? found->subMenu : boost::intrusive_ptr<OS_Menu>();
}

void OS_Menu::SetItemID(int index, int id) {
    if (Item* found = item(index)) found->id = id;
}

bool OS_Menu::IsItemSeparator(int index) const {
    const Item* found = GetItem(index);
    return found && found->separator;
}

const OS_Menu::Item* OS_Menu::GetItem(int index) const {
    if (index < 0 || index >= static_cast<int>(mItems.size())) return nullptr;
    return &mItems[static_cast<size_t>(index)];
}

OS_Menu::Item* OS_Menu::item(int index) {
    return const_cast<Item*>(GetItem(index));
}

bool OS_Menu::CanChooseID(int id) const {
    return canChooseID(id, 0);
}

// A menu can be made its own submenu; nobody could open it that deep.
bool OS_Menu::canChooseID(int id, int depth) const {
    constexpr int kDeepestSubMenu = 32;
    if (depth > kDeepestSubMenu) return false;
    for (const Item& each : mItems) {
        if (each.separator || !each.enabled) continue;
        if (each.subMenu ? each.subMenu->canChooseID(id, depth + 1) : each.id == id) return true;
    }
    return false;
}

boost::intrusive_ptr<OS_Menu> CreateOSMenu() {
    return boost::intrusive_ptr<OS_Menu>(new OS_Menu);
}

boost::intrusive_ptr<OS_Menu> CreateOSMenuFromPlatformMenu(NSMenu* /*menu*/) {
    return CreateOSMenu();
}

int GetLiveOSMenuCount() {
    return sLiveMenus.load();
}

}  // namespace utility

namespace ui {

namespace {

MenuRunRecord sLastRun;

int runMenu(utility::OS_Menu* menu, UI_Node* node, const zebcore::geom::RectT<float>& place) {
    // The run may call scripts that drop every other holder of either.
    const boost::intrusive_ptr<utility::OS_Menu> keepMenu(menu);
    const boost::intrusive_ptr<UI_Node> keepNode(node);
    const ModalResult answer = EventLoop::Get()->RunModal();
    const int chosen =
        !answer.cancelled && menu && menu->CanChooseID(answer.code) ? answer.code : 0;
    sLastRun.runs += 1;
    sLastRun.nodeId = node ? node->UI_GetNodeID() : zebcore::UTF8String();
    sLastRun.place = place;
    sLastRun.menuSize = menu ? menu->Size() : 0;
    sLastRun.answer = chosen;
    return chosen;
}

}  // namespace

int UI_DoPopupMenu(utility::OS_Menu* menu, UI_Node* node,
                   const zebcore::geom::RectT<float>& placeInNode, bool /*selectCurrent*/) {
    return runMenu(menu, node, placeInNode);
}

int UI_DoContextMenu(utility::OS_Menu* menu, UI_Node* node,
                     const zebcore::geom::PointT<float>& placeInNode) {
    return runMenu(menu, node, zebcore::geom::RectT<float>(placeInNode.x, placeInNode.y, 0, 0));
}

const MenuRunRecord& GetLastMenuRun() {
    return sLastRun;
}

void ClearMenuRuns() {
    sLastRun = MenuRunRecord();
}

}  // namespace ui
}  // namespace zebui

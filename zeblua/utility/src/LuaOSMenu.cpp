// OSMenu: each proxy holds one reference to its menu, so a menu that is also another's
// submenu outlives the script's proxy. Item numbers and ids pass through unchanged: the
// toolkit counts items from 0.
#include "zeblua/utility/src/LuaOSMenu.h"

#include <lua.hpp>

#include "zebcore/utility/Strings.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/ControlNodeCast.h"
#include "zeblua/ui/src/LuaControlWrapperBase.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/utility/OS_Menu.h"

namespace zeblua {
namespace utility {

namespace {

constexpr char kMenuClass[] = "OSMenu";
constexpr char kMenuMetaTable[] = "zeblua.OSMenu";

using zebui::utility::OS_Menu;
using MenuP = boost::intrusive_ptr<OS_Menu>;

struct MenuProxy {
    using Object = OS_Menu;
    static constexpr const char* kMetatableName = kMenuMetaTable;
    static constexpr const char* kDisplayName = "OSMenu";
};

// The menu of the proxy at 1, taken once every argument is read; null after Release, and
// the method then answers no value.
OS_Menu* liveMenu(lua_State* L) {
    return *zeblua_checkOSMenu(L, 1);
}

// A menu proxy argument: its menu, null once released. Raises the type error otherwise.
OS_Menu* menuArgument(lua_State* L, int index) {
    return *zeblua_checkOSMenu(L, index);
}

// A new proxy with no menu yet, filled by the caller once nothing can raise any more.
OS_Menu** pushEmptyProxy(lua_State* L) {
    return PushPointerProxy<OS_Menu>(L, nullptr, kMenuMetaTable, luaopen_zeblua_OSMenu);
}

void holdIn(OS_Menu** block, const MenuP& menu) {
    *block = menu.get();
    if (*block) intrusive_ptr_add_ref(*block);
}

// The value of an optional flag: true unless exactly three values are on the stack, so a
// fourth argument, whatever it is, makes the flag true again.
bool optionalFlag(lua_State* L) {
    return lua_gettop(L) == 3 ? lua_toboolean(L, 3) != 0 : true;
}

// -- menu = OSMenu.CreateOSMenu()
int osmenuCreate(lua_State* L) {
    OS_Menu** block = pushEmptyProxy(L);
    RunNative(L, "CreateOSMenu", [&] {
        holdIn(block, zebui::utility::CreateOSMenu());
        return 0;
    });
    return 1;
}

// The body of both runs: the menu, the control, then the place (a rectangle or a point),
// whose reading may run script that releases either; both are taken again after it and
// held for the run, which may run script too. Answers the chosen id, or no value when the
// menu or the control is gone.
template <class Place, class Run>
int runMenu(lua_State* L, const char* name, void (*readPlace)(lua_State*, int, Place&), Run run) {
    menuArgument(L, 1);
    if (!ui::GetControlUserData(L, 2)) return 0;  // "Bad user data" for a non-control
    Place place;
    readPlace(L, 3, place);
    if (!menuArgument(L, 1) || !ui::LiveNode(L, 2)) return 0;
    const int chosen = RunNative(L, name, [&] {
        const MenuP menu(menuArgument(L, 1));
        const boost::intrusive_ptr<zebui::ui::UI_Node> node(ui::LiveNode(L, 2));
        return run(menu.get(), node.get(), place);
    });
    lua_pushinteger(L, chosen);
    return 1;
}

// -- id = OSMenu.UI_DoPopupMenu(menu, control, rect)
// The chosen item's id; 0 when nothing was chosen.
int osmenuDoPopupMenu(lua_State* L) {
    return runMenu<zebcore::geom::RectT<float>>(
        L, "UI_DoPopupMenu", inkwell::GetRectF32FromLua,
        [](OS_Menu* menu, zebui::ui::UI_Node* node, const zebcore::geom::RectT<float>& place) {
            return zebui::ui::UI_DoPopupMenu(menu, node, place, true);
        });
}

// -- id = OSMenu.UI_DoContextMenu(menu, control, point)
int osmenuDoContextMenu(lua_State* L) {
    return runMenu<zebcore::geom::PointT<float>>(
        L, "UI_DoContextMenu", inkwell::GetPointF32FromLua,
        [](OS_Menu* menu, zebui::ui::UI_Node* node, const zebcore::geom::PointT<float>& place) {
            return zebui::ui::UI_DoContextMenu(menu, node, place);
        });
}

// -- menu:AppendItem(text), menu:AppendItem(text, id), menu:AppendItem(text, id, submenu),
// -- menu:AppendItem(text, submenu)
// A number as the second argument is the id (a numeric string counts); a submenu behind
// it is taken only when it is the last of exactly three. Anything else there must be a
// menu, and the item then has id 0.
int osmenuAppendItem(lua_State* L) {
    menuArgument(L, 1);
    const char* text = luaL_checkstring(L, 2);
    const int count = lua_gettop(L);
    bool withId = true;
    lua_Integer id = 0;
    OS_Menu* subMenu = nullptr;
    if (count >= 3 && lua_isnumber(L, 3)) {
        id = luaL_checkinteger(L, 3);
        if (count == 4) subMenu = menuArgument(L, 4);
    } else if (count >= 3) {
        withId = false;
        subMenu = menuArgument(L, 3);
    }
    OS_Menu* menu = liveMenu(L);
    if (!menu) return 0;
    return RunNative(L, "AppendItem", [&] {
        const zebcore::UTF16String item = zebcore::utility::UTF8to16(zebcore::UTF8String(text));
        if (withId)
            menu->AppendItem(item, static_cast<int>(id), MenuP(subMenu));
        else
            menu->AppendItem(reinterpret_cast<const unsigned short*>(item.c_str()), MenuP(subMenu));
        return 0;
    });
}

// -- menu:AppendSeparator(kind)
int osmenuAppendSeparator(lua_State* L) {
    menuArgument(L, 1);
    const int kind = static_cast<int>(luaL_checkinteger(L, 2));
    OS_Menu* menu = liveMenu(L);
    if (menu) menu->AppendSeparator(kind);
    return 0;
}

using ItemSetter = void (OS_Menu::*)(int, bool);

// -- menu:SetItemEnabled(item [, enabled]) and the like: a number and an optional flag.
int setItemFlag(lua_State* L, ItemSetter set) {
    menuArgument(L, 1);
    const int item = static_cast<int>(luaL_checkinteger(L, 2));
    const bool flag = optionalFlag(L);
    OS_Menu* menu = liveMenu(L);
    if (menu) (menu->*set)(item, flag);
    return 0;
}

int osmenuSetItemEnabled(lua_State* L) {
    return setItemFlag(L, &OS_Menu::SetItemEnabled);
}

int osmenuSetItemChecked(lua_State* L) {
    return setItemFlag(L, &OS_Menu::SetItemChecked);
}

int osmenuSetItemIDChecked(lua_State* L) {
    return setItemFlag(L, &OS_Menu::SetItemIDChecked);
}

// -- menu:SetItemID(item, id)
int osmenuSetItemID(lua_State* L) {
    menuArgument(L, 1);
    const int item = static_cast<int>(luaL_checkinteger(L, 2));
    const int id = static_cast<int>(luaL_checkinteger(L, 3));
    OS_Menu* menu = liveMenu(L);
    if (menu) menu->SetItemID(item, id);
    return 0;
}

// -- separator = menu:IsItemSeparator(item)
int osmenuIsItemSeparator(lua_State* L) {
    menuArgument(L, 1);
    const int item = static_cast<int>(luaL_checkinteger(L, 2));
    OS_Menu* menu = liveMenu(L);
    if (!menu) return 0;
    lua_pushboolean(L, menu->IsItemSeparator(item));
    return 1;
}

// -- menu:SetItemIDSubMenu(id, submenu)
int osmenuSetItemIDSubMenu(lua_State* L) {
    menuArgument(L, 1);
    const int id = static_cast<int>(luaL_checkinteger(L, 2));
    OS_Menu* subMenu = menuArgument(L, 3);
    OS_Menu* menu = liveMenu(L);
    if (!menu) return 0;
    return RunNative(L, "SetItemIDSubMenu", [&] {
        menu->SetItemIDSubMenu(id, MenuP(subMenu));
        return 0;
    });
}

// -- submenu = menu:GetItemSubMenu(item)
// A new proxy with a reference of its own; no value for an item without a submenu.
int osmenuGetItemSubMenu(lua_State* L) {
    menuArgument(L, 1);
    const int item = static_cast<int>(luaL_checkinteger(L, 2));
    OS_Menu* menu = liveMenu(L);
    if (!menu || !menu->GetItemSubMenu(item)) return 0;
    OS_Menu** block = pushEmptyProxy(L);
    RunNative(L, "GetItemSubMenu", [&] {
        holdIn(block, menu->GetItemSubMenu(item));
        return 0;
    });
    return 1;
}

// -- count = menu:Size()
int osmenuSize(lua_State* L) {
    OS_Menu* menu = liveMenu(L);
    if (!menu) return 0;
    lua_pushinteger(L, menu->Size());
    return 1;
}

const luaL_Reg kMenuFunctions[] = {
    {"CreateOSMenu", osmenuCreate},
    {"UI_DoPopupMenu", osmenuDoPopupMenu},
    {"UI_DoContextMenu", osmenuDoContextMenu},
    {nullptr, nullptr},
};

const luaL_Reg kMenuMethods[] = {
    {"__gc", ReleaseReferenceGC<MenuProxy>},    {"__tostring", HeldObject2string<MenuProxy>},
    {"AppendItem", osmenuAppendItem},           {"AppendSeparator", osmenuAppendSeparator},
    {"SetItemEnabled", osmenuSetItemEnabled},   {"SetItemID", osmenuSetItemID},
    {"SetItemChecked", osmenuSetItemChecked},   {"SetItemIDChecked", osmenuSetItemIDChecked},
    {"IsItemSeparator", osmenuIsItemSeparator}, {"SetItemIDSubMenu", osmenuSetItemIDSubMenu},
    {"GetItemSubMenu", osmenuGetItemSubMenu},   {"Size", osmenuSize},
    {"Release", ReleaseReferenceGC<MenuProxy>}, {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaOSMenuClassName = kMenuClass;
const char* const kZebLuaOSMenuMetaTableName = kMenuMetaTable;

int PushOSMenuToLua(lua_State* L, boost::intrusive_ptr<OS_Menu> menu) {
    holdIn(pushEmptyProxy(L), menu);
    return 1;
}

OS_Menu** zeblua_checkOSMenu(lua_State* L, int index) {
    return CheckPointerBlock<OS_Menu>(L, index, kMenuMetaTable);
}

}  // namespace utility
}  // namespace zeblua

extern "C" int luaopen_zeblua_OSMenu(lua_State* L) {
    using namespace zeblua::utility;
    RegisterClassModule(L, kMenuMetaTable, kMenuMethods, kMenuClass, kMenuFunctions);
    return 1;
}

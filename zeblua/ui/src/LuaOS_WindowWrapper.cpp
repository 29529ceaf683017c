// The window wrapper: structure rect, owner, activation.
#include "zeblua/ui/src/LuaOS_WindowWrapper.h"

#include <lua.hpp>

#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaUI_NodeWrapper.h"
#include "zebui/ui/OS_Window.h"

namespace zeblua {
namespace ui {
namespace {

using zebcore::geom::RectT;
using zebui::ui::OS_Window;
using zebui::ui::UI_Window;

// -- window:UI_SetGlobalStructureRect(rect): whole numbers, as the integer rect reader
// takes them.
int controlUI_SetGlobalStructureRect(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    RectT<int> rect;
    inkwell::GetRect32FromLua(L, 2, rect);
    return CallOnControl<OS_Window>(L, "UI_SetGlobalStructureRect", [&](OS_Window& window) {
        window.UI_SetGlobalStructureRect(rect);
    });
}

// -- rect = window:UI_GetGlobalStructureRect()
int controlUI_GetGlobalStructureRect(lua_State* L) {
    return PushControlAnswer<OS_Window>(
        L, "UI_GetGlobalStructureRect",
        [](OS_Window& window) { return window.UI_GetGlobalStructureRect(); },
        inkwell::PushRect32ToLua);
}

// -- window:SetOwner([owner]): a wrapper's window owns this one; anything that is no
// userdata, or a released wrapper, clears the owner. A userdata that is no wrapper is
// "Bad user data", a node that is no window the conversion error.
int controlSetOwner(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    UI_Window* owner = nullptr;
    if (lua_type(L, 2) == LUA_TUSERDATA) {
        GetControlUserData(L, 2);                  // raises for anything but a wrapper
        owner = CastControlNode<UI_Window>(L, 2);  // null for a released one
    }
    return CallOnControl<OS_Window>(L, "SetOwner", [&](OS_Window& window) {
        const boost::intrusive_ptr<zebui::ui::UI_Node> heldOwner(owner);
        window.SetOwner(owner);
    });
}

// -- window:UI_Activate(): activation reports run script, so the window is held.
int controlUI_Activate(lua_State* L) {
    return CallOnControl<OS_Window>(L, "UI_Activate",
                                    [](OS_Window& window) { window.UI_Activate(); });
}

}  // namespace

const luaL_Reg LuaOS_WindowWrapper::methods[] = {
    {"UI_SetGlobalStructureRect", controlUI_SetGlobalStructureRect},
    {"UI_GetGlobalStructureRect", controlUI_GetGlobalStructureRect},
    {"SetOwner", controlSetOwner},
    {"UI_Activate", controlUI_Activate},
    {nullptr, nullptr},
};

const char* LuaOS_WindowWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebOS_Window";
    return sMetatableName;
}

void LuaOS_WindowWrapper::RegisterMethods(lua_State* L) {
    LuaUI_NodeWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// The popup window wrapper: bound operations, the current command handler, constants.
#include "zeblua/ui/src/LuaPopupWindowWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaOS_WindowWrapper.h"
#include "zeblua/ui/src/LuaPopupWindow.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zebui/ui/UI_Window.h"

namespace zeblua {
namespace ui {
namespace {

// -- popup:BindPopupWindowOperation(name, fn): a second binding of a name releases the
// first. The name and the function are checked before anything is held.
int popupwinBindPopupWindowOperation(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    luaL_checkstring(L, 2);
    luaL_checktype(L, 3, LUA_TFUNCTION);
    LuaPopupWindow* window = CastControlNode<LuaPopupWindow>(L, 1);
    if (!window || !window->GetLuaState()) return 0;
    return utility::BindZebOperationOn(L, window);
}

// -- popup:SetAsCommandHandler(): the window becomes the first of the command chain; it
// stops being so when it dies.
int popupSetAsCommandHandler(lua_State* L) {
    return CallOnControl<LuaPopupWindow>(L, "SetAsCommandHandler", [](LuaPopupWindow& window) {
        vex::uisupport::CommandHandlerBase::SetCurrentCommandHandler(&window);
    });
}

struct StringConstant {
    const char* name;
    const char* const* value;
};
const StringConstant kOperationNames[] = {
    {"kUIKeyboardEvent", &kUIKeyboardEvent},
    {"kUI_ActivationChanged", &kUI_ActivationChanged},
    {"kOnCloseIfPopup", &kOnCloseIfPopup},
    {"kDuringClose", &kDuringClose},
};

struct IntegerConstant {
    const char* name;
    int value;
};
const IntegerConstant kActivations[] = {
    {"kWindowActivation_ACTIVATED", zebui::ui::kWindowActivation_ACTIVATED},
    {"kWindowActivation_CLICK_ACTIVATED", zebui::ui::kWindowActivation_CLICK_ACTIVATED},
    {"kWindowActivation_DEACTIVATED", zebui::ui::kWindowActivation_DEACTIVATED},
};

}  // namespace

const luaL_Reg LuaPopupWindowWrapper::methods[] = {
    {"BindPopupWindowOperation", popupwinBindPopupWindowOperation},
    {"SetAsCommandHandler", popupSetAsCommandHandler},
    {nullptr, nullptr},
};

const char* LuaPopupWindowWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebLuaPopupWindow";
    return sMetatableName;
}

void LuaPopupWindowWrapper::RegisterMethods(lua_State* L) {
    LuaOS_WindowWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
    for (const StringConstant& constant : kOperationNames)
        utility::SetStringConstant(L, constant.name, *constant.value);
    for (const IntegerConstant& constant : kActivations)
        utility::SetIntegerConstant(L, constant.name, constant.value);
}

}  // namespace ui
}  // namespace zeblua

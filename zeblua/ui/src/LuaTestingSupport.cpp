// luaTestingSupport: a control's value change and interactive phases, sent by a script.
#include "zeblua/ui/src/LuaTestingSupport.h"

#include <lua.hpp>

#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaInputEvents.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zebui/controls/UI_InteractiveControlView.h"

namespace zeblua {
namespace ui {
namespace LuaTestingSupport {
namespace {

using zebui::controls::UI_ControlView;
using zebui::controls::UI_InteractiveControlView;

// Each function answers nothing. The change functions bound to the control run before it
// returns, on the main thread.

// -- luaTestingSupport.SendControlValueChangeMessage(control)
int testingSendControlValueChangeMessage(lua_State* L) {
    return CallOnControl<UI_ControlView>(
        L, "SendControlValueChangeMessage",
        [](UI_ControlView& control) { control.SendValueChangedMessage(); });
}

// -- luaTestingSupport.SimulateBeginInteractiveChange(control)
int testingSimulateBeginInteractiveChange(lua_State* L) {
    return CallOnControl<UI_InteractiveControlView>(
        L, "SimulateBeginInteractiveChange",
        [](UI_InteractiveControlView& control) { control.BeginInteractiveChange(); });
}

// -- luaTestingSupport.SimulateContinueInteractiveChange(control, modifiers)
// modifiers: the modifier keys as a number, truncated to an integer.
int testingSimulateContinueInteractiveChange(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const zebui::ui::ModifierFlags modifiers = ModifiersFromNumber(luaL_checknumber(L, 2));
    return CallOnControl<UI_InteractiveControlView>(
        L, "SimulateContinueInteractiveChange",
        [&](UI_InteractiveControlView& control) { control.ContinueInteractiveChange(modifiers); });
}

// -- luaTestingSupport.SimulateFinishInteractiveChange(control)
int testingSimulateFinishInteractiveChange(lua_State* L) {
    return CallOnControl<UI_InteractiveControlView>(
        L, "SimulateFinishInteractiveChange",
        [](UI_InteractiveControlView& control) { control.FinishInteractiveChange(); });
}

const luaL_Reg kTestingFunctions[] = {
    {"SendControlValueChangeMessage", testingSendControlValueChangeMessage},
    {"SimulateBeginInteractiveChange", testingSimulateBeginInteractiveChange},
    {"SimulateContinueInteractiveChange", testingSimulateContinueInteractiveChange},
    {"SimulateFinishInteractiveChange", testingSimulateFinishInteractiveChange},
    {nullptr, nullptr},
};

}  // namespace

int InitLua(lua_State* L) {
    utility::RegisterFunctionModule(L, "luaTestingSupport", kTestingFunctions);
    return 1;
}

}  // namespace LuaTestingSupport
}  // namespace ui
}  // namespace zeblua

extern "C" int luaopen_zeblua_luaTestingSupport(lua_State* L) {
    return zeblua::ui::LuaTestingSupport::InitLua(L);
}

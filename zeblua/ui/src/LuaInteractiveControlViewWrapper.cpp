// The interactive control view wrapper: notification of changes the user makes in phases.
#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/InteractiveControlChangedBinder.h"
#include "zeblua/ui/src/LuaControlViewWrapper.h"
#include "zebui/controls/UI_InteractiveControlView.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_InteractiveControlView;

// -- ok = control:NotifyWhenChangedInteractively(fn): fn(msg) at each phase of a change
// the user makes (begin, continue, finish or cancel), for as long as the node lives. msg
// holds control, a new wrapper of the control each time, and changeMessage, the phase,
// and answers beginChange, continueChange, finishChange and cancelChange. Only the first
// function given to a control ever runs.
int controlNotifyWhenChangedInteractively(lua_State* L) {
    return AddNotifyFunction<UI_InteractiveControlView>(
        L, "NotifyWhenChangedInteractively",
        LuaNotifyWhenInteractivelyChanged<UI_InteractiveControlView>);
}

}  // namespace

const luaL_Reg LuaInteractiveControlViewWrapper::methods[] = {
    {"NotifyWhenChangedInteractively", controlNotifyWhenChangedInteractively},
    {nullptr, nullptr},
};

const char* LuaInteractiveControlViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebInteractiveControlView";
    return sMetatableName;
}

void LuaInteractiveControlViewWrapper::RegisterMethods(lua_State* L) {
    LuaControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

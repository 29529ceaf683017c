// The dialog wrapper: container, buttons, focus, modal stack and run, response.
#include "zeblua/ui/src/LuaDialogWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/LuaOS_WindowWrapper.h"
#include "zebui/controls/UI_Button.h"
#include "zebui/ui/UI_Dialog.h"
#include "zebui/ui/UI_NodeManager.h"
#include "zebui/ui/UI_SubView.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_Button;
using zebui::ui::UI_Dialog;

// -- view = dialog:GetContainer()
int dialogGetContainer(lua_State* L) {
    return PushFoundNode<UI_Dialog>(L, "GetContainer",
                                    [](UI_Dialog& dialog) { return NodeP(dialog.GetContainer()); });
}

// The button of a wrapper at index, cast: "Bad user data" for anything but a wrapper, the
// conversion error for a node that is no button, null for a released wrapper.
UI_Button* buttonArgument(lua_State* L, int index) {
    GetControlUserData(L, index);
    return CastControlNode<UI_Button>(L, index);
}

// -- dialog:SetButtons(ok, cancel): a released wrapper skips its button.
int dialogSetButtons(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    UI_Button* ok = buttonArgument(L, 2);
    UI_Button* cancel = buttonArgument(L, 3);
    return CallOnControl<UI_Dialog>(L, "SetButtons", [&](UI_Dialog& dialog) {
        dialog.SetOkButton(ok);
        dialog.SetCancelButton(cancel);
    });
}

// -- dialog:SetInitialFocus(control)
int dialogSetInitialFocus(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    GetControlUserData(L, 2);
    zebui::ui::UI_Node* node = LiveNode(L, 2);
    return CallOnControl<UI_Dialog>(L, "SetInitialFocus",
                                    [&](UI_Dialog& dialog) { dialog.SetInitialFocus(node); });
}

// -- dialog:PushModalWindow()
int dialogPushModalWindow(lua_State* L) {
    return CallOnControl<UI_Dialog>(L, "PushModalWindow", [](UI_Dialog& dialog) {
        zebui::ui::UI_NodeManager::Get(false)->PushModalWindow(&dialog);
    });
}

// -- dialog:PopModalWindow()
int dialogPopModalWindow(lua_State* L) {
    return CallOnControl<UI_Dialog>(L, "PopModalWindow", [](UI_Dialog& dialog) {
        zebui::ui::UI_NodeManager::Get(false)->PopModalWindow(&dialog);
    });
}

// -- dialog:RunModal(): answers nothing; the script reads GetResponse. Timers and
// callbacks run inside, so the dialog is held for the run.
int dialogRunModal(lua_State* L) {
    return CallOnControl<UI_Dialog>(L, "RunModal", [](UI_Dialog& dialog) { dialog.RunModal(); });
}

// -- response = dialog:GetResponse()
int dialogGetResponse(lua_State* L) {
    return AnswerOfControl<UI_Dialog>(L, "GetResponse",
                                      [](UI_Dialog& dialog) { return dialog.GetResponse(); });
}

// -- dialog:SetResponse(n): 1 and 0 as they are, every other value -1.
int dialogSetResponse(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const lua_Integer given = luaL_checkinteger(L, 2);
    const int response = given == 1 ? 1 : given == 0 ? 0 : -1;
    return CallOnControl<UI_Dialog>(L, "SetResponse",
                                    [&](UI_Dialog& dialog) { dialog.SetResponse(response); });
}

// -- dialog:DefaultCloseOk()
int dialogDefaultCloseOk(lua_State* L) {
    return CallOnControl<UI_Dialog>(L, "DefaultCloseOk",
                                    [](UI_Dialog& dialog) { dialog.DefaultCloseOk(); });
}

// -- dialog:DefaultCloseCancel()
int dialogDefaultCloseCancel(lua_State* L) {
    return CallOnControl<UI_Dialog>(L, "DefaultCloseCancel",
                                    [](UI_Dialog& dialog) { dialog.DefaultCloseCancel(); });
}

}  // namespace

const luaL_Reg LuaDialogWrapper::methods[] = {
    {"GetContainer", dialogGetContainer},
    {"SetButtons", dialogSetButtons},
    {"SetInitialFocus", dialogSetInitialFocus},
    {"PushModalWindow", dialogPushModalWindow},
    {"PopModalWindow", dialogPopModalWindow},
    {"RunModal", dialogRunModal},
    {"GetResponse", dialogGetResponse},
    {"SetResponse", dialogSetResponse},
    {"DefaultCloseOk", dialogDefaultCloseOk},
    {"DefaultCloseCancel", dialogDefaultCloseCancel},
    {nullptr, nullptr},
};

const char* LuaDialogWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebLuaDialog";
    return sMetatableName;
}

void LuaDialogWrapper::RegisterMethods(lua_State* L) {
    LuaOS_WindowWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

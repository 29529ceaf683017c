// The text edit wrapper.
#include "zeblua/ui/src/LuaTextEditWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_TextEdit.h"

namespace zeblua {
namespace ui {

using zebui::controls::UI_TextEdit;

namespace {

// -- edit:SelectAll()
int texteditSelectAll(lua_State* L) {
    return CallOnControl<UI_TextEdit>(L, "SelectAll", [](UI_TextEdit& edit) { edit.SelectAll(); });
}

}  // namespace

int texteditSetStringValue(lua_State* L) {
    return SetTextOfControl<UI_TextEdit>(
        L, "SetStringValue",
        [](UI_TextEdit& edit, const zebcore::UTF16String& text) { edit.SetValue(text); });
}

int texteditGetStringValue(lua_State* L) {
    return TextOfControl<UI_TextEdit>(L, "GetStringValue",
                                      [](UI_TextEdit& edit) { return edit.GetValue(); });
}

const luaL_Reg LuaTextEditWrapper::methods[] = {
    {"SelectAll", texteditSelectAll},
    {"SetStringValue", texteditSetStringValue},
    {"GetStringValue", texteditGetStringValue},
    {"SetCustomFontSize", SetCustomFontSizeOf<UI_TextEdit>},
    {nullptr, nullptr},
};

const char* LuaTextEditWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebEditText";
    return sMetatableName;
}

void LuaTextEditWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

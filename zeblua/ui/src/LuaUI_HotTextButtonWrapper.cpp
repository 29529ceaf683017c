// The hot text button wrapper.
#include "zeblua/ui/src/LuaUI_HotTextButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_HotTextButton.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_HotTextButton;

// -- button:SetText(text): what the button shows after its label.
int hottextButtonSetText(lua_State* L) {
    return SetTextOfControl<UI_HotTextButton>(
        L, "SetText",
        [](UI_HotTextButton& button, const zebcore::UTF16String& text) { button.SetText(text); });
}

}  // namespace

const luaL_Reg LuaUI_HotTextButtonWrapper::methods[] = {
    {"SetText", hottextButtonSetText},
    {"SetCustomFontSize", SetCustomFontSizeOf<UI_HotTextButton>},
    {nullptr, nullptr},
};

const char* LuaUI_HotTextButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebHotTextButton";
    return sMetatableName;
}

void LuaUI_HotTextButtonWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

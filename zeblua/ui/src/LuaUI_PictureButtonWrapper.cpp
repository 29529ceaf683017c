// The picture button wrapper: the button set and the name its images are found by.
#include "zeblua/ui/src/LuaUI_PictureButtonWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaUI_ButtonWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_PictureButton.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_PictureButton;

// -- button:SetImageBaseName(name): 8-bit text, kept as given; the picture supply function
// derives the state images' names from it at each draw.
int controlSetImageBaseName(lua_State* L) {
    return SetBytesOfControl<UI_PictureButton>(
        L, "SetImageBaseName", [](UI_PictureButton& button, const zebcore::UTF8String& name) {
            button.SetImageBaseName(name);
        });
}

}  // namespace

const luaL_Reg LuaUI_PictureButtonWrapper::methods[] = {
    {"SetImageBaseName", controlSetImageBaseName},
    {nullptr, nullptr},
};

const char* LuaUI_PictureButtonWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_PictureButton";
    return sMetatableName;
}

void LuaUI_PictureButtonWrapper::RegisterMethods(lua_State* L) {
    LuaUI_ButtonWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

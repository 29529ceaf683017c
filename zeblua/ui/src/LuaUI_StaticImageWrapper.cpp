// The static image wrapper.
#include "zeblua/ui/src/LuaUI_StaticImageWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaControlViewWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_StaticImage.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_StaticImage;

// -- image:SetImageName(name): 8-bit, kept as given.
int controlSetImageName(lua_State* L) {
    return SetBytesOfControl<UI_StaticImage>(
        L, "SetImageName",
        [](UI_StaticImage& image, const zebcore::UTF8String& name) { image.SetImageName(name); });
}

// -- alpha = image:GetAlpha()
int controlGetAlpha(lua_State* L) {
    return AnswerOfControl<UI_StaticImage>(L, "GetAlpha",
                                           [](UI_StaticImage& image) { return image.GetAlpha(); });
}

// -- image:SetAlpha(alpha): as a float.
int controlSetAlpha(lua_State* L) {
    return SetNumberOfControl<UI_StaticImage>(
        L, "SetAlpha",
        [](UI_StaticImage& image, lua_Number alpha) { image.SetAlpha(static_cast<float>(alpha)); });
}

}  // namespace

const luaL_Reg LuaUI_StaticImageWrapper::methods[] = {
    {"SetImageName", controlSetImageName},
    {"GetAlpha", controlGetAlpha},
    {"SetAlpha", controlSetAlpha},
    {nullptr, nullptr},
};

const char* LuaUI_StaticImageWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebUI_StaticImage";
    return sMetatableName;
}

void LuaUI_StaticImageWrapper::RegisterMethods(lua_State* L) {
    LuaControlViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

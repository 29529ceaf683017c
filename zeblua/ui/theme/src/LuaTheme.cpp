// Theme: indices go to the toolkit unchanged, whichever domain they lie in.
#include "zeblua/ui/theme/src/LuaTheme.h"

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zeblua/utility/src/LuaResultString.h"
#include "zeblua/utility/src/RegistryTables.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/ui/Theme.h"
#include "zebui/ui/ThemeFonts.h"

namespace zeblua {
namespace theme {

namespace {

constexpr char kThemeClass[] = "Theme";
constexpr char kThemeMetaTable[] = "zeblua.zebTheme";

using zebui::inkwell::ColorRGBA;
using zebui::ui::Theme;

struct ThemeProxy {
    using Object = Theme;
    static constexpr const char* kMetatableName = kThemeMetaTable;
    static constexpr const char* kDisplayName = "zebTheme";
};

// The registry key of the table whose close sentinel resets the store.
const char sStoreResetKey = 0;

int resetStore(lua_State*) {
    Theme::ResetThemes();
    return 0;
}

// The theme of the value at 1, taken once every argument is read; null after the report
// "Attempting to use a released Theme", and the method then answers no value.
Theme* liveTheme(lua_State* L) {
    Theme* theme = *zeblua_checkTheme(L, 1);
    ZEB_ASSERT_MSG(theme != nullptr, "Attempting to use a released Theme");
    return theme;
}

unsigned long colourIndex(lua_State* L, int index) {
    return static_cast<unsigned long>(luaL_checkinteger(L, index));
}

// -- colour = Theme.GetColor(index)
int themeGetColor(lua_State* L) {
    const unsigned long index = colourIndex(L, 1);
    return inkwell::PushColorRGBAToLua(L, zebui::ui::GetColor(index));
}

// -- name = Theme.GetFontName(index)
int themeGetFontName(lua_State* L) {
    const unsigned long index = colourIndex(L, 1);
    std::string* name = utility::PushResultString(L);
    utility::RunNative(L, "GetFontName", [&] {
        *name = zebcore::utility::UTF16to8(zebui::ui::GetFontName(index));
        return 0;
    });
    lua_pushlstring(L, name->data(), name->size());
    return 1;
}

// -- size = Theme.GetFontSize(index)
int themeGetFontSize(lua_State* L) {
    lua_pushnumber(L, zebui::ui::GetFontSize(colourIndex(L, 1)));
    return 1;
}

// -- has = Theme.HasColor(index)
int themeHasColor(lua_State* L) {
    lua_pushboolean(L, Theme::Get()->HasColor(colourIndex(L, 1)));
    return 1;
}

// -- Theme.SetColor(index, colour)
int themeSetColor(lua_State* L) {
    const unsigned long index = colourIndex(L, 1);
    ColorRGBA colour;
    inkwell::GetColorRGBAFromLua(L, 2, colour);
    Theme::Get()->SetColor(index, colour);
    return 0;
}

// -- theme = Theme.NewTheme()
int themeNew(lua_State* L) {
    Theme** block =
        utility::PushPointerProxy<Theme>(L, nullptr, kThemeMetaTable, luaopen_zeblua_zebTheme);
    return utility::RunNative(L, "NewTheme", [&] {
        *block = new Theme(Theme::kStandardColorCount, Theme::kStandardFontCount);
        intrusive_ptr_add_ref(*block);
        return 1;
    });
}

// -- Theme.RegisterTheme(theme, name)
int themeRegister(lua_State* L) {
    zeblua_checkTheme(L, 1);
    const char* name = luaL_checkstring(L, 2);
    Theme* theme = liveTheme(L);
    if (!theme) return 0;
    return utility::RunNative(L, "RegisterTheme", [&] {
        Theme::RegisterTheme(zebcore::utility::UTF8to16(zebcore::UTF8String(name)),
                             boost::intrusive_ptr<Theme>(theme));
        return 0;
    });
}

// -- theme:SetThemeColor(index, colour)
int themeSetThemeColor(lua_State* L) {
    zeblua_checkTheme(L, 1);
    const unsigned long index = colourIndex(L, 2);
    ColorRGBA colour;
    inkwell::GetColorRGBAFromLua(L, 3, colour);  // may run a field's __index
    Theme* theme = liveTheme(L);
    if (theme) theme->SetColor(index, colour);
    return 0;
}

const luaL_Reg kThemeFunctions[] = {
    {"GetColor", themeGetColor},       {"GetFontName", themeGetFontName},
    {"GetFontSize", themeGetFontSize}, {"HasColor", themeHasColor},
    {"SetColor", themeSetColor},       {"NewTheme", themeNew},
    {"RegisterTheme", themeRegister},  {nullptr, nullptr},
};

const luaL_Reg kThemeMethods[] = {
    {"SetThemeColor", themeSetThemeColor},
    {"Release", utility::ReleaseReferenceGC<ThemeProxy>},
    {"__gc", utility::ReleaseReferenceGC<ThemeProxy>},
    {"__tostring", utility::HeldObject2string<ThemeProxy>},
    {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaThemeClassName = kThemeClass;
const char* const kZebLuaThemeMetaTableName = kThemeMetaTable;

Theme** zeblua_checkTheme(lua_State* L, int index) {
    return utility::CheckPointerBlock<Theme>(L, index, kThemeMetaTable);
}

}  // namespace theme
}  // namespace zeblua

extern "C" int luaopen_zeblua_zebTheme(lua_State* L) {
    using namespace zeblua::theme;
    using zeblua::utility::SetIntegerConstant;
    zeblua::utility::PushOrMakeRegistryTable(L, &sStoreResetKey, nullptr, resetStore);
    lua_pop(L, 1);
    zeblua::utility::RegisterClassModule(L, kThemeMetaTable, kThemeMethods, kThemeClass,
                                         kThemeFunctions);
    SetIntegerConstant(L, "Color_TabBackground", 277);
    SetIntegerConstant(L, "Color_StaticTextNormalText", 282);
    SetIntegerConstant(L, "Color_StaticTextDisableText", 283);
    SetIntegerConstant(L, "Color_ToolBarWellStartGradient", 295);
    SetIntegerConstant(L, "Color_ToolBarWellEndGradient", 296);
    SetIntegerConstant(L, "Color_TextOnDarkBackground", 303);
    SetIntegerConstant(L, "Text_Main_Large", 0);
    SetIntegerConstant(L, "Text_Main_Small", 1);
    SetIntegerConstant(L, "Text_Title", 2);
    SetIntegerConstant(L, "kColor_ApplicationDomainStart",
                       static_cast<long>(kColor_ApplicationDomainStart));
    return 1;
}

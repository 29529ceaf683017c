// The search box wrapper.
#include "zeblua/ui/src/LuaUI_SearchBoxWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaInputEvents.h"
#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaTextControlBaseWrapper.h"
#include "zeblua/ui/src/LuaTextEditWrapper.h"
#include "zeblua/ui/src/ValueMethodSupport.h"
#include "zebui/controls/UI_SearchBox.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_SearchBox;

// -- box:SetGhostText(text): shown in grey while the box is empty.
int controlSetGhostText(lua_State* L) {
    return SetTextOfControl<UI_SearchBox>(
        L, "SetGhostText",
        [](UI_SearchBox& box, const zebcore::UTF16String& text) { box.SetGhostText(text); });
}

// The three sizes: each setter truncates its number toward zero, yet answers the number
// as given (the stack's top); each getter answers what was kept.
template <void (UI_SearchBox::*Set)(int)> int setListSize(lua_State* L, const char* name) {
    if (!GetControlUserData(L, 1)) return 0;
    const int size = TruncatedInt(luaL_checknumber(L, 2));
    return CallAnsweringTop<UI_SearchBox>(L, name, [size](UI_SearchBox& box) { (box.*Set)(size); });
}

template <int (UI_SearchBox::*Get)() const> int listSize(lua_State* L, const char* name) {
    return AnswerOfControl<UI_SearchBox>(L, name, [](UI_SearchBox& box) { return (box.*Get)(); });
}

// -- size = box:SetSearchHistoryMaxSize(size)
int controlSetSearchHistoryMaxSize(lua_State* L) {
    return setListSize<&UI_SearchBox::SetSearchHistoryMaxSize>(L, "SetSearchHistoryMaxSize");
}

// -- size = box:GetSearchHistoryMaxSize()
int controlGetSearchHistoryMaxSize(lua_State* L) {
    return listSize<&UI_SearchBox::GetSearchHistoryMaxSize>(L, "GetSearchHistoryMaxSize");
}

// -- size = box:SetSavedSearchMaxSize(size)
int controlSetSavedSearchMaxSize(lua_State* L) {
    return setListSize<&UI_SearchBox::SetSavedSearchMaxSize>(L, "SetSavedSearchMaxSize");
}

// -- size = box:GetSavedSearchMaxSize()
int controlGetSavedSearchMaxSize(lua_State* L) {
    return listSize<&UI_SearchBox::GetSavedSearchMaxSize>(L, "GetSavedSearchMaxSize");
}

// -- size = box:SetSearchHistoryDisplayMaxSize(size)
int controlSetSearchHistoryDisplayMaxSize(lua_State* L) {
    return setListSize<&UI_SearchBox::SetSearchHistoryDisplayMaxSize>(
        L, "SetSearchHistoryDisplayMaxSize");
}

// -- size = box:GetSearchHistoryDisplayMaxSize()
int controlGetSearchHistoryDisplayMaxSize(lua_State* L) {
    return listSize<&UI_SearchBox::GetSearchHistoryDisplayMaxSize>(
        L, "GetSearchHistoryDisplayMaxSize");
}

}  // namespace

const luaL_Reg LuaUI_SearchBoxWrapper::methods[] = {
    {"SetStringValue", texteditSetStringValue},
    {"GetStringValue", texteditGetStringValue},
    {"SetGhostText", controlSetGhostText},
    {"SetSearchHistoryMaxSize", controlSetSearchHistoryMaxSize},
    {"GetSearchHistoryMaxSize", controlGetSearchHistoryMaxSize},
    {"SetSavedSearchMaxSize", controlSetSavedSearchMaxSize},
    {"GetSavedSearchMaxSize", controlGetSavedSearchMaxSize},
    {"SetSearchHistoryDisplayMaxSize", controlSetSearchHistoryDisplayMaxSize},
    {"GetSearchHistoryDisplayMaxSize", controlGetSearchHistoryDisplayMaxSize},
    {nullptr, nullptr},
};

const char* LuaUI_SearchBoxWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebSearchBox";
    return sMetatableName;
}

void LuaUI_SearchBoxWrapper::RegisterMethods(lua_State* L) {
    LuaInteractiveControlViewWrapper::RegisterMethods(L);
    LuaTextControlBaseWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

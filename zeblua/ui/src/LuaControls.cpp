// zebcontrols: the controls module's opener.
#include "zeblua/ui/src/LuaControls.h"

#include <lua.hpp>

#include "zeblua/ui/src/LuaCheckboxWrapper.h"
#include "zeblua/ui/src/LuaControlConstructors.h"
#include "zeblua/ui/src/LuaControlViewWrapper.h"
#include "zeblua/ui/src/LuaDialogWrapper.h"
#include "zeblua/ui/src/LuaDividerWrapper.h"
#include "zeblua/ui/src/LuaInteractiveControlViewWrapper.h"
#include "zeblua/ui/src/LuaMultiColumnTreeRowWrapper.h"
#include "zeblua/ui/src/LuaMultiColumnTreeWrapper.h"
#include "zeblua/ui/src/LuaOS_WindowWrapper.h"
#include "zeblua/ui/src/LuaOverlaySubViewWrapper.h"
#include "zeblua/ui/src/LuaPopupWindowWrapper.h"
#include "zeblua/ui/src/LuaRadioButtonWrapper.h"
#include "zeblua/ui/src/LuaRadioGroupWrapper.h"
#include "zeblua/ui/src/LuaStaticTextWrapper.h"
#include "zeblua/ui/src/LuaTextEditWrapper.h"
#include "zeblua/ui/src/LuaUI_ArrangementViewWrapper.h"
#include "zeblua/ui/src/LuaUI_ButtonWrapper.h"
#include "zeblua/ui/src/LuaUI_DisclosureButtonWrapper.h"
#include "zeblua/ui/src/LuaUI_HotTextButtonWrapper.h"
#include "zeblua/ui/src/LuaUI_HotTextNumberWrapper.h"
#include "zeblua/ui/src/LuaUI_HotTextTimecodeWrapper.h"
#include "zeblua/ui/src/LuaUI_KnobWrapper.h"
#include "zeblua/ui/src/LuaUI_ListBoxItemWrapper.h"
#include "zeblua/ui/src/LuaUI_ListBoxWrapper.h"
#include "zeblua/ui/src/LuaUI_NodeWrapper.h"
#include "zeblua/ui/src/LuaUI_PictureButtonWrapper.h"
#include "zeblua/ui/src/LuaUI_PopupWrapper.h"
#include "zeblua/ui/src/LuaUI_ScrollBarWrapper.h"
#include "zeblua/ui/src/LuaUI_ScrollViewWrapper.h"
#include "zeblua/ui/src/LuaUI_SearchBoxWrapper.h"
#include "zeblua/ui/src/LuaUI_SectionViewWrapper.h"
#include "zeblua/ui/src/LuaUI_SliderWrapper.h"
#include "zeblua/ui/src/LuaUI_SplitterViewWrapper.h"
#include "zeblua/ui/src/LuaUI_StaticImageWrapper.h"
#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"
#include "zeblua/ui/src/LuaUI_TabWellWrapper.h"
#include "zeblua/ui/src/LuaUI_TextButtonWrapper.h"
#include "zeblua/ui/src/LuaUI_WebViewWrapper.h"
#include "zeblua/ui/src/ObjectBasedGC.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/MainThread.h"
#include "zebui/controls/UI_InteractiveControlChangedMessage.h"

namespace zeblua {
namespace ui {
namespace {

constexpr const char* kControlsStackMessage = "Cannot grow stack for controls metatables";

struct ControlMetatable {
    const char* (*name)();
    void (*registerMethods)(lua_State*);
};

template <class Wrapper> constexpr ControlMetatable metatableOf() {
    return {Wrapper::GetMetatableName, Wrapper::RegisterMethods};
}

// In registration order; the row wrapper's metatable goes between the two lists. Each
// stands alone, so the order only tells which are there if a stack check fails midway.
constexpr ControlMetatable kMetatablesBeforeRow[] = {
    metatableOf<LuaDialogWrapper>(),
    metatableOf<LuaStaticTextWrapper>(),
    metatableOf<LuaPopupWindowWrapper>(),
    metatableOf<LuaOS_WindowWrapper>(),
    metatableOf<LuaUI_SearchBoxWrapper>(),
    metatableOf<LuaTextEditWrapper>(),
    metatableOf<LuaUI_ButtonWrapper>(),
    metatableOf<LuaUI_TextButtonWrapper>(),
    metatableOf<LuaUI_DisclosureButtonWrapper>(),
    metatableOf<LuaUI_StaticImageWrapper>(),
    metatableOf<LuaUI_PictureButtonWrapper>(),
    metatableOf<LuaUI_NodeWrapper>(),
    metatableOf<LuaUI_SubViewWrapper>(),
    metatableOf<LuaOverlaySubViewWrapper>(),
    metatableOf<LuaUI_ScrollViewWrapper>(),
    metatableOf<LuaUI_HotTextButtonWrapper>(),
    metatableOf<LuaUI_HotTextNumberWrapper>(),
    metatableOf<LuaUI_HotTextTimecodeWrapper>(),
    metatableOf<LuaUI_KnobWrapper>(),
    metatableOf<LuaUI_SliderWrapper>(),
    metatableOf<LuaUI_ScrollBarWrapper>(),
    metatableOf<LuaUI_PopupWrapper>(),
    metatableOf<LuaMultiColumnTreeWrapper>(),
    metatableOf<LuaUI_ListBoxWrapper>(),
    metatableOf<LuaUI_ListBoxItemWrapper>(),
};

constexpr ControlMetatable kMetatablesAfterRow[] = {
    metatableOf<LuaCheckboxWrapper>(),
    metatableOf<LuaRadioButtonWrapper>(),
    metatableOf<LuaRadioGroupWrapper>(),
    metatableOf<LuaInteractiveControlViewWrapper>(),
    metatableOf<LuaControlViewWrapper>(),
    metatableOf<LuaUI_SplitterViewWrapper>(),
    metatableOf<LuaUI_ArrangementViewWrapper>(),
    metatableOf<LuaUI_SectionViewWrapper>(),
    metatableOf<LuaDividerWrapper>(),
    metatableOf<LuaUI_TabWellWrapper>(),
    metatableOf<LuaUI_WebViewWrapper>(),
};

const luaL_Reg kRowGC[] = {
    {"__gc", DoObjectBasedGC<LuaMultiColumnTreeRowWrapper>},
    {nullptr, nullptr},
};

// Pushes the registry metatable name, its own __index.
void newSelfIndexedMetatable(lua_State* L, const char* name) {
    luaL_newmetatable(L, name);
    lua_pushvalue(L, -1);
    lua_setfield(L, -2, "__index"); /* mt.__index = mt */
}

template <size_t N>
void registerControlMetatables(lua_State* L, const ControlMetatable (&list)[N]) {
    for (const ControlMetatable& entry : list) {
        luaL_checkstack(L, 2, kControlsStackMessage);
        newSelfIndexedMetatable(L, entry.name());
        MarkWrapperMetatable(L);
        entry.registerMethods(L);
        lua_settop(L, -2);
    }
}

void registerRowMetatable(lua_State* L) {
    luaL_checkstack(L, 2, "Cannot grow stack for object metatable");
    newSelfIndexedMetatable(L, LuaMultiColumnTreeRowWrapper::GetMetatableName());
    luaL_register(L, nullptr, kRowGC);
    luaL_register(L, nullptr, LuaMultiColumnTreeRowWrapper::GetMethods());
    lua_settop(L, -2);
}

}  // namespace

int luaopen_LuaControls(lua_State* L) {
    utility::RecordMainThread(L);
    luaL_checkstack(L, 3, kControlsStackMessage);
    lua_getfield(L, LUA_REGISTRYINDEX, LuaUI_NodeWrapper::GetMetatableName());
    const bool opened = !lua_isnil(L, -1);
    lua_pop(L, 1);
    if (opened) return 1; /* the one result is what the caller left on top */
    registerControlMetatables(L, kMetatablesBeforeRow);
    registerRowMetatable(L);
    registerControlMetatables(L, kMetatablesAfterRow);
    InitZebControls(L);
    luaL_register(L, "zebcontrols", kControlConstructors);
    return 1;
}

int InitZebControls(lua_State* L) {
    luaL_checkstack(L, 2, "Cannot grow stack for message metatables");
    newSelfIndexedMetatable(L, "interactiveChangeMessage");
    utility::SetIntegerConstant(L, "beginChange", zebui::controls::kInteractiveChange_Begin);
    utility::SetIntegerConstant(L, "continueChange", zebui::controls::kInteractiveChange_Continue);
    utility::SetIntegerConstant(L, "finishChange", zebui::controls::kInteractiveChange_Finish);
    utility::SetIntegerConstant(L, "cancelChange", zebui::controls::kInteractiveChange_Cancel);
    lua_pop(L, 1);
    return 1;
}

}  // namespace ui
}  // namespace zeblua

extern "C" int luaopen_zeblua_zebcontrols(lua_State* L) {
    return zeblua::ui::luaopen_LuaControls(L);
}

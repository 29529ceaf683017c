// The section view wrapper: opened state, header, custom label view and opened callbacks.
#include "zeblua/ui/src/LuaUI_SectionViewWrapper.h"

#include <boost/bind/bind.hpp>
#include <boost/function.hpp>
#include <boost/make_shared.hpp>
#include <lua.hpp>

#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaFunctionEntry.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"
#include "zeblua/ui/src/ZebOperationCalls.h"
#include "zebui/controls/UI_SectionView.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_SectionView;

// fn(section) with a new wrapper of the section, which the caller holds; errors dropped.
void luaOpenedStateChangedCallback(const LuaFunctionEntry& entry, UI_SectionView* section) {
    CallBoundNodeNotify(entry, zebui::ui::KeepNodeAlive(section));
}

// A flag at 2 (true when absent) handed to set; set may run the opened callbacks.
int setFlag(lua_State* L, const char* name, void (UI_SectionView::*set)(bool)) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool flag = FlagDefaultTrue(L, 2);
    return CallOnControl<UI_SectionView>(L, name,
                                         [&](UI_SectionView& section) { (section.*set)(flag); });
}

// -- section:SetOpened([flag]): no argument opens. A real change runs the callbacks.
int controlSetOpened(lua_State* L) {
    return setFlag(L, "SetOpened", &UI_SectionView::SetOpened);
}

// -- opened = section:GetOpened()
int controlGetOpened(lua_State* L) {
    return AnswerOfControl<UI_SectionView>(
        L, "GetOpened", [](UI_SectionView& section) { return section.GetOpened(); });
}

// -- section:SetDrawGradientHeader([flag])
int controlSetDrawGradientHeader(lua_State* L) {
    return setFlag(L, "SetDrawGradientHeader", &UI_SectionView::SetDrawGradientHeader);
}

// -- drawn = section:GetDrawGradientHeader()
int controlGetDrawGradientHeader(lua_State* L) {
    return AnswerOfControl<UI_SectionView>(L, "GetDrawGradientHeader", [](UI_SectionView& section) {
        return section.GetDrawGradientHeader();
    });
}

// -- section:SetHeaderHeight(height): the label view's size listeners run script.
int controlSetHeaderHeight(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const float height = static_cast<float>(luaL_checknumber(L, 2));
    return CallOnControl<UI_SectionView>(
        L, "SetHeaderHeight", [&](UI_SectionView& section) { section.SetHeaderHeight(height); });
}

// -- height = section:GetHeaderHeight()
int controlGetHeaderHeight(lua_State* L) {
    return AnswerOfControl<UI_SectionView>(
        L, "GetHeaderHeight", [](UI_SectionView& section) { return section.GetHeaderHeight(); });
}

// -- section:SetShowCustomLabelView([flag]): the first showing makes the label view.
int controlSetShowCustomLabelView(lua_State* L) {
    return setFlag(L, "SetShowCustomLabelView", &UI_SectionView::SetShowCustomLabelView);
}

// -- shown = section:IsCustomLabelViewShown()
int controlIsCustomLabelViewShown(lua_State* L) {
    return AnswerOfControl<UI_SectionView>(
        L, "IsCustomLabelViewShown",
        [](UI_SectionView& section) { return section.IsCustomLabelViewShown(); });
}

// -- view = section:GetCustomLabelView(): nothing until the label view was first shown.
int controlGetCustomLabelView(lua_State* L) {
    if (!CastControlNode<UI_SectionView>(L, 1)) return 0;
    return PushFoundNode(L, "GetCustomLabelView", [](zebui::ui::UI_Node& node) {
        const auto* section = dynamic_cast<UI_SectionView*>(&node);
        return NodeP(section ? section->GetCustomLabelView() : nullptr);
    });
}

// -- section:AddOpenedStateChangedCallback(fn): fn(section) after each real change of the
// opened state, with a new wrapper each time. Functions are only ever added.
int luaAddOpenedStateChangedCallback(lua_State* L) {
    if (!LiveNode(L, 1)) return 0;
    AddCallbackFunction<UI_SectionView>(
        L, "AddOpenedStateChangedCallback",
        [](UI_SectionView& section, const LuaFunctionEntry& entry) {
            section.AddOpenedStateChangedCallback(
                boost::make_shared<boost::function<void(UI_SectionView*)>>(
                    boost::bind(luaOpenedStateChangedCallback, entry, boost::placeholders::_1)));
        });
    return 0;
}

}  // namespace

const luaL_Reg LuaUI_SectionViewWrapper::methods[] = {
    {"SetOpened", controlSetOpened},
    {"GetOpened", controlGetOpened},
    {"SetDrawGradientHeader", controlSetDrawGradientHeader},
    {"GetDrawGradientHeader", controlGetDrawGradientHeader},
    {"SetHeaderHeight", controlSetHeaderHeight},
    {"GetHeaderHeight", controlGetHeaderHeight},
    {"SetShowCustomLabelView", controlSetShowCustomLabelView},
    {"IsCustomLabelViewShown", controlIsCustomLabelViewShown},
    {"GetCustomLabelView", controlGetCustomLabelView},
    {"AddOpenedStateChangedCallback", luaAddOpenedStateChangedCallback},
    {nullptr, nullptr},
};

const char* LuaUI_SectionViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebSectionView";
    return sMetatableName;
}

void LuaUI_SectionViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

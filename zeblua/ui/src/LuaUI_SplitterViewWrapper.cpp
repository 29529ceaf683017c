// The splitter view wrapper: direction, split, panes and the split validation function.
#include "zeblua/ui/src/LuaUI_SplitterViewWrapper.h"

#include <boost/bind/bind.hpp>
#include <boost/function.hpp>
#include <boost/make_shared.hpp>
#include <lua.hpp>

#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaFunctionEntry.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"
#include "zeblua/ui/src/ZebOperationCalls.h"
#include "zebui/controls/UI_SplitterView.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::controls::UI_SplitterView;

// The validation function's call: the proposal goes in, a number answered comes out,
// anything else (an error included) leaves the proposal.
float mySplitValidationFunction(float proposed, const LuaFunctionEntry& entry) {
    return CallBoundSplitValidation(entry, proposed);
}

// -- splitter:SetSplitDirection(number): 0 side by side, any other number (NaN too) one
// above the other.
int controlSetSplitDirection(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const int direction = luaL_checknumber(L, 2) != 0 ? 1 : 0;
    return CallOnControl<UI_SplitterView>(L, "SetSplitDirection", [&](UI_SplitterView& splitter) {
        splitter.SetSplitDirection(direction);
    });
}

// -- direction = splitter:GetSplitDirection(): 1 or 0.
int controlGetSplitDirection(lua_State* L) {
    return AnswerOfControl<UI_SplitterView>(L, "GetSplitDirection", [](UI_SplitterView& splitter) {
        return splitter.GetDirection() == 1 ? 1 : 0;
    });
}

// -- splitter:SetSplitPercentage(share): offered to the validation function first, which
// runs script, so the splitter is held.
int controlSetSplitPercentage(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const float split = static_cast<float>(luaL_checknumber(L, 2));
    return CallOnControl<UI_SplitterView>(L, "SetSplitPercentage", [&](UI_SplitterView& splitter) {
        splitter.SetSplitPercentage(split);
    });
}

// -- share = splitter:GetSplitPercentage()
int controlGetSplitPercentage(lua_State* L) {
    return AnswerOfControl<UI_SplitterView>(L, "GetSplitPercentage", [](UI_SplitterView& splitter) {
        return splitter.GetSplitPercentage();
    });
}

using SetPane = void (UI_SplitterView::*)(const boost::intrusive_ptr<zebui::ui::UI_Node>&);

// A pane from the wrapper at 2; a released one does nothing. The pane's size listeners run
// script, so both nodes are held.
int setPane(lua_State* L, const char* name, SetPane set) {
    if (!GetControlUserData(L, 1)) return 0;
    if (!GetControlUserData(L, 2)) return 0;
    zebui::ui::UI_Node* pane = LiveNode(L, 2);
    if (!pane) return 0;
    return CallOnControl<UI_SplitterView>(L, name, [&](UI_SplitterView& splitter) {
        const NodeP heldPane(pane);
        (splitter.*set)(heldPane);
    });
}

// -- splitter:SetTopLeftView(view)
int controlSetTopLeftView(lua_State* L) {
    return setPane(L, "SetTopLeftView", &UI_SplitterView::SetTopLeftView);
}

// -- splitter:SetBottomRightView(view)
int controlSetBottomRightView(lua_State* L) {
    return setPane(L, "SetBottomRightView", &UI_SplitterView::SetBottomRightView);
}

// -- splitter:SetSplitValidationFunction(fn): share = fn(proposedShare) before every new
// split. A later function replaces it; the registry keeps each until the state closes.
int controlSetSplitValidationFunction(lua_State* L) {
    AddCallbackFunction<UI_SplitterView>(
        L, "SetSplitValidationFunction",
        [](UI_SplitterView& splitter, const LuaFunctionEntry& entry) {
            splitter.SetSplitValidationFunction(boost::make_shared<boost::function<float(float)>>(
                boost::bind(mySplitValidationFunction, boost::placeholders::_1, entry)));
        });
    return 0;
}

}  // namespace

const luaL_Reg LuaUI_SplitterViewWrapper::methods[] = {
    {"SetSplitDirection", controlSetSplitDirection},
    {"GetSplitDirection", controlGetSplitDirection},
    {"SetSplitPercentage", controlSetSplitPercentage},
    {"GetSplitPercentage", controlGetSplitPercentage},
    {"SetTopLeftView", controlSetTopLeftView},
    {"SetBottomRightView", controlSetBottomRightView},
    {"SetSplitValidationFunction", controlSetSplitValidationFunction},
    {nullptr, nullptr},
};

const char* LuaUI_SplitterViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebSplitterView";
    return sMetatableName;
}

void LuaUI_SplitterViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

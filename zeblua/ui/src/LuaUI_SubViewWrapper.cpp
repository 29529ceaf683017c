// The sub view wrapper: layout of the children, and drawing a child on demand.
#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"

#include <lua.hpp>

#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaInkwell.h"
#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaInputEvents.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zeblua/ui/src/LuaUI_NodeWrapper.h"
#include "zebui/ui/UI_SubView.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::ui::UI_SubView;

// -- layouts = view:GetLayoutsChildren()
int controlGetLayoutsChildren(lua_State* L) {
    return AnswerOfControl<UI_SubView>(
        L, "GetLayoutsChildren", [](UI_SubView& view) { return view.UI_GetLayoutsChildren(); });
}

// -- view:SetLayoutsChildren([flag]): no argument lays them out, nil does not.
int controlSetLayoutsChildren(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool layouts = FlagDefaultTrue(L, 2);
    return CallOnControl<UI_SubView>(
        L, "SetLayoutsChildren", [&](UI_SubView& view) { view.UI_SetLayoutsChildren(layouts); });
}

// -- bits = view:GetLayoutBinding()
int controlGetLayoutBinding(lua_State* L) {
    return AnswerOfControl<UI_SubView>(L, "GetLayoutBinding", [](UI_SubView& view) {
        return static_cast<int>(view.UI_GetLayoutBinding().GetValue());
    });
}

// -- view:SetLayoutBinding(bits): 1 left, 2 top, 4 right, 8 bottom. The number is
// truncated as the event readers truncate theirs and cut to its low 8 bits.
int controlSetLayoutBinding(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const unsigned char bits = ModifiersFromNumber(luaL_checknumber(L, 2)).GetValue();
    return CallOnControl<UI_SubView>(L, "SetLayoutBinding",
                                     [&](UI_SubView& view) { view.UI_SetLayoutBinding(bits); });
}

// -- view:UI_DispatchDrawToChild(child, inkwell): draws child with the draw hooks of its
// subtree, which run script, so both nodes are held. An inkwell whose scope has ended is
// reported and draws nothing.
int controlUI_DispatchDrawToChild(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    if (!GetControlUserData(L, 2)) return 0;
    inkwell::InkwellProxy* proxy = inkwell::zeblua_checkInkwell(L, 3);
    zebui::ui::UI_Node* child = LiveNode(L, 2);
    if (!child || !inkwell::InkwellInScope(proxy)) return 0;
    zebui::inkwell::Inkwell* ink = proxy->inkwell;
    return CallOnNode(L, "UI_DispatchDrawToChild", [&](zebui::ui::UI_Node& view) {
        const NodeP heldChild(child);
        view.UI_DispatchDrawToChild(heldChild.get(), ink);
    });
}

}  // namespace

const luaL_Reg LuaUI_SubViewWrapper::methods[] = {
    {"GetLayoutsChildren", controlGetLayoutsChildren},
    {"SetLayoutsChildren", controlSetLayoutsChildren},
    {"GetLayoutBinding", controlGetLayoutBinding},
    {"SetLayoutBinding", controlSetLayoutBinding},
    {"UI_DispatchDrawToChild", controlUI_DispatchDrawToChild},
    {nullptr, nullptr},
};

const char* LuaUI_SubViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebSubView";
    return sMetatableName;
}

void LuaUI_SubViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_NodeWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

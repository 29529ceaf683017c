// The node set's focus and tool tip methods.
#include "zeblua/ui/src/LuaNodeFocusMethods.h"

#include "zebcore/utility/Strings.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::ui::UI_Node;

constexpr lua_Integer kDefaultToolTipWidth = 400;

}  // namespace

// Focus listeners, of the node that loses the focus and of this one, run Lua.
int nodeUI_GainKeyboardFocus(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const auto reason = static_cast<zebui::ui::FocusChangeReason>(luaL_checkinteger(L, 2));
    return AnswerOfNode(L, "UI_GainKeyboardFocus",
                        [reason](UI_Node& node) { return node.UI_GainKeyboardFocus(reason); });
}

int nodeUI_HasKeyboardFocus(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool orDescendant = lua_toboolean(L, 2) != 0;
    return AnswerOfNode(L, "UI_HasKeyboardFocus", [orDescendant](UI_Node& node) {
        return node.UI_HasKeyboardFocus(orDescendant);
    });
}

int nodeUI_SetToolTip(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    size_t length = 0;
    const char* text = luaL_checklstring(L, 2, &length);
    const auto width = static_cast<int>(luaL_optinteger(L, 3, kDefaultToolTipWidth));
    return CallOnNode(L, "UI_SetToolTip", [&](UI_Node& node) {
        node.UI_SetToolTip(zebcore::utility::UTF8to16(zebcore::UTF8String(text, length)), width);
    });
}

int nodeUI_SetToolTipAvoidsBounds(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool avoids = FlagDefaultTrue(L, 2);
    return CallOnNode(L, "UI_SetToolTipAvoidsBounds",
                      [avoids](UI_Node& node) { node.UI_SetToolTipAvoidsBounds(avoids); });
}

int nodeUI_GetToolTipAvoidsBounds(lua_State* L) {
    return AnswerOfNode(L, "UI_GetToolTipAvoidsBounds",
                        [](UI_Node& node) { return node.UI_GetToolTipAvoidsBounds(); });
}

}  // namespace ui
}  // namespace zeblua

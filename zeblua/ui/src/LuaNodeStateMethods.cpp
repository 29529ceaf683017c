// The node set's state and appearance methods.
#include "zeblua/ui/src/LuaNodeStateMethods.h"

#include <cstring>
#include <memory>

#include "zebcore/geom/GeomConvert.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/inkwell/src/LuaSupplier.h"
#include "zeblua/ui/src/LuaInputEvents.h"
#include "zeblua/ui/src/LuaNodeMethodSupport.h"
#include "zebui/ui/MouseEvent.h"

namespace zeblua {
namespace ui {
namespace {

using zebcore::geom::RectT;
using zebui::ui::UI_Node;

// Compared as C strings, so bytes after an embedded zero don't count.
zebui::ui::DrawCachePolicy drawCachePolicyNamed(const char* name) {
    if (std::strcmp(name, "never") == 0) return zebui::ui::kDrawCachePolicy_Never;
    if (std::strcmp(name, "always") == 0) return zebui::ui::kDrawCachePolicy_Always;
    if (std::strcmp(name, "always_as_bitmap") == 0)
        return zebui::ui::kDrawCachePolicy_AlwaysAsBitmap;
    return zebui::ui::kDrawCachePolicy_Default;
}

int pushSupplier(lua_State* L, const zebui::inkwell::SupplierInterface* supplier) {
    return supplier ? inkwell::PushSupplierToLua(L, supplier) : 0;
}

}  // namespace

int nodeUI_Show(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool shown = FlagDefaultTrue(L, 2);
    return CallOnNode(L, "UI_Show", [shown](UI_Node& node) { node.UI_Show(shown); });
}

int nodeUI_IsShown(lua_State* L) {
    return AnswerOfNode(L, "UI_IsShown", [](UI_Node& node) { return node.UI_IsShown(); });
}

int nodeUI_SetEnabled(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool enabled = FlagDefaultTrue(L, 2);
    return CallOnNode(L, "UI_SetEnabled",
                      [enabled](UI_Node& node) { node.UI_SetDisabled(!enabled); });
}

int nodeUI_IsEnabled(lua_State* L) {
    return AnswerOfNode(L, "UI_IsEnabled", [](UI_Node& node) { return !node.UI_IsDisabled(); });
}

// The rect, in the node's own coordinates, is rounded outwards so that it covers every
// pixel it touches.
int nodeUI_Invalidate(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const bool wholeNode = lua_isnoneornil(L, 2);
    RectT<float> rect;
    if (!wholeNode) inkwell::GetRectF32FromLua(L, 2, rect);
    return CallOnNode(L, "UI_Invalidate", [&](UI_Node& node) {
        const auto area =
            zebcore::geom::ConvertRect<RectT<int>>(rect, zebcore::geom::kRectRound_OUT);
        node.UI_Invalidate(wholeNode ? nullptr : &area, 0);
    });
}

// Draws at once, so a bound "uiDraw" runs before this returns.
int nodeUI_UpdateNow(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const auto flags = static_cast<unsigned int>(luaL_optinteger(L, 2, -1));
    return CallOnNode(L, "UI_UpdateNow", [flags](UI_Node& node) { node.UI_UpdateNow(flags); });
}

int nodeUI_GetDrawSupplier(lua_State* L) {
    return PushNodeAnswer(
        L, "UI_GetDrawSupplier", [](UI_Node& node) { return node.UI_GetDrawSupplier(); },
        pushSupplier);
}

int nodeUI_SetDrawCachePolicy(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    const zebui::ui::DrawCachePolicy policy = drawCachePolicyNamed(luaL_checkstring(L, 2));
    return CallOnNode(L, "UI_SetDrawCachePolicy",
                      [policy](UI_Node& node) { node.UI_SetDrawCachePolicy(policy); });
}

int nodeSetThemeName(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    size_t length = 0;
    const char* name = luaL_checklstring(L, 2, &length);
    return CallOnNode(L, "SetThemeName", [&](UI_Node& node) {
        node.SetThemeName(zebcore::utility::UTF8to16(zebcore::UTF8String(name, length)), 0);
    });
}

int nodeUI_IsMouseOver(lua_State* L) {
    return AnswerOfNode(L, "UI_IsMouseOver",
                        [](UI_Node& node) { return node.UI_IsMouseOver(true); });
}

// The event runs the node's hooks and its bound "uiMouseEvent": both nodes are held for
// the call. A table that is no mouse event, or a released target, does nothing.
int nodeUI_DoMouseEvent(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    LiveNode(L, 2); /* "Bad user data" for anything but a wrapper, before the table is read */
    std::unique_ptr<zebui::ui::MouseEvent> event;
    if (!GetMouseEventFromLua(L, 3, event)) return 0;
    UI_Node* target = LiveNode(L, 2);
    if (!target) return 0;
    return CallOnNode(L, "UI_DoMouseEvent",
                      [&](UI_Node& node) { node.UI_DoMouseEvent(NodeP(target).get(), *event); });
}

}  // namespace ui
}  // namespace zeblua

// The overlay sub view wrapper.
#include "zeblua/ui/src/LuaOverlaySubViewWrapper.h"

#include <lua.hpp>

#include "zeblua/inkwell/src/InkProxyObjs/InkwellProxy.h"
#include "zeblua/inkwell/src/LuaInkwell.h"
#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaOverlaySubView.h"

namespace zeblua {
namespace ui {
namespace {

// -- overlay:DispatchDrawToChildren(inkwell): each child in order, with the draw hooks of
// their subtrees, which run script, so the overlay is held. An inkwell whose scope has
// ended is reported and draws nothing.
int overlayDispatchDrawToChildren(lua_State* L) {
    if (!GetControlUserData(L, 1)) return 0;
    inkwell::InkwellProxy* proxy = inkwell::zeblua_checkInkwell(L, 2);
    if (!inkwell::InkwellInScope(proxy)) return 0;
    zebui::inkwell::Inkwell* ink = proxy->inkwell;
    return CallOnControl<LuaOverlaySubView>(
        L, "DispatchDrawToChildren",
        [&](LuaOverlaySubView& overlay) { overlay.MyDispatchDrawToChildren(ink); });
}

}  // namespace

const luaL_Reg LuaOverlaySubViewWrapper::methods[] = {
    {"DispatchDrawToChildren", overlayDispatchDrawToChildren},
    {nullptr, nullptr},
};

const char* LuaOverlaySubViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebOverlaySubView";
    return sMetatableName;
}

void LuaOverlaySubViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

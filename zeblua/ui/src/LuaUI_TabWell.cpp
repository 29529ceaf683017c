// A tab well whose tab actions go to a Lua function.
#include "zeblua/ui/src/LuaUI_TabWell.h"

#include <boost/bind/bind.hpp>
#include <boost/function.hpp>
#include <boost/make_shared.hpp>

#include "zeblua/ui/src/LuaFunctionEntry.h"
#include "zeblua/ui/src/ZebOperationCalls.h"

namespace zeblua {
namespace ui {

using zebui::controls::TabItemAction;

LuaUI_TabWell::LuaUI_TabWell()
    : zebui::controls::UI_TabWell(
          boost::make_shared<
              boost::function<void(TabItemAction, int, const zebcore::geom::RectT<int>*)>>(
              boost::bind(&LuaUI_TabWell::TabItemActionHook, this, boost::placeholders::_1,
                          boost::placeholders::_2, boost::placeholders::_3)),
          false) {}

LuaUI_TabWell::~LuaUI_TabWell() = default;

void LuaUI_TabWell::SetActionHookRegistryIndex(lua_State* L, int index) {
    mHookState = L;
    mHookRegistryIndex = index;
}

void LuaUI_TabWell::TabItemActionHook(TabItemAction action, int tabIndex,
                                      const zebcore::geom::RectT<int>* rect) {
    if (!mHookState) return;
    CallBoundTabItemAction(LuaFunctionEntry{mHookState, mHookRegistryIndex}, action, tabIndex,
                           rect);
}

}  // namespace ui
}  // namespace zeblua

// A tab well whose tab actions go to a Lua function.
#pragma once

#include "zebui/controls/UI_TabWell.h"

struct lua_State;

namespace zeblua {
namespace ui {

// The action function is a registry reference on the main thread of the state that set
// it; neither a later function nor the well's death releases it (the well may outlive the
// state's use of it), so the registry holds it until the state closes. The well must not
// outlive that state.
class LuaUI_TabWell : public zebui::controls::UI_TabWell {
public:
    LuaUI_TabWell();
    ~LuaUI_TabWell() override;

    // From now on the tab actions call the function at index of L's registry.
    void SetActionHookRegistryIndex(lua_State* L, int index);

    // fn(action, tab) or fn(action, tab, rect), notify form: errors are dropped.
    void TabItemActionHook(zebui::controls::TabItemAction action, int tabIndex,
                           const zebcore::geom::RectT<int>* rect);

private:
    int mHookRegistryIndex = 0;
    lua_State* mHookState = nullptr;
};

}  // namespace ui
}  // namespace zeblua

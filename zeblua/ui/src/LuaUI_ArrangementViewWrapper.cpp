// The arrangement view wrapper.
#include "zeblua/ui/src/LuaUI_ArrangementViewWrapper.h"

#include <lua.hpp>

#include "zeblua/ui/src/ControlMethodSupport.h"
#include "zeblua/ui/src/LuaUI_SubViewWrapper.h"
#include "zebui/ui/UI_ArrangementView.h"

namespace zeblua {
namespace ui {
namespace {

using zebui::ui::UI_ArrangementView;

// -- view:UI_LayoutChildren(): a column with no margin and no spacing. The children's size
// listeners run script, so the view is held.
int controlUI_LayoutChildren(lua_State* L) {
    return CallOnControl<UI_ArrangementView>(L, "UI_LayoutChildren", [](UI_ArrangementView& view) {
        view.UI_LayoutChildren(zebcore::geom::PointT<float>(), zebcore::geom::PointT<float>());
    });
}

}  // namespace

const luaL_Reg LuaUI_ArrangementViewWrapper::methods[] = {
    {"UI_LayoutChildren", controlUI_LayoutChildren},
    {nullptr, nullptr},
};

const char* LuaUI_ArrangementViewWrapper::GetMetatableName() {
    static const char* const sMetatableName = "zebArrangementView";
    return sMetatableName;
}

void LuaUI_ArrangementViewWrapper::RegisterMethods(lua_State* L) {
    LuaUI_SubViewWrapper::RegisterMethods(L);
    luaL_register(L, nullptr, methods);
}

}  // namespace ui
}  // namespace zeblua

// zebhost.closeIfPopup.
#include "host/src/HostWindows.h"

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "host/src/HostNodes.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/ui/UI_Window.h"

namespace zebhost {
namespace {

// -- closed = zebhost.closeIfPopup(window): false for a node that is no window.
int hostCloseIfPopup(lua_State* L) {
    zebui::ui::UI_Node* node = CheckNodeArgument(L, 1);
    const bool closed = zeblua::utility::RunNative(L, "zebhost.closeIfPopup", [&] {
        const boost::intrusive_ptr<zebui::ui::UI_Node> held(node);
        auto* window = dynamic_cast<zebui::ui::UI_Window*>(node);
        if (!window || !window->UI_CloseIfPopup()) return false;
        window->UI_Show(false);
        return true;
    });
    lua_pushboolean(L, closed);
    return 1;
}

const luaL_Reg kWindowFunctions[] = {
    {"closeIfPopup", hostCloseIfPopup},
    {nullptr, nullptr},
};

}  // namespace

void OpenHostWindows(lua_State* L) {
    zeblua::utility::RegisterFunctionModule(L, "zebhost", kWindowFunctions);
    lua_pop(L, 1);
}

}  // namespace zebhost

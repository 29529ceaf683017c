// Flag defaults of the node set.
#include "zeblua/ui/src/LuaNodeMethodSupport.h"

namespace zeblua {
namespace ui {

bool FlagDefaultTrue(lua_State* L, int index) {
    return lua_gettop(L) >= index ? lua_toboolean(L, index) != 0 : true;
}

}  // namespace ui
}  // namespace zeblua

// A restorer in Lua.
#include "zeblua/undo/src/LuaStateRestorer.h"

#include <lua.hpp>

#include "zeblua/undo/src/LuaAction.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zebundo/UndoHistory.h"

namespace zeblua {
namespace undo {
namespace {

const luaL_Reg cmd_funcs[] = {{nullptr, nullptr}};

}  // namespace

LuaStateRestorer::LuaStateRestorer(const int& ref, lua_State* L) : StateBound(L), mRef(ref) {}

LuaStateRestorer::~LuaStateRestorer() {
    if (mRef <= 0) return;
    if (lua_State* L = GetLuaState()) luaL_unref(L, LUA_REGISTRYINDEX, mRef);
    mRef = 0;
}

void LuaStateRestorer::RestoreState() {
    if (mDisabled) return;
    CallTableMethod(GetLuaState(), mRef, "restoreState");
}

void LuaStateRestorer::OnStateClosing() {
    zebundo::UndoHistory::Get()->Clear();
}

int LuaStateRestorer::InitLua(lua_State* L) {
    utility::RegisterFunctionModule(L, "zebLuaStateRestorer", cmd_funcs);
    return 1;
}

}  // namespace undo
}  // namespace zeblua

// The bindable-node mix-in.
#include "zeblua/ui/src/LuaBindableNode.h"

#include <lua.hpp>

#include "zeblua/utility/src/MainThread.h"

namespace zeblua {
namespace ui {

LuaBindableNode::~LuaBindableNode() = default;

bool LuaBindableNode::BindZEBOperation(lua_State* L, const std::string& name, int reference) {
    lua_State* main = utility::GetMainThread(L);
    if (!main) return false;
    LuaFunctionEntry old;
    if (FindBound(name, old)) luaL_unref(old.state, LUA_REGISTRYINDEX, old.reference);
    mBoundFunctions[name] = std::vector<LuaFunctionEntry>{LuaFunctionEntry{main, reference}};
    return true;
}

lua_State* LuaBindableNode::GetZEBBoundLuaState(const std::string& name) const {
    LuaFunctionEntry entry;
    return FindBound(name, entry) ? entry.state : nullptr;
}

int LuaBindableNode::GetZEBBoundFunctionIndex(const std::string& name) const {
    LuaFunctionEntry entry;
    return FindBound(name, entry) ? entry.reference : 0;
}

bool LuaBindableNode::FindBound(const std::string& name, LuaFunctionEntry& entry) const {
    const auto bound = mBoundFunctions.find(name);
    if (bound == mBoundFunctions.end() || bound->second.empty()) return false;
    entry = bound->second.front();
    return true;
}

}  // namespace ui
}  // namespace zeblua

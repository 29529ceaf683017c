// The mix-in through which node classes of this library keep Lua functions by operation name.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "zeblua/ui/src/LuaFunctionEntry.h"

struct lua_State;

namespace zeblua {
namespace ui {

// Mixed into a node class (LuaZebNode<T>), so it lives and dies with the node. Like a
// ZebBinder it leaves its registry references to the state: the node may outlive it.
class LuaBindableNode {
public:
    virtual ~LuaBindableNode();

    // Stores the function at reference (on L's universe) under name, releasing the one it
    // replaces. False only when L's universe has no known main thread; the caller then
    // still owns reference.
    virtual bool BindZEBOperation(lua_State* L, const std::string& name, int reference);

    // The state or the reference of the first entry under name; null or 0 without one.
    lua_State* GetZEBBoundLuaState(const std::string& name) const;
    int GetZEBBoundFunctionIndex(const std::string& name) const;

protected:
    // The first entry under name, copied: the call may rebind and free the map's vector.
    bool FindBound(const std::string& name, LuaFunctionEntry& entry) const;

    std::map<std::string, std::vector<LuaFunctionEntry>> mBoundFunctions;
};

}  // namespace ui
}  // namespace zeblua

// Binding, looking up and releasing the functions of a LuaBindery.
#include "zeblua/utility/src/LuaBindery.h"

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/utility/src/MainThread.h"

namespace zeblua {
namespace utility {

LuaBindery::LuaBindery(lua_State* L) : mState(GetMainThread(L)) {
    ZEB_ASSERT_MSG(mState != nullptr, "No main thread: open the library on it before binding");
    if (!mState) mState = L;
}

LuaBindery::~LuaBindery() {
    for (const auto& entry : mBoundFunctions)
        luaL_unref(mState, LUA_REGISTRYINDEX, entry.second);
}

bool LuaBindery::BindZEBOperation(lua_State* L) {
    // Everything that can raise comes before any C++ object lives in this frame.
    size_t nameLength = 0;
    const char* name = luaL_checklstring(L, 2, &nameLength);
    luaL_checktype(L, 3, LUA_TFUNCTION);
    const int reference = luaL_ref(L, LUA_REGISTRYINDEX); /* pops the top value */
    const int unowned = storeReference(name, nameLength, reference);
    luaL_unref(mState, LUA_REGISTRYINDEX, unowned); /* LUA_NOREF is ignored */
    return true;
}

int LuaBindery::storeReference(const char* name, size_t nameLength, int reference) noexcept {
    try {
        const auto inserted = mBoundFunctions.emplace(std::string(name, nameLength), reference);
        if (inserted.second) return LUA_NOREF;
        const int replaced = inserted.first->second;
        inserted.first->second = reference;
        return replaced;
    } catch (...) {
        return reference;
    }
}

bool LuaBindery::pushBoundFxn(const char* name) const {
    if (!name) return false;
    const auto found = mBoundFunctions.find(name);
    if (found == mBoundFunctions.end()) return false;
    lua_rawgeti(mState, LUA_REGISTRYINDEX, found->second);
    return true;
}

int BindZebOperationOn(lua_State* L, LuaBindery* target) {
    if (target) target->BindZEBOperation(L);
    return 0;
}

}  // namespace utility
}  // namespace zeblua

// The __gc of a wrapper that lives by value inside its userdata block.
#pragma once

#include <new>

#include "zeblua/utility/src/LuaProxy.h"

struct lua_State;

namespace zeblua {
namespace ui {

// Checks argument 1 against T's metatable and runs T's destructor in place. An empty T
// is left in the block, so a script's explicit second __gc releases nothing twice. As a
// copied finalizer (utility::IsCopiedFinalizer) it does nothing.
template <class T> int DoObjectBasedGC(lua_State* L) {
    if (utility::IsCopiedFinalizer(L, T::GetMetatableName())) return 0;
    T* object = static_cast<T*>(utility::CheckProxyBlock(L, 1, T::GetMetatableName()));
    object->~T();
    new (object) T();
    return 0;
}

}  // namespace ui
}  // namespace zeblua

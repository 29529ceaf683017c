// Strings that bindings look up on every call, made once per Lua state.
#pragma once

#include <cstddef>

#include "zeblua/utility/src/MainThread.h"

struct lua_State;

namespace zeblua {
namespace utility {

// lua_pushstring of a C string hashes it and compares it with the state's copy on every
// call. A key table made once per state and kept in the registry hands out the same
// string values with lua_rawgeti, hashing nothing. They are the very strings that
// lua_pushstring would give, so no table, metamethod or script can tell the difference.
//   const char* const kNames[] = {"x", "y"};
//   const InternedKeys sKeys(kNames);       // static storage: its address is its key
//   const int keys = sKeys.Push(L);         // "x" is lua_rawgeti(L, keys, 1)
class InternedKeys {
public:
    template <std::size_t N>
    constexpr explicit InternedKeys(const char* const (&names)[N])
        : mNames(names), mCount(static_cast<int>(N)) {}
    InternedKeys(const InternedKeys&) = delete;
    InternedKeys& operator=(const InternedKeys&) = delete;

    // Pushes the key table, names[i] at i + 1, and returns its absolute index. Can raise
    // a memory error only on the first call in a state, which makes the table, or when the
    // registry has lost the table's reference (see SelfReference).
    int Push(lua_State* L) const;

private:
    const char* const* mNames;
    int mCount;
    CachedRegistryReference mReference;  // the table's
};

}  // namespace utility
}  // namespace zeblua

// Registry tables of the library's own, keyed by the address of a native static.
#pragma once

struct lua_State;

namespace zeblua {
namespace utility {

// Light userdata keys cost no allocation to look up or clear, so what these helpers do to
// an existing table can run while a scope unwinds or a finalizer runs, without the risk of
// a Lua memory error.

// Pushes registry[lightud(key)], or nil when it was never made. Raises no Lua error.
void PushRegistryTable(lua_State* L, const void* key);

// Pushes registry[lightud(key)], making it when missing. mode is its "__mode" ("k", "v")
// or null. With onClose, the table's metatable also holds a sentinel userdata whose own
// metatable no script can reach: it is collected with the table, that is only by lua_close,
// which runs every finalizer before it frees anything, so onClose then finds the table
// whole, whatever scripts have done to the library's public metatables.
void PushOrMakeRegistryTable(lua_State* L, const void* key, const char* mode,
                             int (*onClose)(lua_State*));

// A table that names itself in the registry by an integer reference keeps it at
// table[slot]. Lua 5.1 can lose sight of integer keys of a table whose resize ran out of
// memory, the registry's among them, so such a reference is checked before it is trusted.
// HeldSelfReference: the reference, when the registry still holds the table at tableIndex
// under it; else LUA_NOREF. Raises no Lua error.
int HeldSelfReference(lua_State* L, int tableIndex, int slot);
// SelfReference: the held reference, or a new one stored at table[slot] (an array slot the
// table already has, so storing it allocates nothing). Raises a memory error only when it
// makes one.
int SelfReference(lua_State* L, int tableIndex, int slot);

// Pops a key and clears that field of the table at tableIndex (absolute) if it is set.
// Setting nil on a present key never allocates; on an absent one it could.
void ClearPresentField(lua_State* L, int tableIndex);

}  // namespace utility
}  // namespace zeblua

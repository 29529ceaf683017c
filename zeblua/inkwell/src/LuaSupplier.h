// zebSupplierInterface: suppliers handed to scripts only to be handed back to native code.
#pragma once

struct lua_State;

namespace zebui {
namespace inkwell {
class SupplierInterface;
}
}  // namespace zebui

namespace zeblua {
namespace inkwell {

extern const char* const kZebLuaUSupplierInterfaceClassName;  // "zebSupplierInterface"
extern const char* const
    kZebLuaUSupplierInterfaceMetaTableName;  // "zeblua.inkwell.zebSupplierInterface"

// Pushes a proxy that lends supplier (which may be null); returns 1. Suppliers outlive
// every script, so the proxy never lets go of anything.
int PushSupplierToLua(lua_State* L, const zebui::inkwell::SupplierInterface* supplier);

// The supplier of the proxy at index, or Lua's type error.
const zebui::inkwell::SupplierInterface* zeblua_checkSupplier(lua_State* L, int index);

// Registers the metatable and the empty global table zebSupplierInterface; returns 1.
int luaopen_zebluaSupplier(lua_State* L);

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebSupplier(lua_State* L);

// PenInterface: pens that scripts make and keep across draw callbacks.
#pragma once

struct lua_State;

namespace zebui {
namespace inkwell {
class PenInterface;
}
}  // namespace zebui

namespace zeblua {
namespace inkwell {

extern const char* const kZebLuaPenInterfaceClassName;      // "PenInterface"
extern const char* const kZebLuaPenInterfaceMetaTableName;  // "zeblua.inkwell.PenInterface"

// The payload of the pen proxy at index: the pen, null once released.
zebui::inkwell::PenInterface** zeblua_checkPenInterface(lua_State* L, int index);

// False, after the report "Attempting to use an out-of-scope PenInterface", for a released
// pen; the caller then returns no value.
bool PenInScope(const zebui::inkwell::PenInterface* pen);

}  // namespace inkwell
}  // namespace zeblua

// Registers the metatable and the global table PenInterface with its constants; returns 1.
extern "C" int luaopen_zeblua_inkwell_PenInterface(lua_State* L);

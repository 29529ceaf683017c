// OSDataTransfer: custom data type registration and the drag cursor policy.
#pragma once

struct lua_State;

namespace zeblua {
namespace datatransfer {

extern const char* const kZebLuaOSDataTransferClassName;  // "OSDataTransfer"
extern const char* const
    kZebLuaOSDataTransferMetaTableName;  // "zeblua.datatransfer.OSDataTransfer"

}  // namespace datatransfer
}  // namespace zeblua

// Registers the (empty) metatable and the global table OSDataTransfer; returns 1.
extern "C" int luaopen_zeblua_datatransfer_OSDataTransfer(lua_State* L);

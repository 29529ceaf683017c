// OSSendData: data that scripts compose and put on the clipboard or drag.
#pragma once

struct lua_State;

namespace zebui {
namespace datatransfer {
class OS_SendData;
}  // namespace datatransfer
}  // namespace zebui

namespace zeblua {
namespace datatransfer {

extern const char* const kZebLuaOSSendDataClassName;      // "OSSendData"
extern const char* const kZebLuaOSSendDataMetaTableName;  // "zeblua.datatransfer.OSSendData"

// The send proxy's block: the send object, which the proxy always owns; null after
// Release or __gc.
zebui::datatransfer::OS_SendData** zeblua_checkOSSendData(lua_State* L, int index);

}  // namespace datatransfer
}  // namespace zeblua

// Registers the metatable and the global table OSSendData with the drop effects and the
// two built-in type names; returns 1.
extern "C" int luaopen_zeblua_datatransfer_OSSendData(lua_State* L);

// OSReceiveData: what the clipboard or a drag carries, read by scripts.
#pragma once

#include "zeblua/utility/src/LuaProxy.h"

struct lua_State;

namespace zebui {
namespace datatransfer {
class OS_ReceiveDataBase;
}  // namespace datatransfer
}  // namespace zebui

namespace zeblua {
namespace datatransfer {

extern const char* const kZebLuaOSReceiveDataClassName;      // "OSReceiveData"
extern const char* const kZebLuaOSReceiveDataMetaTableName;  // "zeblua.datatransfer.OSReceiveData"

// The receive proxy's block: `object` is the native data, null once released or emptied;
// `owned` alone decides whether __gc deletes it. The data is only ever touched while the
// pointer is not null, so a proxy whose data has gone stays a harmless value.
using OSReceiveDataProxy = utility::OwnedPointer<zebui::datatransfer::OS_ReceiveDataBase>;

// Pushes a proxy on data that owns it (a caller that lends data sets owned to false or
// empties the proxy with ReleaseReceiveData before the data goes), stores the proxy in
// *outProxy when outProxy is not null, and returns 1. Opens the module first if its
// metatable is missing. May raise Lua's memory error, before data is held by anything.
int PushReceiveDataToLua(lua_State* L, zebui::datatransfer::OS_ReceiveDataBase* data,
                         OSReceiveDataProxy** outProxy);

// Empties the proxy: its data pointer becomes null and nothing is deleted.
void ReleaseReceiveData(OSReceiveDataProxy* proxy);

// luaL_checkudata on the receive data metatable.
OSReceiveDataProxy* zeblua_checkOSReceiveData(lua_State* L, int index);

}  // namespace datatransfer
}  // namespace zeblua

// Registers the metatable and the global table OSReceiveData; returns 1.
extern "C" int luaopen_zeblua_datatransfer_OSReceiveData(lua_State* L);

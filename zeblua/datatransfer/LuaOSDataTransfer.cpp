// OSDataTransfer: RegisterCustomDataType and SetDefaultCursorSupport.
#include "zeblua/datatransfer/LuaOSDataTransfer.h"

#include <lua.hpp>

#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/datatransfer/DataTypes.h"

namespace zeblua {
namespace datatransfer {

namespace {

constexpr char kDataTransferClass[] = "OSDataTransfer";
constexpr char kDataTransferMetaTable[] = "zeblua.datatransfer.OSDataTransfer";

// -- OSDataTransfer.RegisterCustomDataType(name)
// The name ends at its first zero byte.
int dtRegisterCustomDataType(lua_State* L) {
    const char* name = luaL_checklstring(L, 1, nullptr);
    return utility::RunNative(L, "RegisterCustomDataType", [&] {
        zebui::datatransfer::RegisterCustomDataType(zebcore::utility::UTF8to16(name));
        return 0;
    });
}

// -- OSDataTransfer.SetDefaultCursorSupport(enabled)
int dtSetDefaultCursorSupport(lua_State* L) {
    zebui::datatransfer::SetDefaultCursorSupport(lua_toboolean(L, 1) != 0);
    return 0;
}

const luaL_Reg kDataTransferFunctions[] = {
    {"RegisterCustomDataType", dtRegisterCustomDataType},
    {"SetDefaultCursorSupport", dtSetDefaultCursorSupport},
    {nullptr, nullptr},
};

// No userdata carries this metatable; it is registered for the module's shape alone.
const luaL_Reg kDataTransferMethods[] = {{nullptr, nullptr}};

}  // namespace

const char* const kZebLuaOSDataTransferClassName = kDataTransferClass;
const char* const kZebLuaOSDataTransferMetaTableName = kDataTransferMetaTable;

}  // namespace datatransfer
}  // namespace zeblua

extern "C" int luaopen_zeblua_datatransfer_OSDataTransfer(lua_State* L) {
    using namespace zeblua::datatransfer;
    zeblua::utility::RegisterClassModule(L, kDataTransferMetaTable, kDataTransferMethods,
                                         kDataTransferClass, kDataTransferFunctions);
    return 1;
}

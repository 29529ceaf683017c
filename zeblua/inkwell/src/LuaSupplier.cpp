// zebSupplierInterface: supplier proxies, lent and never owned.
#include "zeblua/inkwell/src/LuaSupplier.h"

#include <lua.hpp>

#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaProxy.h"
#include "zebui/inkwell/SupplierInterface.h"

namespace zeblua {
namespace inkwell {

namespace {

constexpr char kSupplierClass[] = "zebSupplierInterface";
constexpr char kSupplierMetaTable[] = "zeblua.inkwell.zebSupplierInterface";

using zebui::inkwell::SupplierInterface;

struct SupplierProxy {
    using Object = const SupplierInterface;
    static constexpr const char* kMetatableName = kSupplierMetaTable;
    static constexpr const char* kDisplayName = "zebSupplierInterface";
};

const luaL_Reg kSupplierFunctions[] = {{nullptr, nullptr}};

// "%p" shows the userdata, not the supplier.
const luaL_Reg kSupplierMethods[] = {
    {"__gc", utility::NothingGC},
    {"__tostring", utility::Block2string<SupplierProxy>},
    {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaUSupplierInterfaceClassName = kSupplierClass;
const char* const kZebLuaUSupplierInterfaceMetaTableName = kSupplierMetaTable;

int PushSupplierToLua(lua_State* L, const SupplierInterface* supplier) {
    utility::PushPointerProxy(L, supplier, kSupplierMetaTable, luaopen_zebluaSupplier);
    return 1;
}

const SupplierInterface* zeblua_checkSupplier(lua_State* L, int index) {
    return utility::CheckProxyPointer<const SupplierInterface>(L, index, kSupplierMetaTable);
}

int luaopen_zebluaSupplier(lua_State* L) {
    utility::RegisterClassModule(L, kSupplierMetaTable, kSupplierMethods, kSupplierClass,
                                 kSupplierFunctions);
    return 1;
}

}  // namespace inkwell
}  // namespace zeblua

extern "C" int luaopen_zeblua_inkwell_zebSupplier(lua_State* L) {
    return zeblua::inkwell::luaopen_zebluaSupplier(L);
}

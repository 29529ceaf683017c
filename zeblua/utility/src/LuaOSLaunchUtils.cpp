// OSLaunchUtils: the address goes to the system as a URL object; one that does not form a
// URL opens nothing, and no call answers anything.
#include "zeblua/utility/src/LuaOSLaunchUtils.h"

#include <lua.hpp>

#include "os/CoreFoundation.h"
#include "os/LaunchServices.h"
#include "zebcore/utility/OSBridge.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RunNative.h"

namespace zeblua {
namespace utility {

namespace {

constexpr char kLaunchClass[] = "OSLaunchUtils";
constexpr char kLaunchMetaTable[] = "zeblua.OSLaunchUtils";

void openURL(const char* address) {
    const zebcore::UTF16String text = zebcore::utility::UTF8to16(zebcore::UTF8String(address));
    CFStringRef string = zebcore::utility::ZEBtoMAC(text);
    CFURLRef url = CFURLCreateWithString(nullptr, string, nullptr);
    if (string) CFRelease(string);
    if (!url) return;
    LSOpenCFURLRef(url, nullptr);
    CFRelease(url);
}

// -- OSLaunchUtils.OpenURLInDefaultBrowser(url)
int launchOpenURL(lua_State* L) {
    const char* address = luaL_checkstring(L, 1);
    return RunNative(L, "OpenURLInDefaultBrowser", [&] {
        openURL(address);
        return 0;
    });
}

const luaL_Reg kLaunchFunctions[] = {
    {"OpenURLInDefaultBrowser", launchOpenURL},
    {nullptr, nullptr},
};

const luaL_Reg kLaunchMethods[] = {
    {nullptr, nullptr},
};

}  // namespace

const char* const kZebLuaOSLaunchUtilsClassName = kLaunchClass;
const char* const kZebLuaOSLaunchUtilsMetaTableName = kLaunchMetaTable;

}  // namespace utility
}  // namespace zeblua

extern "C" int luaopen_zeblua_OSLaunchUtils(lua_State* L) {
    using namespace zeblua::utility;
    RegisterClassModule(L, kLaunchMetaTable, kLaunchMethods, kLaunchClass, kLaunchFunctions);
    return 1;
}

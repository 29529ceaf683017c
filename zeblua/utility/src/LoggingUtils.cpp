// zebLogging: doLogMessage hands a script's text to the host log.
#include "zeblua/utility/src/LoggingUtils.h"

#include <cstddef>

#include <lua.hpp>

#include "zebcore/debug/HostLog.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/utility/src/LuaModule.h"

namespace zeblua {
namespace LoggingUtils {
namespace {

// Returns before the caller's frame could raise; a failing sink loses only its message.
void logText(const char* text, size_t length) noexcept {
    try {
        zebcore::debug::LogMessage(zebcore::utility::UTF8to16(zebcore::UTF8String(text, length)));
    } catch (...) {
    }
}

// -- zebLogging.doLogMessage(text)
// The text is the last argument (index -1), not the first. With no argument at all,
// -1 would name the slot below the frame, so the check names argument 1 instead.
int doLogMessage(lua_State* L) {
    size_t length = 0;
    const char* text = luaL_checklstring(L, lua_gettop(L) == 0 ? 1 : -1, &length);
    logText(text, length);
    return 0;
}

const luaL_Reg kLoggingFunctions[] = {{"doLogMessage", doLogMessage}, {nullptr, nullptr}};

}  // namespace

int InitLua(lua_State* L) {
    utility::RegisterFunctionModule(L, "zebLogging", kLoggingFunctions);
    return 1;
}

}  // namespace LoggingUtils
}  // namespace zeblua

extern "C" int luaopen_zeblua_zebLogging(lua_State* L) {
    return zeblua::LoggingUtils::InitLua(L);
}

// State set-up shared by zebhost and the tests.
#include "host/src/Session.h"

#include <dlfcn.h>

#include <lua.hpp>

#include "host/src/HostFunctions.h"
#include "zebcore/config/Localizer.h"
#include "zebcore/filesupport/CommonDirs.h"
#include "zeblua/utility/src/ZebLua.h"

namespace zebhost {

const char* const kScriptLayerModule = "zebhost.layer";

std::string LoadedModuleDir() {
    Dl_info info{};
    if (!dladdr(reinterpret_cast<void*>(&luaopen_zeblua), &info) || !info.dli_fname)
        return std::string();
    const std::string path = info.dli_fname;
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? std::string(".") : path.substr(0, slash);
}

namespace {

// Runs f under lua_pcall so that a Lua error during set-up becomes a message.
bool protectedCall(lua_State* L, lua_CFunction f, void* data, std::string& error) {
    lua_pushcfunction(L, f);
    lua_pushlightuserdata(L, data);
    if (lua_pcall(L, 1, 0, 0) == 0) return true;
    const char* message = lua_tostring(L, -1);
    error = message ? message : "(error object is not a string)";
    lua_pop(L, 1);
    return false;
}

int openAll(lua_State* L) {
    const auto* options = static_cast<const SessionOptions*>(lua_touserdata(L, 1));
    lua_settop(L, 0);
    luaL_openlibs(L);

    // require "zeblua.X" must reach the very zeblua.so this process already holds.
    lua_getglobal(L, "package");
    lua_pushfstring(L, "%s/?.so;", options->moduleDir.c_str());
    lua_getfield(L, -2, "cpath");
    lua_concat(L, 2);
    lua_setfield(L, -2, "cpath");
    lua_pop(L, 1);

    zeblua::InitLua(L);
    lua_settop(L, 0);
    if (zeblua::InitEmbeddedCodeLoader(L) != 0) lua_error(L);

    // The native services first, so the script layer can build on them.
    OpenHostFunctions(L);
    lua_getglobal(L, "require");
    lua_pushstring(L, kScriptLayerModule);
    lua_call(L, 1, 0);
    return 0;
}

}  // namespace

bool OpenSession(lua_State* L, const SessionOptions& options, std::string& error) {
    namespace fs = zebcore::filesupport;
    fs::commondirs::SetResourcesDir(fs::Dir(zebcore::utility::UTF8to16(options.resourcesDir)));
    zebcore::config::Localizer::Get()->SetLanguage(options.language);
    SessionOptions resolved = options;
    if (resolved.moduleDir.empty()) resolved.moduleDir = LoadedModuleDir();
    return protectedCall(L, openAll, &resolved, error);
}

}  // namespace zebhost

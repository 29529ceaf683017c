// zebhost: runs a Lua script on the headless platform.
#include <cstdio>
#include <cstring>
#include <string>

#include <lua.hpp>

#include "host/src/HostLoop.h"
#include "host/src/HostLuaHeap.h"
#include "host/src/Session.h"
#include "zebcore/debug/HostLog.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/utility/src/RunningScript.h"

namespace {

const char* const kUsage =
    "usage: zebhost [options] script.lua [args...]\n"
    "\n"
    "Runs script.lua in a Lua 5.1 state opened with the zeblua library, the embedded\n"
    "code searcher (require finds \"lua\" resources) and the host's script layer.\n"
    "The script's arguments are in the global table arg, as with lua5.1.\n"
    "After the main chunk the event loop runs on a virtual clock, until no timer is\n"
    "left or the script calls zebhost.quit().\n"
    "\n"
    "options:\n"
    "  --resources DIR   the application's resources folder (default: the host's own)\n"
    "  --lang LANG       language of localized texts, read from DIR/loc/LANG.loc (default: en)\n"
    "  --run-for MS      run the event loop for MS milliseconds of virtual time instead\n"
    "  --help            show this text\n";

// Adds a traceback to a script error, as the stand-alone interpreter does.
int traceback(lua_State* L) {
    lua_getglobal(L, "debug");
    lua_getfield(L, -1, "traceback");
    lua_pushvalue(L, 1);
    lua_pushinteger(L, 2);
    lua_call(L, 2, 1);
    return 1;
}

int runScript(lua_State* L, const char* path, int argc, char** argv, int scriptIndex) {
    lua_createtable(L, argc - scriptIndex, scriptIndex + 1);
    for (int i = 0; i < argc; ++i) {
        lua_pushstring(L, argv[i]);
        lua_rawseti(L, -2, i - scriptIndex);
    }
    lua_setglobal(L, "arg");

    lua_pushcfunction(L, traceback);
    if (luaL_loadfile(L, path) != 0) {
        std::fprintf(stderr, "zebhost: %s\n", lua_tostring(L, -1));
        return 1;
    }
    for (int i = scriptIndex + 1; i < argc; ++i)
        lua_pushstring(L, argv[i]);
    // A report from native code names the script's line while the script runs.
    const zeblua::utility::RunningScript running(L, zeblua::utility::RunningScript::kAtReport);
    if (lua_pcall(L, argc - scriptIndex - 1, 0, 1) != 0) {
        const char* message = lua_tostring(L, -1);
        std::fprintf(stderr, "zebhost: %s\n", message ? message : "(error object is not a string)");
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    zebhost::SessionOptions options;
    options.resourcesDir = ZEBHOST_DEFAULT_RESOURCES;
    int scriptIndex = 0;
    long long runForMs = -1;  // until idle
    for (int i = 1; i < argc && scriptIndex == 0; ++i) {
        const std::string option = argv[i];
        if (option == "--help" || option == "-h") {
            std::fputs(kUsage, stdout);
            return 0;
        } else if ((option == "--resources" || option == "--lang" || option == "--run-for") &&
                   i + 1 == argc) {
            std::fprintf(stderr, "zebhost: missing value for %s\n\n%s", argv[i], kUsage);
            return 2;
        } else if (option == "--resources" || option == "--lang") {
            (option == "--lang" ? options.language : options.resourcesDir) = argv[++i];
        } else if (option == "--run-for") {
            if (!zebhost::ParseRunFor(argv[++i], runForMs)) {
                std::fprintf(stderr, "zebhost: bad --run-for value %s\n\n%s", argv[i], kUsage);
                return 2;
            }
        } else if (option.rfind("--", 0) == 0) {
            std::fprintf(stderr, "zebhost: unknown option %s\n\n%s", argv[i], kUsage);
            return 2;
        } else {
            scriptIndex = i;
        }
    }
    if (scriptIndex == 0) {
        std::fputs(kUsage, stderr);
        return 2;
    }

    zebcore::debug::SetLogSink([](const zebcore::UTF16String& message) {
        std::fprintf(stderr, "zebhost log: %s\n", zebcore::utility::UTF16to8(message).c_str());
    });

    lua_State* L = zebhost::NewHostState();
    if (!L) {
        std::fputs("zebhost: out of memory\n", stderr);
        return 1;
    }
    std::string error;
    int status = 1;
    if (!zebhost::OpenSession(L, options, error))
        std::fprintf(stderr, "zebhost: cannot open the session: %s\n", error.c_str());
    else
        status = runScript(L, argv[scriptIndex], argc, argv, scriptIndex);
    if (status == 0) status = zebhost::RunEventLoop(runForMs);
    zebhost::CloseHostState(L);
    return status;
}

// Lua chunks held as application resources of type "lua".
#include "zeblua/utility/src/EmbeddedCodeLoader.h"

#include <algorithm>
#include <string>
#include <vector>

#include <lua.hpp>

#include "vex/app/App.h"
#include "xukernel/XuLua.h"
#include "zeblua/utility/src/MainThread.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/utility/ResourceManager.h"

namespace zeblua {
namespace {

// Reads the resource for a module name into bytes; false when there is none. Kept
// apart from the Lua frame so that its strings are gone before any Lua call.
bool loadModuleBytes(const char* moduleName, std::vector<unsigned char>& bytes) {
    std::string resourceName(moduleName);
    std::replace(resourceName.begin(), resourceName.end(), '.', '_');
    const zebcore::UTF16String name = zebcore::utility::AsciiToUTF16(resourceName);
    const zebcore::UTF16String type = u"lua";
    // A resource above the resource limit is refused (and reported) as if it were missing.
    return vex::app::App::GetApp()->GetAppResourceManager()->LoadResourceBytes(name, type, bytes);
}

}  // namespace

int DoLoadEmbeddedCode(lua_State* L) {
    const char* moduleName = luaL_checklstring(L, 1, nullptr);
    // The bytes live only inside RunNative, which also stops what the look-up throws.
    const int status = utility::RunNative(L, "EmbeddedCodeLoader", [&] {
        std::vector<unsigned char> bytes;
        if (!loadModuleBytes(moduleName, bytes)) return -1;
        lua_pushvalue(L, LUA_GLOBALSINDEX);
        // Nothing here raises: the load runs protected and the pushes allocate nothing.
        return XuLua_loadChunkFromBuffer(L, reinterpret_cast<const char*>(bytes.data()),
                                         bytes.size(), moduleName);
    });
    if (status < 0) return 0;  // no such resource: require goes on to its message
    if (status == 0) return 1;
    // A chunk that is there but does not load is an error, raised as Lua's own file
    // searcher raises it, so the script author reads the syntax error and its line.
    luaL_gsub(L, moduleName, ".", "_");
    return luaL_error(L, "error loading module '%s' from resource '%s':\n\t%s", moduleName,
                      lua_tostring(L, -1), lua_tostring(L, -2));
}

}  // namespace zeblua

extern "C" int luaopen_zeblua_EmbeddedCodeLoader(lua_State* L) {
    zeblua::utility::RecordMainThread(L);
    lua_pushcclosure(L, zeblua::DoLoadEmbeddedCode, 0);
    return 1;
}

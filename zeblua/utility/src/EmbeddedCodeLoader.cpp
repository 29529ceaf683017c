// Lua chunks held as application resources of type "lua".
#include "zeblua/utility/src/EmbeddedCodeLoader.h"

#include <algorithm>
#include <string>
#include <vector>

#include <lua.hpp>

#include "vex/app/App.h"
#include "xukernel/XuLua.h"
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
    const auto* manager = vex::app::App::GetApp()->GetAppResourceManager();
    if (!manager->ResourceExists(name, type)) return false;
    manager->LoadResourceBytes(name, type, bytes);
    return true;
}

}  // namespace

int DoLoadEmbeddedCode(lua_State* L) {
    const char* moduleName = luaL_checklstring(L, 1, nullptr);
    // The bytes live only inside RunNative, which also stops what the look-up throws.
    return utility::RunNative(L, "EmbeddedCodeLoader", [&] {
        std::vector<unsigned char> bytes;
        if (!loadModuleBytes(moduleName, bytes)) return 0;
        lua_pushvalue(L, LUA_GLOBALSINDEX);
        // A load error is no Lua error here: the message stands where the chunk would.
        // Nothing here raises: the load runs protected and the pushes allocate nothing.
        XuLua_loadChunkFromBuffer(L, reinterpret_cast<const char*>(bytes.data()), bytes.size(),
                                  moduleName);
        return 1;
    });
}

}  // namespace zeblua

extern "C" int luaopen_zeblua_EmbeddedCodeLoader(lua_State* L) {
    lua_pushcclosure(L, zeblua::DoLoadEmbeddedCode, 0);
    return 1;
}

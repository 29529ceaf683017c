// Opens a Lua state the way zebhost does: standard libraries, the library's entry
// points, the embedded code searcher and the host's script layer.
#pragma once

#include <string>

struct lua_State;

namespace zebhost {

struct SessionOptions {
    std::string resourcesDir;  // the application's resources folder
    std::string moduleDir;     // folder of zeblua.so, prepended to package.cpath
    std::string language = "en";
};

// Folder of the loaded zeblua.so, found through one of its exported symbols.
std::string LoadedModuleDir();

// Opens everything on L. On failure returns false and sets error to the Lua message.
bool OpenSession(lua_State* L, const SessionOptions& options, std::string& error);

// Name of the script layer resource, required through the embedded searcher.
extern const char* const kScriptLayerModule;

}  // namespace zebhost

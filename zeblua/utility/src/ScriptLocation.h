// The folders in which Lua scripts live on disk.
#pragma once

#include <string>

#include "os/CoreFoundation.h"
#include "zebcore/filesupport/Dir.h"

namespace zeb {
namespace lua {
namespace utility {

// The library's own bundle identifier.
extern const char* const kZebLuaBundleIdentifier;

// Later GetLuaScriptsDir(name) calls resolve below dir; the empty Dir falls back to
// the application's resources folder.
void SetLuaScriptsDirOverride(const zebcore::filesupport::Dir& dir);

zebcore::filesupport::Dir GetProjectBaseDir();
// base/"scripts"/"lua" when base exists, whether or not that folder does; else the empty Dir.
zebcore::filesupport::Dir GetLuaScriptsDir(const zebcore::filesupport::Dir& base);
// The application script root / name. No test of existence.
zebcore::filesupport::Dir GetLuaScriptsDir(const std::string& name);
// The script root inside the library's own bundle / name, or the empty Dir.
zebcore::filesupport::Dir GetCommonLuaScriptsDir(const std::string& name);

}  // namespace utility
}  // namespace lua
}  // namespace zeb

namespace zebcore {
namespace utility {

// The bundle of that identifier, not retained; null when there is none.
CFBundleRef OS_GetCurrentModule(const char* identifier);

}  // namespace utility
}  // namespace zebcore

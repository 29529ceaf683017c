// Resolution and caching of the script folders.
#include "zeblua/utility/src/ScriptLocation.h"

#include "zebcore/filesupport/CommonDirs.h"
#include "zebcore/filesupport/File.h"
#include "zebcore/utility/OSBridge.h"

namespace zeb {
namespace lua {
namespace utility {

using zebcore::UTF16String;
using zebcore::filesupport::Dir;
using zebcore::filesupport::File;
using zebcore::utility::UTF8to16;

const char* const kZebLuaBundleIdentifier = "org.zeblua.zeblua";

namespace {

const UTF16String sScriptsDirName = u"scripts";
const UTF16String sScriptsLuaDirName = u"lua";
Dir sProjectRootDir;
Dir sLuaScriptsDir;
Dir sCommonLuaScriptsDir;

}  // namespace

void SetLuaScriptsDirOverride(const Dir& dir) {
    sLuaScriptsDir = dir;
}

Dir GetProjectBaseDir() {
    if (sProjectRootDir.FullPath().empty())
        sProjectRootDir = zebcore::filesupport::commondirs::ResourcesDir();
    return Dir(sProjectRootDir, UTF16String());
}

Dir GetLuaScriptsDir(const Dir& base) {
    if (!base.Exists()) return Dir();
    return Dir(Dir(base, sScriptsDirName), sScriptsLuaDirName);
}

Dir GetLuaScriptsDir(const std::string& name) {
    if (sLuaScriptsDir.FullPath().empty())
        sLuaScriptsDir = GetLuaScriptsDir(zebcore::filesupport::commondirs::ResourcesDir());
    return Dir(sLuaScriptsDir, UTF8to16(name));
}

Dir GetCommonLuaScriptsDir(const std::string& name) {
    if (sCommonLuaScriptsDir.FullPath().empty() || !sCommonLuaScriptsDir.Exists()) {
        UTF16String path;
        if (CFBundleRef bundle = zebcore::utility::OS_GetCurrentModule(kZebLuaBundleIdentifier)) {
            path = zebcore::utility::GetModulePath(bundle);
            const File module(path);
            if (module.Exists()) path = module.Parent().FullPath();
        } else {
            path = Dir(Dir(Dir::AppDir(), u"Frameworks"), u"zeblua.framework").FullPath();
        }
        sCommonLuaScriptsDir = GetLuaScriptsDir(Dir(Dir(path), u"Resources"));
    }
    if (!sCommonLuaScriptsDir.Exists()) return Dir();
    return Dir(sCommonLuaScriptsDir, UTF8to16(name));
}

}  // namespace utility
}  // namespace lua
}  // namespace zeb

namespace zebcore {
namespace utility {

CFBundleRef OS_GetCurrentModule(const char* identifier) {
    CFStringRef name = ZEBtoMAC(AsciiToUTF16(identifier ? identifier : ""));
    CFBundleRef bundle = CFBundleGetBundleWithIdentifier(name);
    CFRelease(name);
    return bundle;
}

}  // namespace utility
}  // namespace zebcore

// Per-language dictionaries read from the resources folder.
#include "zebcore/config/Localizer.h"

#include <cstring>
#include <fstream>

#include "zebcore/filesupport/CommonDirs.h"

namespace zebcore {
namespace config {

Localizer* Localizer::Get() {
    static Localizer sLocalizer;
    return &sLocalizer;
}

void Localizer::SetLanguage(const std::string& language) {
    mLanguage = language;
    mLoaded = false;
}

void Localizer::loadIfNeeded() {
    const std::string path =
        filesupport::commondirs::ResourcesDir().NativePath() + "/loc/" + mLanguage + ".loc";
    if (mLoaded && path == mLoadedFrom) return;
    mTable.clear();
    mLoaded = true;
    mLoadedFrom = path;
    std::ifstream in(path);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        const auto eq = line.find('=');
        if (line.empty() || line[0] == '#' || eq == std::string::npos) continue;
        mTable[line.substr(0, eq)] = line.substr(eq + 1);
    }
}

UTF16String Localizer::GetLocalizedString(const char* key) {
    if (!key) return UTF16String();
    loadIfNeeded();
    const char* eq = std::strchr(key, '=');
    const std::string path = eq ? std::string(key, eq) : std::string(key);
    const auto found = mTable.find(path);
    if (found != mTable.end()) return utility::UTF8to16(found->second);
    return utility::UTF8to16(eq ? std::string(eq + 1) : path);
}

}  // namespace config
}  // namespace zebcore

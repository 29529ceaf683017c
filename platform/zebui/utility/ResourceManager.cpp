// Resource lookup in folders of files.
#include "zebui/utility/ResourceManager.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "zebcore/debug/Debug.h"
#include "zebcore/filesupport/CommonDirs.h"
#include "zebui/utility/Cursor.h"

namespace zebui {
namespace utility {

using zebcore::filesupport::Dir;
using zebcore::utility::UTF16to8;

ResourceManager::ResourceManager(bool followsResourcesDir)
    : mFollowsResourcesDir(followsResourcesDir) {}

ResourceManager::ResourceManager(const char16_t* subFolder)
    : mFollowsResourcesDir(true), mSubFolder(subFolder ? subFolder : u"") {}

std::vector<Dir> ResourceManager::searchFolders() const {
    std::vector<Dir> folders(mFolders.rbegin(), mFolders.rend());
    // Read at each search: the host may move the resources folder.
    if (mFollowsResourcesDir)
        folders.push_back(Dir(zebcore::filesupport::commondirs::ResourcesDir(), mSubFolder));
    return folders;
}

std::string ResourceManager::FindResourcePath(const zebcore::UTF16String& name,
                                              const zebcore::UTF16String& type) const {
    const std::string leaf = UTF16to8(name);
    const std::string kind = UTF16to8(type);
    if (leaf.empty() || leaf.find('/') != std::string::npos) return std::string();
    for (const Dir& folder : searchFolders()) {
        if (folder.NativePath().empty()) continue;
        const std::string base = folder.NativePath() + "/" + kind + "/" + leaf;
        for (const std::string& candidate : {base + "." + kind, base}) {
            std::error_code ignored;
            if (std::filesystem::is_regular_file(candidate, ignored)) return candidate;
        }
    }
    return std::string();
}

bool ResourceManager::LoadResourceBytes(const zebcore::UTF16String& name,
                                        const zebcore::UTF16String& type,
                                        std::vector<unsigned char>& bytes) const {
    bytes.clear();
    const std::string path = FindResourcePath(name, type);
    if (path.empty()) return false;
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error) return false;
    const bool allowed = size <= kLargestResourceBytes;
    ZEB_ASSERT_MSG(allowed, "resource file larger than the resource limit");
    if (!allowed) return false;
    std::ifstream in(path, std::ios::binary);
    bytes.resize(static_cast<std::size_t>(size));
    in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
    // A file that changed under us keeps what was read; one that cannot be read is none.
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return !in.bad();
}

bool ResourceManager::ResourceExists(const zebcore::UTF16String& name,
                                     const zebcore::UTF16String& type) const {
    return !FindResourcePath(name, type).empty();
}

void ResourceManager::DisplayCursor(int cursorID) const {
    DisplayResourceCursor(*this, cursorID);
}

void ResourceManager::AddFolder(const Dir& folder) {
    mFolders.push_back(folder);
}

void ResourceManager::RemoveFolder(const Dir& folder) {
    mFolders.erase(
        std::remove_if(mFolders.begin(), mFolders.end(),
                       [&](const Dir& d) { return d.NativePath() == folder.NativePath(); }),
        mFolders.end());
}

}  // namespace utility
}  // namespace zebui

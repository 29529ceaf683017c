// Named, typed resources backed by folders of real files.
#pragma once

#include <vector>

#include "zebcore/filesupport/Dir.h"

namespace zebui {
namespace utility {

// A resource (name, type) is the file <folder>/<type>/<name>.<type>, or failing
// that <folder>/<type>/<name>. Added folders are searched first, newest first;
// then the application's resources folder if this manager follows it.
class ResourceManager {
public:
    explicit ResourceManager(bool followsResourcesDir = true);
    virtual ~ResourceManager() = default;

    // Fills bytes with the whole resource; false (bytes cleared) when there is none.
    virtual bool LoadResourceBytes(const zebcore::UTF16String& name,
                                   const zebcore::UTF16String& type,
                                   std::vector<unsigned char>& bytes) const;
    virtual bool ResourceExists(const zebcore::UTF16String& name,
                                const zebcore::UTF16String& type) const;

    // The file that holds the resource, or "" when there is none.
    std::string FindResourcePath(const zebcore::UTF16String& name,
                                 const zebcore::UTF16String& type) const;

    void AddFolder(const zebcore::filesupport::Dir& folder);
    void RemoveFolder(const zebcore::filesupport::Dir& folder);

private:
    std::vector<zebcore::filesupport::Dir> searchFolders() const;

    std::vector<zebcore::filesupport::Dir> mFolders;
    bool mFollowsResourcesDir;
};

}  // namespace utility
}  // namespace zebui

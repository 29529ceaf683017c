// Named, typed resources backed by folders of real files.
#pragma once

#include <cstdint>
#include <vector>

#include "zebcore/filesupport/Dir.h"

namespace zebui {
namespace utility {

// A resource file is read whole, so a larger one is refused with a report.
constexpr std::uintmax_t kLargestResourceBytes = std::uintmax_t(64) << 20;

// A resource (name, type) is the file <folder>/<type>/<name>.<type>, or failing
// that <folder>/<type>/<name>. Added folders are searched first, newest first;
// then the application's resources folder (or a sub-folder of it) if this manager
// follows it.
class ResourceManager {
public:
    explicit ResourceManager(bool followsResourcesDir = true);
    // Follows <resources folder>/<subFolder>: the resources of one part of the
    // application, apart from the others'. A pointer, not a string, so that a literal
    // cannot fall to the bool constructor.
    explicit ResourceManager(const char16_t* subFolder);
    virtual ~ResourceManager() = default;

    // Fills bytes with the whole resource; false (bytes cleared) when there is none, or when
    // it is larger than kLargestResourceBytes (reported) or cannot be read.
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

    // Shows the cursor of this manager numbered cursorID (zebui/utility/Cursor.h).
    virtual void DisplayCursor(int cursorID) const;

private:
    std::vector<zebcore::filesupport::Dir> searchFolders() const;

    std::vector<zebcore::filesupport::Dir> mFolders;
    bool mFollowsResourcesDir;
    zebcore::UTF16String mSubFolder;  // empty: the resources folder itself
};

}  // namespace utility
}  // namespace zebui

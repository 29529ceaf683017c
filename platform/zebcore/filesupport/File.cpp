// File paths over the POSIX file system.
#include "zebcore/filesupport/File.h"

#include <filesystem>

namespace zebcore {
namespace filesupport {

File::File(const Dir& parent, const UTF16String& name)
    : mPath(parent.NativePath().empty() ? utility::UTF16to8(name)
                                        : parent.NativePath() + "/" + utility::UTF16to8(name)) {}

bool File::Exists() const {
    std::error_code ignored;
    return !mPath.empty() && std::filesystem::is_regular_file(mPath, ignored);
}

Dir File::Parent() const {
    return Dir(FullPath()).Parent();
}

}  // namespace filesupport
}  // namespace zebcore

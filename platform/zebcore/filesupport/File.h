// A file by full path.
#pragma once

#include "zebcore/filesupport/Dir.h"

namespace zebcore {
namespace filesupport {

class File {
public:
    File() = default;
    explicit File(const UTF16String& fullPath) : mPath(utility::UTF16to8(fullPath)) {}
    File(const Dir& parent, const UTF16String& name);

    UTF16String FullPath() const { return utility::UTF8to16(mPath); }
    const std::string& NativePath() const { return mPath; }
    bool Exists() const;
    Dir Parent() const;

private:
    std::string mPath;
};

}  // namespace filesupport
}  // namespace zebcore

// A folder by full path; the default Dir is the empty Dir, whose FullPath() is "".
#pragma once

#include "zebcore/utility/Strings.h"

namespace zebcore {
namespace filesupport {

class Dir {
public:
    Dir() = default;
    explicit Dir(const UTF16String& fullPath);
    // parent/name; an empty name gives the parent's own path, an empty parent gives name.
    Dir(const Dir& parent, const UTF16String& name);

    UTF16String FullPath() const;
    const std::string& NativePath() const { return mPath; }
    bool Exists() const;
    // The folder above; the empty Dir for a path without a separator.
    Dir Parent() const;

    // The folder of the running program.
    static Dir AppDir();

private:
    std::string mPath;  // UTF-8, without a trailing separator except for "/"
};

}  // namespace filesupport
}  // namespace zebcore

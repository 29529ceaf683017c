// Folder paths over the POSIX file system.
#include "zebcore/filesupport/Dir.h"

#include <filesystem>

namespace zebcore {
namespace filesupport {
namespace {

std::string trimSeparator(std::string path) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

}  // namespace

Dir::Dir(const UTF16String& fullPath) : mPath(trimSeparator(utility::UTF16to8(fullPath))) {}

Dir::Dir(const Dir& parent, const UTF16String& name) {
    const std::string leaf = utility::UTF16to8(name);
    if (leaf.empty())
        mPath = parent.mPath;
    else if (parent.mPath.empty())
        mPath = trimSeparator(leaf);
    else if (parent.mPath == "/")
        mPath = trimSeparator("/" + leaf);
    else
        mPath = trimSeparator(parent.mPath + "/" + leaf);
}

UTF16String Dir::FullPath() const {
    return utility::UTF8to16(mPath);
}

bool Dir::Exists() const {
    std::error_code ignored;
    return !mPath.empty() && std::filesystem::is_directory(mPath, ignored);
}

Dir Dir::Parent() const {
    const auto slash = mPath.rfind('/');
    if (slash == std::string::npos) return Dir();
    return Dir(utility::UTF8to16(slash == 0 ? std::string("/") : mPath.substr(0, slash)));
}

Dir Dir::AppDir() {
    std::error_code ignored;
    const auto exe = std::filesystem::read_symlink("/proc/self/exe", ignored);
    return Dir(utility::UTF8to16(exe.parent_path().string()));
}

}  // namespace filesupport
}  // namespace zebcore

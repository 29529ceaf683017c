// The application's well-known folders.
#include "zebcore/filesupport/CommonDirs.h"

namespace zebcore {
namespace filesupport {
namespace commondirs {
namespace {

Dir& resourcesDir() {
    static Dir sResourcesDir = Dir(Dir::AppDir(), u"resources");
    return sResourcesDir;
}

}  // namespace

Dir ResourcesDir() {
    return resourcesDir();
}

void SetResourcesDir(const Dir& dir) {
    resourcesDir() = dir;
}

}  // namespace commondirs
}  // namespace filesupport
}  // namespace zebcore

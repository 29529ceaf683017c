// Well-known folders of the application.
#pragma once

#include "zebcore/filesupport/Dir.h"

namespace zebcore {
namespace filesupport {
namespace commondirs {

// The application's resources folder; the host sets it, and until then it is
// "resources" beside the program.
Dir ResourcesDir();
void SetResourcesDir(const Dir& dir);

}  // namespace commondirs
}  // namespace filesupport
}  // namespace zebcore

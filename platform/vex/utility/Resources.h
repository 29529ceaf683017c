// The application framework's own resources, apart from the toolkit's and the
// application's.
#pragma once

namespace zebui {
namespace utility {
class InkwellImageResourceCache;
class ResourceManager;
}  // namespace utility
}  // namespace zebui

namespace vex {
namespace utility {

// The sub-folder "vex" of the resources folder, and the images decoded from it. Both live
// as long as the process.
zebui::utility::ResourceManager* GetResourceManager();
zebui::utility::InkwellImageResourceCache* GetInkwellImageCache();

}  // namespace utility
}  // namespace vex

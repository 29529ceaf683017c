// The application framework's resources.
#include "vex/utility/Resources.h"

#include "zebui/utility/InkwellImageResourceCache.h"
#include "zebui/utility/ResourceManager.h"

namespace vex {
namespace utility {

// Never destroyed, so that nothing made at static teardown finds them gone.
zebui::utility::ResourceManager* GetResourceManager() {
    static auto* sResources = new zebui::utility::ResourceManager(u"vex");
    return sResources;
}

zebui::utility::InkwellImageResourceCache* GetInkwellImageCache() {
    static auto* sImages = new zebui::utility::InkwellImageResourceCache;
    return sImages;
}

}  // namespace utility
}  // namespace vex

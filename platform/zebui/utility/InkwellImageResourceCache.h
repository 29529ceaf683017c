// Images decoded from resources, kept for every later use of the same name.
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/Strings.h"
#include "zebui/inkwell/ImageInterface.h"

namespace zebui {
namespace inkwell {
class SupplierInterface;
}  // namespace inkwell

namespace utility {

class ResourceManager;

// The kinds of image file a resource may be. The headless toolkit decodes PNG only.
enum ImageFileType : int {
    kImageFileType_Unknown = 0,
    kImageFileType_PNG = 1,  // resource type "png"
};

// Holds one reference on each image it decoded, by manager, supplier, name and file type,
// until Clear. A missing image is not remembered, so a resource that appears later is
// found then. The pointers in the keys are never followed after the call.
class InkwellImageResourceCache {
public:
    // The image named name in manager's resources of fileType's type, decoded by supplier.
    // Throws zebcore::config::ZebException when there is no such resource, it is no image
    // of that type, or supplier is null. The toolkit's callers call it in a const context,
    // so the cache is filled behind const.
    boost::intrusive_ptr<inkwell::ImageInterface>
    GetImage(const ResourceManager& manager, const inkwell::SupplierInterface* supplier,
             const zebcore::UTF8String& name, ImageFileType fileType) const;

    // Lets go of every image; the next request decodes again.
    void Clear();

    // While enabled, each name asked for is appended, found or not, in order: how a test
    // follows a search through the resources.
    void SetLookupLogEnabled(bool enabled) { mLogLookups = enabled; }
    const std::vector<std::string>& LookupLog() const { return mLookupLog; }
    void ClearLookupLog() { mLookupLog.clear(); }

private:
    using Key =
        std::tuple<const ResourceManager*, const inkwell::SupplierInterface*, std::string, int>;

    mutable std::map<Key, boost::intrusive_ptr<inkwell::ImageInterface>> mImages;
    bool mLogLookups = false;
    mutable std::vector<std::string> mLookupLog;
};

}  // namespace utility
}  // namespace zebui

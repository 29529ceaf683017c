// Images decoded from resources through a supplier, kept by name.
#include "zebui/utility/InkwellImageResourceCache.h"

#include "zebcore/config/ThrowError.h"
#include "zebui/inkwell/SupplierInterface.h"
#include "zebui/utility/ResourceManager.h"

namespace zebui {
namespace utility {

namespace {

const char* const kImageNotFound = "$$$/zebui/utility/ImageNotFound=The image ^1 was not found.";

[[noreturn]] void throwNotFound(const zebcore::UTF8String& name) {
    // Not reported: callers search through names that may well be missing.
    zebcore::config::ThrowError(1, kImageNotFound, 105, 40, false,
                                zebcore::config::ReplacementValue(name));
}

}  // namespace

boost::intrusive_ptr<inkwell::ImageInterface>
InkwellImageResourceCache::GetImage(const ResourceManager& manager,
                                    const inkwell::SupplierInterface* supplier,
                                    const zebcore::UTF8String& name, ImageFileType fileType) const {
    if (mLogLookups) mLookupLog.push_back(name);
    if (!supplier || fileType != kImageFileType_PNG) throwNotFound(name);
    const Key key(&manager, supplier, name, fileType);
    const auto cached = mImages.find(key);
    if (cached != mImages.end()) return cached->second;

    std::vector<unsigned char> bytes;
    if (!manager.LoadResourceBytes(zebcore::utility::UTF8to16(name), u"png", bytes))
        throwNotFound(name);
    boost::intrusive_ptr<inkwell::ImageInterface> image =
        supplier->MakeImageFromPNG(bytes.data(), bytes.size());
    if (!image) throwNotFound(name);
    mImages.emplace(key, image);
    return image;
}

void InkwellImageResourceCache::Clear() {
    mImages.clear();
}

}  // namespace utility
}  // namespace zebui

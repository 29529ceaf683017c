// Bundle registry and strings standing in for the operating system's.
#include "os/CoreFoundation.h"

#include <map>
#include <memory>

struct __CFString {
    std::string text;
};

struct __CFBundle {
    std::string modulePath;
};

namespace {

std::map<std::string, std::unique_ptr<__CFBundle>>& bundles() {
    static std::map<std::string, std::unique_ptr<__CFBundle>> sBundles;
    return sBundles;
}

}  // namespace

extern "C" CFBundleRef CFBundleGetBundleWithIdentifier(CFStringRef identifier) {
    if (!identifier) return nullptr;
    const auto found = bundles().find(identifier->text);
    return found == bundles().end() ? nullptr : found->second.get();
}

extern "C" void CFRelease(const void* object) {
    // Only strings are ever created for a caller to release; bundles are not retained.
    delete static_cast<const __CFString*>(object);
}

namespace os {

void RegisterBundle(const std::string& identifier, const std::string& modulePath) {
    bundles()[identifier] = std::make_unique<__CFBundle>(__CFBundle{modulePath});
}

void UnregisterBundle(const std::string& identifier) {
    bundles().erase(identifier);
}

CFStringRef CreateString(const std::string& utf8) {
    return new __CFString{utf8};
}

std::string BundleModulePath(CFBundleRef bundle) {
    return bundle ? bundle->modulePath : std::string();
}

}  // namespace os

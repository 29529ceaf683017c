// Bundle registry and strings standing in for the operating system's.
#include "os/CoreFoundation.h"

#include <cctype>
#include <map>
#include <memory>

// Every object a caller releases with CFRelease.
struct CFReleasable {
    virtual ~CFReleasable() = default;
};

struct __CFString : CFReleasable {
    explicit __CFString(const std::string& utf8) : text(utf8) {}
    std::string text;
};

struct __CFURL : CFReleasable {
    explicit __CFURL(const std::string& address) : text(address) {}
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
    // Only strings and URLs are ever created for a caller to release; bundles are not
    // retained.
    delete static_cast<const CFReleasable*>(object);
}

namespace {

// A scheme (a letter, then letters, digits, "+", "-" or "."), a colon, and at least one
// more character, none of them a space or a control character.
bool isURL(const std::string& text) {
    const size_t colon = text.find(':');
    if (colon == std::string::npos || colon == 0 || colon + 1 >= text.size()) return false;
    if (!std::isalpha(static_cast<unsigned char>(text[0]))) return false;
    for (size_t at = 1; at < colon; ++at) {
        const unsigned char c = static_cast<unsigned char>(text[at]);
        if (!std::isalnum(c) && c != '+' && c != '-' && c != '.') return false;
    }
    for (const char c : text)
        if (static_cast<unsigned char>(c) <= ' ' || c == 0x7f) return false;
    return true;
}

}  // namespace

extern "C" CFURLRef CFURLCreateWithString(const void* /*allocator*/, CFStringRef text,
                                          CFURLRef /*base*/) {
    if (!text || !isURL(text->text)) return nullptr;
    return new __CFURL(text->text);
}

namespace os {

std::string URLString(CFURLRef url) {
    return url ? url->text : std::string();
}

void RegisterBundle(const std::string& identifier, const std::string& modulePath) {
    bundles()[identifier] = std::make_unique<__CFBundle>(__CFBundle{modulePath});
}

void UnregisterBundle(const std::string& identifier) {
    bundles().erase(identifier);
}

CFStringRef CreateString(const std::string& utf8) {
    return new __CFString(utf8);
}

std::string BundleModulePath(CFBundleRef bundle) {
    return bundle ? bundle->modulePath : std::string();
}

}  // namespace os

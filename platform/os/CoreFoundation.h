// The few operating system bundle, string and URL services the library asks for, headless.
#pragma once

#include <string>

extern "C" {
typedef const struct __CFString* CFStringRef;
typedef struct __CFBundle* CFBundleRef;
typedef const struct __CFURL* CFURLRef;

// The bundle registered under the identifier, or null. Not retained.
CFBundleRef CFBundleGetBundleWithIdentifier(CFStringRef identifier);
void CFRelease(const void* object);
// A new URL the caller releases, or null when the text does not form one (a scheme and a
// colon first, no spaces). The allocator and the base are not used here.
CFURLRef CFURLCreateWithString(const void* allocator, CFStringRef text, CFURLRef base);
}

namespace os {

// A headless machine has no bundles until the host declares one: the module file
// that stands for the bundle with that identifier.
void RegisterBundle(const std::string& identifier, const std::string& modulePath);
void UnregisterBundle(const std::string& identifier);

// For the base library's conversions: a new string the caller releases with CFRelease.
CFStringRef CreateString(const std::string& utf8);
std::string BundleModulePath(CFBundleRef bundle);
// The address of a URL, "" for null.
std::string URLString(CFURLRef url);

}  // namespace os

// The few operating system bundle services the library asks for, headless.
#pragma once

#include <string>

extern "C" {
typedef const struct __CFString* CFStringRef;
typedef struct __CFBundle* CFBundleRef;

// The bundle registered under the identifier, or null. Not retained.
CFBundleRef CFBundleGetBundleWithIdentifier(CFStringRef identifier);
void CFRelease(const void* object);
}

namespace os {

// A headless machine has no bundles until the host declares one: the module file
// that stands for the bundle with that identifier.
void RegisterBundle(const std::string& identifier, const std::string& modulePath);
void UnregisterBundle(const std::string& identifier);

// For the base library's conversions: a new string the caller releases with CFRelease.
CFStringRef CreateString(const std::string& utf8);
std::string BundleModulePath(CFBundleRef bundle);

}  // namespace os

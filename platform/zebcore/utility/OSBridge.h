// Conversions between the base library's strings and the operating system's objects.
#pragma once

#include "os/CoreFoundation.h"
#include "zebcore/utility/Strings.h"

namespace zebcore {
namespace utility {

// A new CFString; the caller releases it with CFRelease.
CFStringRef ZEBtoMAC(const UTF16String& text);
// Full path of the bundle's module file.
UTF16String GetModulePath(CFBundleRef bundle);

}  // namespace utility
}  // namespace zebcore

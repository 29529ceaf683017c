// String and bundle conversions to the operating system's forms.
#include "zebcore/utility/OSBridge.h"

namespace zebcore {
namespace utility {

CFStringRef ZEBtoMAC(const UTF16String& text) {
    return os::CreateString(UTF16to8(text));
}

UTF16String GetModulePath(CFBundleRef bundle) {
    return UTF8to16(os::BundleModulePath(bundle));
}

}  // namespace utility
}  // namespace zebcore

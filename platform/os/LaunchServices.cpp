// Opened addresses are recorded, never launched.
#include "os/LaunchServices.h"

namespace {

constexpr OSStatus kParamErr = -50;

std::vector<std::string>& openedURLs() {
    static std::vector<std::string> opened;
    return opened;
}

}  // namespace

extern "C" OSStatus LSOpenCFURLRef(CFURLRef url, CFURLRef* launched) {
    if (launched) *launched = nullptr;
    if (!url) return kParamErr;
    openedURLs().push_back(os::URLString(url));
    return 0;
}

namespace os {

const std::vector<std::string>& OpenedURLs() {
    return openedURLs();
}

void ClearOpenedURLs() {
    openedURLs().clear();
}

}  // namespace os

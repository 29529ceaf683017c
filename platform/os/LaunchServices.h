// Opening a document or an address with the application the system chooses for it.
#pragma once

#include <string>
#include <vector>

#include "os/CoreFoundation.h"

extern "C" {
typedef int OSStatus;
// A headless machine launches nothing: the address is recorded, in order, and the call
// succeeds (0). A null URL fails (-50) and records nothing.
OSStatus LSOpenCFURLRef(CFURLRef url, CFURLRef* launched);
}

namespace os {

// The addresses opened so far, oldest first, for the host and its tests.
const std::vector<std::string>& OpenedURLs();
void ClearOpenedURLs();

}  // namespace os

// The current native event, headless.
#include "os/CurrentEvent.h"

namespace os {
namespace {

const void* sCurrentEvent = nullptr;

}  // namespace

const void* GetCurrentEvent() {
    return sCurrentEvent;
}

CurrentEventScope::CurrentEventScope(const void* event) : mPrevious(sCurrentEvent) {
    sCurrentEvent = event;
}

CurrentEventScope::~CurrentEventScope() {
    sCurrentEvent = mPrevious;
}

}  // namespace os

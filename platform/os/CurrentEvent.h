// The native event the platform is handling now, as the application object reports it.
#pragma once

namespace os {

// Null while no native event is being handled, which is always so on a headless machine
// unless a host declares one for the length of its handling.
const void* GetCurrentEvent();

// Makes event the current one until the scope ends, then restores the one before.
class CurrentEventScope {
public:
    explicit CurrentEventScope(const void* event);
    ~CurrentEventScope();
    CurrentEventScope(const CurrentEventScope&) = delete;
    CurrentEventScope& operator=(const CurrentEventScope&) = delete;

private:
    const void* mPrevious;
};

}  // namespace os

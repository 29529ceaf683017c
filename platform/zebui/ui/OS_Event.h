// The platform's native event behind a toolkit event, or none.
#pragma once

namespace zebui {
namespace ui {

// Doesn't own the native event: it lives as long as the platform keeps it current.
// A headless run has no native events, so a default OS_Event is the usual value.
class OS_Event {
public:
    OS_Event() = default;
    explicit OS_Event(const void* nativeEvent) : mNativeEvent(nativeEvent) {}

    const void* GetNativeEvent() const { return mNativeEvent; }
    bool HasNativeEvent() const { return mNativeEvent != nullptr; }

private:
    const void* mNativeEvent = nullptr;
};

}  // namespace ui
}  // namespace zebui

// A key's code, as the toolkit's virtual value and as the platform's native value.
#pragma once

namespace zebui {
namespace ui {

class KeyboardCode {
public:
    constexpr explicit KeyboardCode(unsigned int virtualCode = 0, unsigned int nativeCode = 0)
        : mVirtualCode(virtualCode), mNativeCode(nativeCode) {}

    // true: the toolkit's virtual code (a KeyCode); false: the platform's own code.
    constexpr unsigned int GetValue(bool virtualCode) const {
        return virtualCode ? mVirtualCode : mNativeCode;
    }

private:
    unsigned int mVirtualCode;
    unsigned int mNativeCode;
};

}  // namespace ui
}  // namespace zebui

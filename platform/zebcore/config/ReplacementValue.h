// A value that fills a ^1..^4 placeholder of a localized error text.
#pragma once

#include "zebcore/utility/Strings.h"

namespace zebcore {
namespace config {

// A default-constructed value is empty: its placeholder stays as written.
class ReplacementValue {
public:
    ReplacementValue() = default;
    explicit ReplacementValue(const UTF16String& text);
    explicit ReplacementValue(const UTF8String& text);
    explicit ReplacementValue(long number);
    explicit ReplacementValue(double number);

    bool IsEmpty() const { return !mSet; }
    const UTF16String& GetText() const { return mText; }

private:
    UTF16String mText;
    bool mSet = false;
};

}  // namespace config
}  // namespace zebcore

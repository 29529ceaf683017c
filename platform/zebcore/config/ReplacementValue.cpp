// Placeholder values of localized error texts.
#include "zebcore/config/ReplacementValue.h"

#include <cstdio>

namespace zebcore {
namespace config {

ReplacementValue::ReplacementValue(const UTF16String& text) : mText(text), mSet(true) {}

ReplacementValue::ReplacementValue(const UTF8String& text)
    : mText(utility::UTF8to16(text)), mSet(true) {}

ReplacementValue::ReplacementValue(long number)
    : mText(utility::AsciiToUTF16(std::to_string(number))), mSet(true) {}

ReplacementValue::ReplacementValue(double number) : mSet(true) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.14g", number);
    mText = utility::AsciiToUTF16(buffer);
}

}  // namespace config
}  // namespace zebcore

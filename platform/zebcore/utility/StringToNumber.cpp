// Numbers from texts.
#include "zebcore/utility/StringToNumber.h"

#include <climits>

namespace zebcore {
namespace utility {

bool StringToNumber(int& outNumber, const UTF16String& text, Flags<unsigned short> /*flags*/) {
    size_t i = 0;
    const size_t n = text.size();
    while (i < n && text[i] == u' ')
        ++i;
    bool negative = false;
    if (i < n && (text[i] == u'-' || text[i] == u'+')) negative = text[i++] == u'-';
    const size_t firstDigit = i;
    long long value = 0;
    for (; i < n && text[i] >= u'0' && text[i] <= u'9'; ++i) {
        value = value * 10 + (text[i] - u'0');
        if (value > static_cast<long long>(INT_MAX) + 1) return false;
    }
    if (i == firstDigit) return false;
    while (i < n && text[i] == u' ')
        ++i;
    if (i != n) return false;
    if (negative) value = -value;
    if (value > INT_MAX || value < INT_MIN) return false;
    outNumber = static_cast<int>(value);
    return true;
}

}  // namespace utility
}  // namespace zebcore

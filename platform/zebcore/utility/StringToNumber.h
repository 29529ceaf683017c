// Reading a number out of a text.
#pragma once

#include "zebcore/utility/Flags.h"
#include "zebcore/utility/Strings.h"

namespace zebcore {
namespace utility {

// Flag bits of StringToNumber.
constexpr unsigned short kStringToNumberDecimal = 1;  // plain decimal digits, optional sign

// Parses text into outNumber and answers true; on failure (no digits, trailing text, out
// of range) outNumber stays as it was and the answer is false. Leading and trailing spaces
// are allowed.
bool StringToNumber(int& outNumber, const UTF16String& text, Flags<unsigned short> flags);

}  // namespace utility
}  // namespace zebcore

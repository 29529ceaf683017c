// The base library's way to stop an operation with a localized error.
#pragma once

#include "zebcore/config/ReplacementValue.h"

namespace zebcore {
namespace config {

// Localizes message (a "$$$/path/Name=Default text" key), fills ^1..^4 from the
// replacement values, makes an assertion report when report is true, and throws a
// ZebException with the text. It never returns. level, domain and code travel with
// the exception; the toolkit's casts pass 1, 105 and 21.
[[noreturn]] void ThrowError(int level, const char* message, int domain, int code, bool report,
                             const ReplacementValue& value1 = ReplacementValue(),
                             const ReplacementValue& value2 = ReplacementValue(),
                             const ReplacementValue& value3 = ReplacementValue(),
                             const ReplacementValue& value4 = ReplacementValue());

}  // namespace config
}  // namespace zebcore

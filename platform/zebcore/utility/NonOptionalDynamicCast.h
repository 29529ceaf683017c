// A dynamic_cast that may not fail: a null or wrong value stops the operation.
#pragma once

#include "zebcore/config/ThrowError.h"

namespace zebcore {
namespace utility {

// The text every toolkit cast passes as its message.
constexpr const char* kInvalidTypeConversion =
    "$$$/zebcore/utility/Error/InvalidTypeConversion=Invalid type conversion.";

// From and To are pointer types: NonOptionalDynamicCast<UI_Node*, UI_Button*>(node, ...).
// On failure it calls config::ThrowError(1, message, domain, code, true), which throws
// a config::ZebException; it never returns null.
template <class From, class To>
To NonOptionalDynamicCast(From value, const char* message, int domain, int code) {
    To result = value ? dynamic_cast<To>(value) : nullptr;
    if (!result)
        config::ThrowError(1, message, domain, code, true, config::ReplacementValue(),
                           config::ReplacementValue(), config::ReplacementValue(),
                           config::ReplacementValue());
    return result;
}

}  // namespace utility
}  // namespace zebcore

// Localized errors: a report for the developer, an exception for the caller.
#include "zebcore/config/ThrowError.h"

#include <vector>

#include "zebcore/config/Localizer.h"
#include "zebcore/config/ZebException.h"
#include "zebcore/debug/Debug.h"

namespace zebcore {
namespace config {

void ThrowError(int level, const char* message, int domain, int code, bool report,
                const ReplacementValue& value1, const ReplacementValue& value2,
                const ReplacementValue& value3, const ReplacementValue& value4) {
    const ReplacementValue* values[] = {&value1, &value2, &value3, &value4};
    size_t used = 0;
    for (size_t i = 0; i < 4; ++i)
        if (!values[i]->IsEmpty()) used = i + 1;
    // Placeholders after the last given value stay as written; an empty value before
    // it counts as an empty text.
    std::vector<UTF16String> replacements;
    for (size_t i = 0; i < used; ++i)
        replacements.push_back(values[i]->GetText());

    const UTF16String localized = Localizer::Get()->GetLocalizedString(message);
    const UTF8String text = utility::UTF16to8(
        replacements.empty() ? localized : utility::ReplaceInString(localized, replacements));
    const std::string key = message ? message : "";

    if (report) {
        static bool sReportDisabled = false;
        if (debug::BreakAfterAssertDialog(sReportDisabled, key.c_str(), text.c_str(), __FILE__,
                                          __LINE__, __func__) &&
            debug::IsDebuggerAttached())
            ZEB_DEBUG_BREAK();
    }
    throw ZebException(text, key, level, domain, code);
}

}  // namespace config
}  // namespace zebcore

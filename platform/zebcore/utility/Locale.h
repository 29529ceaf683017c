// The application's language as the base library spells it.
#pragma once

#include "zebcore/utility/Strings.h"

namespace zebcore {

class Locale {
public:
    // The language the localizer reads its texts in ("en", "de"), as UTF-16. The name's
    // spelling is the base library's.
    static UTF16String ApplicationLangauge();
};

}  // namespace zebcore

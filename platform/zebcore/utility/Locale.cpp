// The application's language.
#include "zebcore/utility/Locale.h"

#include "zebcore/config/Localizer.h"

namespace zebcore {

UTF16String Locale::ApplicationLangauge() {
    return utility::UTF8to16(config::Localizer::Get()->GetLanguage());
}

}  // namespace zebcore

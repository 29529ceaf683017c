// Localized texts: keys of the form "$$$/path/Name=Default text".
#pragma once

#include <map>
#include <string>

#include "zebcore/utility/Strings.h"

namespace zebcore {
namespace config {

// Translations live in the resources folder as loc/<language>.loc, one
// "$$$/path/Name=Text" line each ('#' starts a comment line). A key without a
// translation gives its default text, the part after the first "=".
class Localizer {
public:
    virtual ~Localizer() = default;

    // The process-wide localizer, never null.
    static Localizer* Get();

    virtual UTF16String GetLocalizedString(const char* key);

    // Selects the language; its dictionary is read again on the next lookup.
    void SetLanguage(const std::string& language);
    const std::string& GetLanguage() const { return mLanguage; }

private:
    void loadIfNeeded();

    std::string mLanguage = "en";
    std::string mLoadedFrom;  // the dictionary file the table was read from
    bool mLoaded = false;
    std::map<std::string, std::string> mTable;  // "$$$/path/Name" -> UTF-8 text
};

}  // namespace config
}  // namespace zebcore

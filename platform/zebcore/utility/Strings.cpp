// UTF-8/UTF-16 conversion, case mapping through ICU, and placeholder filling.
#include "zebcore/utility/Strings.h"

#include <unicode/ustring.h>

namespace zebcore {
namespace utility {
namespace {

constexpr char32_t kReplacementChar = 0xFFFD;

void appendUTF16(UTF16String& out, char32_t cp) {
    if (cp < 0x10000) {
        out.push_back(static_cast<char16_t>(cp));
    } else {
        cp -= 0x10000;
        out.push_back(static_cast<char16_t>(0xD800 + (cp >> 10)));
        out.push_back(static_cast<char16_t>(0xDC00 + (cp & 0x3FF)));
    }
}

void appendUTF8(UTF8String& out, char32_t cp) {
    if (cp < 0x80) {
        out.push_back(static_cast<char>(cp));
    } else if (cp < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else if (cp < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    }
}

// Decodes one code point at text[i], advancing i; a malformed sequence yields U+FFFD
// and consumes one byte so that decoding always makes progress.
char32_t decodeUTF8(const UTF8String& text, size_t& i, bool& bad) {
    const auto lead = static_cast<unsigned char>(text[i]);
    size_t extra = 0;
    char32_t cp = 0;
    char32_t minimum = 0;
    if (lead < 0x80) {
        ++i;
        return lead;
    } else if ((lead & 0xE0) == 0xC0) {
        extra = 1, cp = lead & 0x1F, minimum = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        extra = 2, cp = lead & 0x0F, minimum = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        extra = 3, cp = lead & 0x07, minimum = 0x10000;
    } else {
        ++i, bad = true;
        return kReplacementChar;
    }
    if (i + extra >= text.size()) {
        ++i, bad = true;
        return kReplacementChar;
    }
    for (size_t k = 1; k <= extra; ++k) {
        const auto c = static_cast<unsigned char>(text[i + k]);
        if ((c & 0xC0) != 0x80) {
            ++i, bad = true;
            return kReplacementChar;
        }
        cp = (cp << 6) | (c & 0x3F);
    }
    if (cp < minimum || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) {
        ++i, bad = true;
        return kReplacementChar;
    }
    i += extra + 1;
    return cp;
}

template <typename Units> UTF8String utf16to8(const Units& units, size_t count) {
    UTF8String out;
    out.reserve(count);
    for (size_t i = 0; i < count; ++i) {
        char32_t cp = units[i];
        if (cp >= 0xD800 && cp <= 0xDBFF && i + 1 < count && units[i + 1] >= 0xDC00 &&
            units[i + 1] <= 0xDFFF) {
            cp = 0x10000 + ((cp - 0xD800) << 10) + (units[i + 1] - 0xDC00);
            ++i;
        } else if (cp >= 0xD800 && cp <= 0xDFFF) {
            cp = kReplacementChar;
        }
        appendUTF8(out, cp);
    }
    return out;
}

template <typename MapFn> void mapCase(UTF16String& text, MapFn map) {
    if (text.empty()) return;
    UErrorCode status = U_ZERO_ERROR;
    const auto* src = reinterpret_cast<const UChar*>(text.data());
    const auto srcLength = static_cast<int32_t>(text.size());
    const int32_t needed = map(nullptr, 0, src, srcLength, "", &status);
    if (status != U_BUFFER_OVERFLOW_ERROR && U_FAILURE(status)) return;
    UTF16String result(static_cast<size_t>(needed), u'\0');
    status = U_ZERO_ERROR;
    map(reinterpret_cast<UChar*>(result.data()), needed, src, srcLength, "", &status);
    if (U_SUCCESS(status)) text.swap(result);
}

}  // namespace

UTF16String UTF8to16(const UTF8String& text, UnicodeErrorCode* error, unsigned long* errorOffset) {
    UTF16String out;
    out.reserve(text.size());
    bool reported = false;
    if (error) *error = kUnicodeNoError;
    for (size_t i = 0; i < text.size();) {
        const size_t start = i;
        bool bad = false;
        appendUTF16(out, decodeUTF8(text, i, bad));
        if (bad && !reported) {
            reported = true;
            if (error) *error = kUnicodeInvalidSequence;
            if (errorOffset) *errorOffset = start;
        }
    }
    return out;
}

UTF8String UTF16to8(const UTF16String& text) {
    return utf16to8(text, text.size());
}

UTF8String UTF16to8(const char16_t* zeroTerminated) {
    if (!zeroTerminated) return UTF8String();
    return utf16to8(zeroTerminated, std::char_traits<char16_t>::length(zeroTerminated));
}

UTF16String AsciiToUTF16(const std::string& text) {
    UTF16String out;
    out.reserve(text.size());
    for (const char c : text)
        out.push_back(static_cast<char16_t>(static_cast<unsigned char>(c)));
    return out;
}

void ToUpperCase(UTF16String& text) {
    mapCase(text, u_strToUpper);
}

void ToLowerCase(UTF16String& text) {
    mapCase(text, u_strToLower);
}

UTF16String ReplaceInString(const UTF16String& templateText,
                            const std::vector<UTF16String>& replacements) {
    UTF16String out;
    out.reserve(templateText.size());
    for (size_t i = 0; i < templateText.size(); ++i) {
        const char16_t c = templateText[i];
        const char16_t next = i + 1 < templateText.size() ? templateText[i + 1] : u'\0';
        if (c == u'^' && next == u'^') {
            out.push_back(u'^');
            ++i;
        } else if (c == u'^' && next >= u'1' && next <= u'9' &&
                   static_cast<size_t>(next - u'1') < replacements.size()) {
            out += replacements[static_cast<size_t>(next - u'1')];
            ++i;
        } else {
            out.push_back(c);
        }
    }
    return out;
}

}  // namespace utility
}  // namespace zebcore

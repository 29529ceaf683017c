// Byte-wise Perl regular expressions for zebString; Boost stays behind this header.
#pragma once

#include <cstddef>
#include <string>

namespace zeblua {
namespace string {

// A match as byte offsets from the start of the searched range.
struct RegexMatch {
    std::ptrdiff_t begin;
    std::ptrdiff_t end;
};

// Searches [first, last) for pattern, compiled anew on each call, one element per byte.
// first is the beginning of the text: "^" and "\A" hold there and look-behind sees nothing
// before it. A bad pattern throws boost::regex_error, a std::runtime_error.
bool SearchRegex(const char* pattern, const char* first, const char* last, RegexMatch& match);

// The bytes [text, first) unchanged, then [first, last) with each match of pattern, or only
// the first when firstOnly, replaced by the Perl format string. Throws as SearchRegex does.
std::string ReplaceRegex(const char* pattern, const char* text, const char* first, const char* last,
                         const char* format, bool firstOnly);

}  // namespace string
}  // namespace zeblua

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
// before it. A bad pattern throws boost::regex_error, a std::runtime_error, and so does a
// search whose backtracking goes past Boost's complexity bound.
bool SearchRegex(const char* pattern, const char* first, const char* last, RegexMatch& match);

// Sets out to the bytes [text, first) unchanged, then [first, last) with each match of
// pattern, or only the first when firstOnly, replaced by the Perl format string. Throws as
// SearchRegex does. The complexity bound holds for the whole call, not for each match:
// the bytes of the range may be looked at as often as one search of it may visit states,
// plus a fixed number of times each, so a pattern that backtracks at every match throws
// instead of running for minutes.
void ReplaceRegex(const char* pattern, const char* text, const char* first, const char* last,
                  const char* format, bool firstOnly, std::string& out);

}  // namespace string
}  // namespace zeblua

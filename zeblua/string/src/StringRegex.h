// Byte-wise Perl regular expressions for zebString; Boost stays behind this header.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zeblua {
namespace string {

// A match as byte offsets from the start of the searched range.
struct RegexMatch {
    std::ptrdiff_t begin;
    std::ptrdiff_t end;
};

// A pattern is a Lua string or a literal: its bytes up to the first zero byte are the
// expression, as C strings end, and its data is followed by a zero byte. Every pattern is
// compiled with the classic locale imbued, never the process's global C++ locale: a
// byte-wise expression over UTF-8 text must not change meaning when a host sets a locale
// ("\s" would take the bytes 0x85 and 0xA0 under a Latin-1 one and cut characters in two).
// So the last few patterns compiled are kept by their bytes alone, and a script's loop over
// one pattern compiles it once; a pattern that does not compile is not kept, so it throws
// at every call. From its second use a pattern of single-byte atoms ("b[a-z]+n") is
// searched by SimplePattern, with the same answers, while the work stays well inside the
// complexity bound; past that the general matcher runs the search again and decides.

// Searches [first, last) for pattern, one element per byte. first is the beginning of the
// text: "^" and "\A" hold there and look-behind sees nothing before it. A bad pattern
// throws boost::regex_error, a std::runtime_error, and so does a search whose
// backtracking goes past Boost's complexity bound.
bool SearchRegex(std::string_view pattern, const char* first, const char* last, RegexMatch& match);

// Sets out to the bytes [text, first) unchanged, then [first, last) with each match of
// pattern, or only the first when firstOnly, replaced by the Perl format string. Throws as
// SearchRegex does. The complexity bound holds for the whole call, not for each match:
// the bytes of the range may be looked at as often as one search of it may visit states,
// plus a fixed number of times each, so a pattern that backtracks at every match throws
// instead of running for minutes.
void ReplaceRegex(std::string_view pattern, const char* text, const char* first, const char* last,
                  const char* format, bool firstOnly, std::string& out);

// Narrows [first, last) by the white space at both ends: the end of the match of
// "\A[\s]*" in it, then the beginning of the match of "[\s]*\z" in what follows, found by
// scanning with the class those expressions compile to. A text on which the second search
// would go past the complexity bound is searched, so it throws as SearchRegex does.
void TrimWhiteSpace(const char*& first, const char*& last);

}  // namespace string
}  // namespace zeblua

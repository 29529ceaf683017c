// Regular expression searches and replacements over Lua string bytes.
#include "zeblua/string/src/StringRegex.h"

#include <iterator>
#include <sstream>

#include <boost/regex.hpp>

namespace zeblua {
namespace string {
namespace {

// One element per byte, so "." takes one byte of a multi-byte UTF-8 character.
using ByteRegex =
    boost::basic_regex<char, boost::regex_traits<char, boost::cpp_regex_traits<char>>>;

// Perl syntax, case sensitive; scripts can pass no other syntax flag.
ByteRegex compile(const char* pattern) {
    return ByteRegex(pattern, boost::regex_constants::normal);
}

}  // namespace

bool SearchRegex(const char* pattern, const char* first, const char* last, RegexMatch& match) {
    const ByteRegex regex = compile(pattern);
    boost::cmatch found;
    // No match_prev_avail: the search base is first, never the bytes before it.
    if (!boost::regex_search(first, last, found, regex, boost::regex_constants::match_default))
        return false;
    match.begin = found[0].first - first;
    match.end = found[0].second - first;
    return true;
}

std::string ReplaceRegex(const char* pattern, const char* text, const char* first, const char* last,
                         const char* format, bool firstOnly) {
    const ByteRegex regex = compile(pattern);
    std::ostringstream out;
    out.write(text, first - text);
    const auto flags = firstOnly ? boost::regex_constants::format_first_only
                                 : boost::regex_constants::format_default;
    boost::regex_replace(std::ostream_iterator<char>(out), first, last, regex, format, flags);
    return out.str();
}

}  // namespace string
}  // namespace zeblua

// Regular expression searches and replacements over Lua string bytes.
#include "zeblua/string/src/StringRegex.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <limits>
#include <locale>

#include <boost/regex.hpp>

namespace zeblua {
namespace string {
namespace {

// One element per byte, so "." takes one byte of a multi-byte UTF-8 character.
using ByteTraits = boost::regex_traits<char, boost::cpp_regex_traits<char>>;
using ByteRegex = boost::basic_regex<char, ByteTraits>;

// Compiling costs several times the search a script then runs, and scripts call these
// functions in loops over a few constant patterns. The cache is process-wide and holds no
// Lua value: a key is a copy of the bytes, so no state's strings are named.
class PatternCache {
public:
    // The compiled pattern, valid until the next call. Perl syntax, case sensitive;
    // scripts can pass no other syntax flag. Throws for a bad pattern, keeping nothing.
    const ByteRegex& compiled(std::string_view pattern) {
        const std::locale global;
        ++mClock;
        // A loop calls with the pattern of its last call more often than with any other.
        if (matches(*mLast, pattern, global)) {
            mLast->lastUse = mClock;
            return mLast->regex;
        }
        Entry* oldest = &mEntries[0];
        for (Entry& entry : mEntries) {
            if (matches(entry, pattern, global)) {
                entry.lastUse = mClock;
                mLast = &entry;
                return entry.regex;
            }
            if (entry.lastUse < oldest->lastUse) oldest = &entry;
        }
        ByteRegex regex(pattern.data(), boost::regex_constants::normal);  // up to a zero byte
        oldest->lastUse = 0;  // empty until whole: the copy of the bytes may throw
        oldest->bytes.assign(pattern.data(), pattern.size());
        oldest->locale = global;
        oldest->regex.swap(regex);
        oldest->lastUse = mClock;
        mLast = oldest;
        return oldest->regex;
    }

private:
    // Few, so that a scan costs less than a hash; enough for the patterns of a loop.
    static constexpr std::size_t kCapacity = 16;

    struct Entry {
        std::string bytes;
        std::locale locale;
        ByteRegex regex;
        unsigned long long lastUse = 0;  // 0: empty
    };

    static bool matches(const Entry& entry, std::string_view pattern, const std::locale& global) {
        return entry.lastUse != 0 && entry.bytes.size() == pattern.size() &&
               std::memcmp(entry.bytes.data(), pattern.data(), pattern.size()) == 0 &&
               entry.locale == global;
    }

    std::array<Entry, kCapacity> mEntries;
    Entry* mLast = &mEntries[0];
    unsigned long long mClock = 0;
};

const ByteRegex& compiled(std::string_view pattern) {
    static PatternCache sCache;
    return sCache.compiled(pattern);
}

// Byte reads left to the whole of one ReplaceB call.
class ReadBudget {
public:
    // As Boost bounds one search: the greater of N * S^2 and N^2 (the latter capped), with S
    // the pattern's length; and 16 reads a byte beyond that, which no plain pattern needs.
    ReadBudget(std::ptrdiff_t bytes, std::ptrdiff_t patternLength) {
        constexpr double kBase = 100000.0;
        const double n = static_cast<double>(std::max<std::ptrdiff_t>(bytes, 1));
        const double s = static_cast<double>(std::max<std::ptrdiff_t>(patternLength, 1));
        const double bound =
            std::max(n * s * s, std::min(n * n, double(BOOST_REGEX_MAX_STATE_COUNT)));
        const double reads = std::min(bound + 16.0 * n + kBase,
                                      double(std::numeric_limits<std::ptrdiff_t>::max() / 2));
        mLeft = static_cast<std::ptrdiff_t>(reads);
    }

    void spend() {
        if (--mLeft < 0) throw boost::regex_error(boost::regex_constants::error_complexity);
    }

private:
    std::ptrdiff_t mLeft;
};

// A byte pointer that spends one read of its budget at each dereference, so the matcher's
// backtracking is counted across every match of a replacement.
class CountedBytes {
public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountedBytes() = default;
    CountedBytes(const char* byte, ReadBudget* budget) : mByte(byte), mBudget(budget) {}

    reference operator*() const {
        mBudget->spend();
        return *mByte;
    }
    reference operator[](difference_type n) const { return *(*this + n); }
    CountedBytes& operator++() {
        ++mByte;
        return *this;
    }
    CountedBytes operator++(int) {
        CountedBytes before = *this;
        ++mByte;
        return before;
    }
    CountedBytes& operator--() {
        --mByte;
        return *this;
    }
    CountedBytes operator--(int) {
        CountedBytes before = *this;
        --mByte;
        return before;
    }
    CountedBytes& operator+=(difference_type n) {
        mByte += n;
        return *this;
    }
    CountedBytes& operator-=(difference_type n) {
        mByte -= n;
        return *this;
    }
    friend CountedBytes operator+(CountedBytes at, difference_type n) { return at += n; }
    friend CountedBytes operator+(difference_type n, CountedBytes at) { return at += n; }
    friend CountedBytes operator-(CountedBytes at, difference_type n) { return at -= n; }
    friend difference_type operator-(const CountedBytes& a, const CountedBytes& b) {
        return a.mByte - b.mByte;
    }
    friend bool operator==(const CountedBytes& a, const CountedBytes& b) {
        return a.mByte == b.mByte;
    }
    friend bool operator!=(const CountedBytes& a, const CountedBytes& b) {
        return a.mByte != b.mByte;
    }
    friend bool operator<(const CountedBytes& a, const CountedBytes& b) {
        return a.mByte < b.mByte;
    }
    friend bool operator>(const CountedBytes& a, const CountedBytes& b) { return b < a; }
    friend bool operator<=(const CountedBytes& a, const CountedBytes& b) { return !(b < a); }
    friend bool operator>=(const CountedBytes& a, const CountedBytes& b) { return !(a < b); }

private:
    const char* mByte = nullptr;
    ReadBudget* mBudget = nullptr;
};

}  // namespace

bool SearchRegex(std::string_view pattern, const char* first, const char* last, RegexMatch& match) {
    const ByteRegex& regex = compiled(pattern);
    // Kept, so that its storage is allocated once; a search runs no script, so no other
    // search can begin while it is in use.
    static boost::cmatch found;
    // No match_prev_avail: the search base is first, never the bytes before it.
    if (!boost::regex_search(first, last, found, regex, boost::regex_constants::match_default))
        return false;
    match.begin = found[0].first - first;
    match.end = found[0].second - first;
    return true;
}

void ReplaceRegex(std::string_view pattern, const char* text, const char* first, const char* last,
                  const char* format, bool firstOnly, std::string& out) {
    const ByteRegex& regex = compiled(pattern);
    ReadBudget budget(last - first,
                      static_cast<std::ptrdiff_t>(std::char_traits<char>::length(pattern.data())));
    out.assign(text, first);
    const auto flags = firstOnly ? boost::regex_constants::format_first_only
                                 : boost::regex_constants::format_default;
    boost::regex_replace(std::back_inserter(out), CountedBytes(first, &budget),
                         CountedBytes(last, &budget), regex, format, flags);
}

}  // namespace string
}  // namespace zeblua

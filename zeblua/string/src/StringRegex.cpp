// Regular expression searches and replacements over Lua string bytes.
#include "zeblua/string/src/StringRegex.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <locale>
#include <string>

#include <boost/regex.hpp>

#include "zeblua/string/src/SimplePattern.h"

namespace zeblua {
namespace string {
namespace {

// One element per byte, so "." takes one byte of a multi-byte UTF-8 character.
using ByteTraits = boost::regex_traits<char, boost::cpp_regex_traits<char>>;
using ByteRegex = boost::basic_regex<char, ByteTraits>;

// The expression up to its first zero byte, Perl syntax, case sensitive (scripts can pass
// no other syntax flag), under the classic locale whatever the global one is.
ByteRegex compileClassic(const char* expression) {
    ByteRegex regex;
    regex.imbue(std::locale::classic());
    regex.assign(expression, boost::regex_constants::normal);
    return regex;
}

// The bytes that one atom takes, as the matcher compiles it: the runs that "atom+" finds in
// a text of every byte value.
ByteSet atomBytes(std::string_view atomText) {
    static const std::array<char, 256> sEveryByte = [] {
        std::array<char, 256> bytes{};
        for (std::size_t byte = 0; byte < bytes.size(); ++byte)
            bytes[byte] = static_cast<char>(byte);
        return bytes;
    }();
    const ByteRegex runs = compileClassic((std::string(atomText) + '+').c_str());
    ByteSet taken{};
    boost::cmatch run;
    const char* from = sEveryByte.data();
    const char* const end = from + sEveryByte.size();
    while (from < end && boost::regex_search(from, end, run, runs) && run[0].second > from) {
        for (const char* byte = run[0].first; byte != run[0].second; ++byte) {
            const auto value = static_cast<unsigned char>(*byte);
            taken[value / 64] |= std::uint64_t(1) << (value % 64);
        }
        from = run[0].second;
    }
    return taken;
}

// Compiling costs several times the search a script then runs, and scripts call these
// functions in loops over a few constant patterns. The cache is process-wide and holds no
// Lua value: a key is a copy of the bytes, so no state's strings are named.
class PatternCache {
public:
    struct Entry {
        std::string bytes;
        ByteRegex regex;
        std::size_t expressionLength = 0;  // up to the first zero byte
        unsigned long long lastUse = 0;    // 0: empty
        // Read on the second use, so a pattern used once does not pay for it.
        SimplePattern simple;
        unsigned uses = 0;
        bool simpleRead = false;
        bool simpleUsable = false;

        // The pattern's simple form, or null when it has none (or has not been read yet).
        const SimplePattern* simpleForm() {
            if (!simpleRead) {
                if (++uses < 2) return nullptr;
                simpleRead = true;  // first: reading may throw, and is not tried again
                simpleUsable = simple.Read({bytes.data(), expressionLength}, atomBytes);
            }
            return simpleUsable ? &simple : nullptr;
        }
    };

    // The entry of the compiled pattern, valid until the next call. Throws for a bad
    // pattern, keeping nothing.
    Entry& compiled(std::string_view pattern) {
        ++mClock;
        // A loop calls with the pattern of its last call more often than with any other.
        if (holds(*mLast, pattern)) {
            mLast->lastUse = mClock;
            return *mLast;
        }
        Entry* oldest = &mEntries[0];
        for (Entry& entry : mEntries) {
            if (holds(entry, pattern)) {
                entry.lastUse = mClock;
                mLast = &entry;
                return entry;
            }
            if (entry.lastUse < oldest->lastUse) oldest = &entry;
        }
        ByteRegex regex = compileClassic(pattern.data());
        oldest->lastUse = 0;  // empty until whole: the copy of the bytes may throw
        oldest->bytes.assign(pattern.data(), pattern.size());
        oldest->regex.swap(regex);
        oldest->expressionLength = std::char_traits<char>::length(pattern.data());
        oldest->uses = 1;
        oldest->simpleRead = false;
        oldest->simpleUsable = false;
        oldest->lastUse = mClock;
        mLast = oldest;
        return *oldest;
    }

private:
    // Few, so that a scan costs less than a hash; enough for the patterns of a loop.
    static constexpr std::size_t kCapacity = 16;

    static bool holds(const Entry& entry, std::string_view pattern) {
        return entry.lastUse != 0 && entry.bytes.size() == pattern.size() &&
               std::memcmp(entry.bytes.data(), pattern.data(), pattern.size()) == 0;
    }

    std::array<Entry, kCapacity> mEntries;
    Entry* mLast = &mEntries[0];
    unsigned long long mClock = 0;
};

PatternCache sCache;

// Kept, so that its storage is allocated once; a search runs no script, so no other
// search can begin while it is in use.
boost::cmatch sFound;

// One search of [first, last) with first as the text's beginning (no match_prev_avail).
bool search(const ByteRegex& regex, const char* first, const char* last, RegexMatch& match) {
    if (!boost::regex_search(first, last, sFound, regex, boost::regex_constants::match_default))
        return false;
    match.begin = sFound[0].first - first;
    match.end = sFound[0].second - first;
    return true;
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
    // The matcher of this Boost version uses only some of a random-access iterator's
    // operations; the others stay, so that another version finds them.
    [[maybe_unused]] friend CountedBytes operator+(difference_type n, CountedBytes at) {
        return at += n;
    }
    [[maybe_unused]] friend CountedBytes operator-(CountedBytes at, difference_type n) {
        return at -= n;
    }
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
    [[maybe_unused]] friend bool operator>(const CountedBytes& a, const CountedBytes& b) {
        return b < a;
    }
    [[maybe_unused]] friend bool operator<=(const CountedBytes& a, const CountedBytes& b) {
        return !(b < a);
    }
    [[maybe_unused]] friend bool operator>=(const CountedBytes& a, const CountedBytes& b) {
        return !(a < b);
    }

private:
    const char* mByte = nullptr;
    ReadBudget* mBudget = nullptr;
};

}  // namespace

// Steps a simple pattern may take over one call before the general matcher takes over. Far
// below what that matcher's bound allows one search (100000 states at least) and below
// ReplaceB's budget, even if each step costs it several: so a call that the simple form
// finishes is one that the general matcher would have finished with the same answer.
constexpr std::ptrdiff_t kSimpleSteps = 5000;

bool SearchRegex(std::string_view pattern, const char* first, const char* last, RegexMatch& match) {
    PatternCache::Entry& entry = sCache.compiled(pattern);
    if (const SimplePattern* simple = entry.simpleForm()) {
        std::ptrdiff_t stepsLeft = kSimpleSteps;
        const auto outcome = simple->Search(first, last, false, stepsLeft, match);
        if (outcome != SimplePattern::Outcome::kTooMuchWork)
            return outcome == SimplePattern::Outcome::kMatch;
    }
    return search(entry.regex, first, last, match);
}

namespace {

// A replacement of [first, last) appended to out by a simple pattern, with the matches
// taken as a replacing matcher takes them: each search begins where the last match ended,
// and after an empty match the next one may not be empty at that same place. format is a
// literal. False, with out partly filled, when the steps ran out.
bool replaceSimply(const SimplePattern& simple, const char* first, const char* last,
                   std::string_view format, bool firstOnly, std::string& out) {
    std::ptrdiff_t stepsLeft = kSimpleSteps;
    bool afterEmptyMatch = false;
    RegexMatch match{};
    for (;;) {
        const auto outcome = simple.Search(first, last, afterEmptyMatch, stepsLeft, match);
        if (outcome == SimplePattern::Outcome::kTooMuchWork) return false;
        if (outcome == SimplePattern::Outcome::kNoMatch) break;
        out.append(first, static_cast<std::size_t>(match.begin));
        out.append(format);
        afterEmptyMatch = match.begin == match.end;
        first += match.end;
        if (firstOnly) break;
    }
    out.append(first, last);
    return true;
}

// A Perl format string with neither "$" nor "\" is copied as it stands.
bool isLiteralFormat(std::string_view format) {
    return format.find_first_of("$\\") == std::string_view::npos;
}

}  // namespace

void ReplaceRegex(std::string_view pattern, const char* text, const char* first, const char* last,
                  const char* format, bool firstOnly, std::string& out) {
    PatternCache::Entry& entry = sCache.compiled(pattern);
    out.assign(text, first);
    const std::string_view literal = format;
    if (const SimplePattern* simple = entry.simpleForm(); simple && isLiteralFormat(literal)) {
        if (replaceSimply(*simple, first, last, literal, firstOnly, out)) return;
        out.assign(text, first);
    }
    ReadBudget budget(last - first, static_cast<std::ptrdiff_t>(entry.expressionLength));
    const auto flags = firstOnly ? boost::regex_constants::format_first_only
                                 : boost::regex_constants::format_default;
    boost::regex_replace(std::back_inserter(out), CountedBytes(first, &budget),
                         CountedBytes(last, &budget), entry.regex, format, flags);
}

void TrimWhiteSpace(const char*& first, const char*& last) {
    // The class that both expressions repeat, as the matcher compiles it.
    static const ByteSet sSpace = atomBytes("[\\s]");
    while (first < last && ByteSetTakes(sSpace, *first))
        ++first;
    // The trailing white space begins at the leftmost place from which only white space
    // follows. The matcher finds it by trying every place, walking each run of white space
    // to its end and back: a text whose inner runs make that too long for its complexity
    // bound is left to it, so that it raises as it always did.
    std::ptrdiff_t work = last - first;
    std::ptrdiff_t run = 0;
    for (const char* byte = first; byte < last; ++byte) {
        if (ByteSetTakes(sSpace, *byte)) {
            ++run;
            continue;
        }
        work += run * (run + 1) / 2;
        run = 0;
        if (work > kSimpleSteps) {
            static const ByteRegex sTrailing = compileClassic("[\\s]*\\z");
            RegexMatch found{};
            search(sTrailing, first, last, found);
            last = first + found.begin;
            return;
        }
    }
    last -= run;
}

}  // namespace string
}  // namespace zeblua

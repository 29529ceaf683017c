// Patterns made of single-byte atoms, searched without a general matcher's per-search set-up.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "zeblua/string/src/StringRegex.h"

namespace zeblua {
namespace string {

// The bytes an atom takes: bit (b % 64) of word (b / 64) for byte b.
using ByteSet = std::array<std::uint64_t, 4>;

inline bool ByteSetTakes(const ByteSet& bytes, char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (bytes[byte / 64] >> (byte % 64)) & 1u;
}

// The bytes the atom's text takes as one byte of a search. Given every atom but a plain
// literal byte, so that classes mean exactly what the compiled expression makes of them.
using AtomBytes = ByteSet (*)(std::string_view atomText);

// A pattern that is a sequence of atoms, each taking exactly one byte, each once or with a
// greedy "*", "+" or "?": "b[a-z]+n", "\d+\.\d*", "[^,]*". An atom is a literal byte, ".",
// "\d", "\w", "\s" or their negations, an escaped punctuation mark, or a bracket expression
// with no nested bracket. Such a pattern answers as the general matcher does (the leftmost
// start, then the greedy choices tried longest first), and a search of a short text with it
// costs less than that matcher's set-up alone. Anything else is not read.
class SimplePattern {
public:
    // Reads expression, which holds no zero byte. False for any other kind of pattern; then
    // nothing is searched with it. Throws what atomBytes throws.
    bool Read(std::string_view expression, AtomBytes atomBytes);

    enum class Outcome { kNoMatch, kMatch, kTooMuchWork };

    // The leftmost match in [first, last), first being the beginning of the text. With
    // notInitialNull an empty match at first does not count, as in the search that follows
    // an empty match of a replacement. Every byte read and every choice undone spends one of
    // stepsLeft; when none is left the answer is kTooMuchWork and the caller asks the
    // general matcher, whose complexity bound then decides.
    Outcome Search(const char* first, const char* last, bool notInitialNull,
                   std::ptrdiff_t& stepsLeft, RegexMatch& match) const;

private:
    struct Atom {
        ByteSet bytes;
        bool optional;  // "?" or "*"
        bool repeated;  // "+" or "*"
    };

    // Deep recursion is one frame per atom, so the count is bounded.
    static constexpr std::size_t kMostAtoms = 32;

    std::vector<Atom> mAtoms;
    int mLeadByte = -1;  // the one byte a match begins with, or -1
};

}  // namespace string
}  // namespace zeblua

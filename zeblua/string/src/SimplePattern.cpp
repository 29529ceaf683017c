// Patterns made of single-byte atoms, searched without a general matcher's per-search set-up.
#include "zeblua/string/src/SimplePattern.h"

#include <algorithm>
#include <cstring>

namespace zeblua {
namespace string {
namespace {

// Escaped, these stand for themselves; other escapes ("\b", "\Q", "\1", "\x41", "\<") are
// anchors, sequences, references or codes, and leave the pattern to the general matcher.
bool isLiteralEscape(char c) {
    return c != '\0' && std::strchr(".*+?()[]{}|^$\\/-", c) != nullptr;
}

// One byte of a class of the traits.
bool isClassEscape(char c) {
    return c != '\0' && std::strchr("dDwWsS", c) != nullptr;
}

// Outside brackets these shape the expression rather than match a byte.
bool isOperator(char c) {
    return c != '\0' && std::strchr("()[]{}*+?|^$", c) != nullptr;
}

bool isQuantifier(char c) {
    return c == '*' || c == '+' || c == '?';
}

// The length of the bracket expression at the start of text, or 0 when it is not one this
// reader takes: nested brackets ("[[:alpha:]]", "[[.a.]]") may name several bytes, and a
// leading "]" is a literal in some dialects and an error in others.
std::size_t bracketLength(std::string_view text) {
    std::size_t at = 1;
    if (at < text.size() && text[at] == '^') ++at;
    if (at >= text.size() || text[at] == ']') return 0;
    for (; at < text.size() && text[at] != ']'; ++at) {
        if (text[at] == '[') return 0;
        if (text[at] == '\\') {
            if (++at >= text.size()) return 0;
            if (!isClassEscape(text[at]) && !isLiteralEscape(text[at])) return 0;
        }
    }
    return at < text.size() ? at + 1 : 0;
}

// One search's walk through the choices, depth first and longest first, as a backtracking
// matcher takes them. Positions are offsets from the search's first byte.
class Walk {
public:
    Walk(const char* text, std::ptrdiff_t length, std::ptrdiff_t forbiddenEnd,
         std::ptrdiff_t stepsLeft)
        : mText(text), mLength(length), mForbiddenEnd(forbiddenEnd), mStepsLeft(stepsLeft) {}

    std::ptrdiff_t& stepsLeft() { return mStepsLeft; }

    // The end of the first match of atoms [atom, end) from at, or -1 for none; also -1 once
    // the steps have run out, which the caller tells by stepsLeft.
    template <typename AtomIterator>
    std::ptrdiff_t from(AtomIterator atom, AtomIterator end, std::ptrdiff_t at) {
        if (atom == end) return at == mForbiddenEnd ? -1 : at;
        const std::ptrdiff_t limit = atom->repeated ? mLength : std::min(mLength, at + 1);
        std::ptrdiff_t run = at;
        while (run < limit) {
            if (--mStepsLeft < 0) return -1;
            if (!ByteSetTakes(atom->bytes, mText[run])) break;
            ++run;
        }
        const std::ptrdiff_t least = atom->optional ? at : at + 1;
        for (std::ptrdiff_t next = run; next >= least; --next) {
            if (--mStepsLeft < 0) return -1;
            const std::ptrdiff_t matchEnd = from(atom + 1, end, next);
            if (matchEnd >= 0) return matchEnd;
            if (mStepsLeft < 0) return -1;
        }
        return -1;
    }

private:
    const char* mText;
    std::ptrdiff_t mLength;
    std::ptrdiff_t mForbiddenEnd;  // -1: none
    std::ptrdiff_t mStepsLeft;     // a copy, so that the walk's loops keep it in a register
};

}  // namespace

bool SimplePattern::Read(std::string_view expression, AtomBytes atomBytes) {
    mAtoms.clear();
    std::size_t at = 0;
    while (at < expression.size()) {
        const char c = expression[at];
        std::size_t length = 1;
        if (c == '\\') {
            if (at + 1 >= expression.size()) return false;
            const char escaped = expression[at + 1];
            if (!isClassEscape(escaped) && !isLiteralEscape(escaped)) return false;
            length = 2;
        } else if (c == '[') {
            length = bracketLength(expression.substr(at));
            if (length == 0) return false;
        } else if (isOperator(c)) {
            return false;
        }
        Atom atom{};
        if (length == 1 && c != '.') {
            atom.bytes[static_cast<unsigned char>(c) / 64] |=
                std::uint64_t(1) << (static_cast<unsigned char>(c) % 64);
        } else {
            atom.bytes = atomBytes(expression.substr(at, length));
        }
        at += length;
        if (at < expression.size() && isQuantifier(expression[at])) {
            atom.optional = expression[at] != '+';
            atom.repeated = expression[at] != '?';
            ++at;
            // Lazy and possessive forms, and a quantifier of a quantifier, are not read.
            if (at < expression.size() && (isQuantifier(expression[at]) || expression[at] == '{'))
                return false;
        } else if (at < expression.size() && expression[at] == '{') {
            return false;
        }
        if (mAtoms.size() == kMostAtoms) return false;
        mAtoms.push_back(atom);
    }
    if (mAtoms.empty()) return false;
    mLeadByte = -1;
    const ByteSet& lead = mAtoms.front().bytes;
    if (!mAtoms.front().optional && lead[0] + lead[1] + lead[2] + lead[3] != 0) {
        // One byte alone: its first place is found by the C library's scan.
        int count = 0;
        for (std::size_t word = 0; word < lead.size(); ++word)
            for (unsigned bit = 0; bit < 64; ++bit)
                if ((lead[word] >> bit) & 1u) {
                    ++count;
                    mLeadByte = static_cast<int>(word * 64 + bit);
                }
        if (count != 1) mLeadByte = -1;
    }
    return true;
}

SimplePattern::Outcome SimplePattern::Search(const char* first, const char* last,
                                             bool notInitialNull, std::ptrdiff_t& stepsLeft,
                                             RegexMatch& match) const {
    const std::ptrdiff_t length = last - first;
    Walk walk(first, length, notInitialNull ? 0 : -1, stepsLeft);
    std::ptrdiff_t& steps = walk.stepsLeft();
    const Atom& lead = mAtoms.front();
    Outcome outcome = Outcome::kNoMatch;
    for (std::ptrdiff_t start = 0; start <= length; ++start) {
        if (!lead.optional) {
            // A match begins with a byte that the first atom takes: skip to one.
            const std::ptrdiff_t from = start;
            if (mLeadByte >= 0) {
                const void* found = std::memchr(first + start, mLeadByte, length - start);
                start = found ? static_cast<const char*>(found) - first : length;
            } else {
                while (start < length && !ByteSetTakes(lead.bytes, first[start]))
                    ++start;
            }
            steps -= start - from;
            if (steps < 0) {
                outcome = Outcome::kTooMuchWork;
                break;
            }
            if (start == length) break;
        }
        const std::ptrdiff_t end = walk.from(mAtoms.begin(), mAtoms.end(), start);
        if (steps < 0) {
            outcome = Outcome::kTooMuchWork;
            break;
        }
        if (end >= 0) {
            match.begin = start;
            match.end = end;
            outcome = Outcome::kMatch;
            break;
        }
    }
    stepsLeft = steps;
    return outcome;
}

}  // namespace string
}  // namespace zeblua

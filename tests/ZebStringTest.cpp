// zebString: byte positions, regular expressions, Unicode conversions and the silent rows.
#include <cctype>
#include <locale>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <boost/regex.hpp>
#include <gmock/gmock.h>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zebcore/config/Localizer.h"
#include "zeblua/string/src/SimplePattern.h"
#include "zeblua/string/src/ZebString.h"

using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

// probe(length [, pos]): the position helper with "Probe" as the name and 7 as the default.
int probeOptionalPos(lua_State* L) {
    const int length = static_cast<int>(luaL_checkinteger(L, 1));
    lua_pushinteger(L, zeblua::string::GetOptionalOneBasedPos(L, 2, length, "Probe", 7));
    return 1;
}

}  // namespace

class ZebStringTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        // pack(...) shows every result, so "" is no result and "nil" is one nil.
        runLua("S = zebString\n"
               "function pack(...)\n"
               "  local t = {}\n"
               "  for i = 1, select('#', ...) do t[i] = tostring((select(i, ...))) end\n"
               "  return table.concat(t, ',')\n"
               "end");
    }

    std::string results(const std::string& call) { return luaValue("pack(" + call + ")"); }

    void expectResults(const std::vector<std::pair<std::string, std::string>>& cases) {
        for (const auto& [call, expected] : cases)
            EXPECT_EQ(results(call), expected) << call;
    }

    void expectErrors(const std::vector<std::pair<std::string, std::string>>& cases) {
        for (const auto& [call, message] : cases)
            EXPECT_EQ(luaError(call), message) << call;
    }
};

TEST_F(ZebStringTest, PositionHelperDefaultsOnlyForMissingOrNilAndCountsNegativesFromTheEnd) {
    lua_register(L, "probe", probeOptionalPos);
    expectResults({{"probe(3)", "7"},
                   {"probe(3, nil)", "7"},
                   {"probe(0)", "7"},
                   {"probe(3, 1)", "1"},
                   {"probe(3, 3)", "3"},
                   {"probe(3, -1)", "3"},
                   {"probe(3, -3)", "1"}});
    // The message is the plain string: Lua adds no source position.
    for (const char* call : {"probe(3, 0)", "probe(3, 4)", "probe(3, -4)", "probe(0, 1)"})
        EXPECT_EQ(luaError(call), "Probe: Invalid stack position") << call;
    EXPECT_THAT(luaError("probe(3, '2')"), HasSubstr("number expected, got string"));
}

TEST_F(ZebStringTest, ByteFunctionsTakeOneBasedBytePositions) {
    expectResults({{"S.GetCharB('abc', 1)", "a"},
                   {"S.GetCharB('abc', -1)", "c"},
                   {"S.GetCharB('\xC3\xA9x', 2)", "\xA9"},  // one byte of a two-byte character
                   {"S.IsSpaceB(' x')", "true"},
                   {"S.IsSpaceB(' x', 2)", "false"},
                   {"S.IsSpaceB('\\tx')", "true"},
                   {"S.IsSpaceB('')", "false"},  // the terminating zero byte
                   {"S.IsAlphaB('a1')", "true"},
                   {"S.IsAlphaB('a1', -1)", "false"},
                   {"S.IsAlphaB('\xC3\xA9')", "false"}});
    expectErrors({{"S.GetCharB('abc', 4)", "GetCharB: Invalid stack position"},
                  {"S.GetCharB('abc', 0)", "GetCharB: Invalid stack position"},
                  {"S.IsSpaceB('', 1)", "IsSpaceB: Invalid stack position"},
                  {"S.IsAlphaB('ab', -3)", "IsAlphaB: Invalid stack position"},
                  {"S.MatchB('', 'x', 1)", "MatchB: Invalid stack position"},
                  {"S.ReplaceB('abc', 'a', 'b', 4)", "ReplaceB: Invalid stack position"}});
    // The position of GetCharB is required, and a numeric string is no number.
    EXPECT_THAT(luaError("S.GetCharB('abc')"), HasSubstr("bad argument #2 to 'GetCharB'"));
    EXPECT_THAT(luaError("S.GetCharB('abc', '2')"), HasSubstr("number expected, got string"));
}

TEST_F(ZebStringTest, SubstringBHasItsOwnNegativeRuleAndClampsTheStart) {
    expectResults({{"S.SubstringB('hello', 2)", "ello"},
                   {"S.SubstringB('hello', 2, 2)", "el"},
                   {"S.SubstringB('hello', 2, 0)", "ello"},
                   {"S.SubstringB('hello', 2, nil)", "ello"},
                   {"S.SubstringB('hello', -1)", "lo"},
                   {"S.SubstringB('hello', -2, 1)", "l"},
                   {"S.SubstringB('hello', 9)", "o"},
                   {"S.SubstringB('hello', -9)", "hello"},
                   {"S.SubstringB('hello', 4, 99)", "lo"},
                   {"S.SubstringB('', 1)", ""},
                   {"S.SubstringB('', -1)", ""}});
    EXPECT_EQ(luaValue("#S.SubstringB('a\\0b', 1)"), "3");  // zero bytes survive
    EXPECT_EQ(luaError("S.SubstringB('x', 0)"), "SubstringB: Bad character count, must be >= 0");
    EXPECT_EQ(luaError("S.SubstringB('x', 1, -1)"),
              "SubstringB: Bad character count, must be >= 0");
    EXPECT_THAT(luaError("S.SubstringB('x')"), HasSubstr("number expected, got no value"));
    EXPECT_THAT(luaError("S.SubstringB('x', 1, '1')"), HasSubstr("number expected, got string"));
}

TEST_F(ZebStringTest, MatchBAnchorsAtTheStartPositionAndCountsFromTheStartOfTheString) {
    expectResults({{"S.MatchB('abc', 'b')", "2,3"},
                   {"S.MatchB('abc', 'x*')", "1,1"},
                   {"S.MatchB('abc', 'b', 3)", "nil"},
                   {"S.MatchB('abcabc', 'b', 3)", "5,6"},
                   {"S.MatchB('abc', '^b', 2)", "2,3"},
                   {"S.MatchB('abc', '\\\\Ab', 2)", "2,3"},
                   {"S.MatchB('abc', '(?<=a)b', 2)", "nil"},  // look-behind sees nothing before pos
                   {"S.MatchB('abc', '(?<=a)b')", "2,3"},
                   {"S.MatchB('abc', 'B')", "nil"},
                   {"S.MatchB('abc', '(?i)B')", "2,3"},
                   {"S.MatchB('\xC3\xA9x', '^.x')", "nil"},  // "." is one byte
                   {"S.MatchB('\xC3\xA9x', '^..x')", "1,4"},
                   {"S.MatchB('ab\\0b', 'b', 3)", "nil"},  // the search ends at a zero byte
                   {"S.MatchB('', 'x')", "nil"}});
}

TEST_F(ZebStringTest, ReplaceBCopiesThePrefixAndHonoursTheFirstOnlyFlag) {
    expectResults({{"S.ReplaceB('aaa', 'a', 'b')", "bbb"},
                   {"S.ReplaceB('aaa', 'a', 'b', 2, false)", "aba"},
                   {"S.ReplaceB('aaa', 'a', 'b', 2, true)", "abb"},
                   {"S.ReplaceB('aaa', 'a', 'b', nil, false)", "baa"},
                   {"S.ReplaceB('aaa', '^a', 'b', 3)", "aab"},
                   {"S.ReplaceB('a1b2', '([0-9])', '<$1>')", "a<1>b<2>"},
                   {"S.ReplaceB('ab', 'b', '[$&]')", "a[b]"},
                   {"S.ReplaceB('a\\0b', 'b', 'c')", "a"}});  // pushed up to its first zero
    EXPECT_THAT(luaError("S.ReplaceB('a', 'a', 'b', 1, 0)"), HasSubstr("boolean expected"));
}

TEST_F(ZebStringTest, TrimAndCompare) {
    expectResults({{"S.Trim('  a b \\t')", "a b"},
                   {"S.Trim('\\n\\v\\f\\rx\\r\\n')", "x"},
                   {"S.Trim('   ')", ""},
                   {"S.Trim('')", ""},
                   {"S.Trim(' a\\0 b')", "a"},
                   // Compare keeps std::string::compare's size: the length difference.
                   {"S.Compare('a', 'a')", "0"},
                   {"S.Compare('ab', 'a')", "1"},
                   {"S.Compare('a', 'abc')", "-2"},
                   {"S.Compare('abcd', 'a')", "3"},
                   {"S.Compare('a\\0x', 'a')", "0"}});
    EXPECT_EQ(luaValue("S.Compare('Z', 'a') < 0"), "true");
    EXPECT_EQ(luaValue("S.Compare('\xC3\xA9', 'z') > 0"), "true");  // bytes compare unsigned
}

TEST_F(ZebStringTest, TheTwentyFourRowsWithoutBehaviourReturnNoValueAndCheckNothing) {
    runLua("silent = {'GetChar', 'GetCharBytePos', 'GetCharPosB', 'GetLength', 'IsStringAscii',\n"
           "  'IsAscii', 'IsAsciiB', 'IsSpace', 'IsAlpha', 'IsPunct', 'IsPunctB', 'IsNumber',\n"
           "  'IsNumberB', 'IsControl', 'IsControlB', 'IsUpper', 'IsUpperB', 'IsLower',\n"
           "  'IsLowerB', 'Substring', 'TrimLeft', 'TrimRight', 'Match', 'Replace'}");
    EXPECT_EQ(luaValue("#silent"), "24");
    EXPECT_EQ(
        luaValue("(function() local n = 0 for _ in pairs(S) do n = n + 1 end return n end)()"),
        "38");
    for (int row = 1; row <= 24; ++row) {
        const std::string name = luaValue("silent[" + std::to_string(row) + "]");
        for (const char* arguments : {"", "'abc'", "'abc', 1", "nil, {}, true, print"})
            EXPECT_EQ(resultCount("S." + name + "(" + arguments + ")"), 0) << name << arguments;
    }
    EXPECT_EQ(luaValue("S.GetLength('abc')"), "nil");  // only through result adjustment
}

TEST_F(ZebStringTest, CaseMappingAndUTF16ConversionGoThroughUnicode) {
    expectResults({{"S.ToUpper('stra\xC3\x9F"
                    "e')",
                    "STRASSE"},
                   {"S.ToLower('\xC3\x84"
                    "B')",
                    "\xC3\xA4"
                    "b"},
                   {"S.ToUpper('a\\0b')", "A"},
                   {"S.UTF8to16('')", ""}});
    EXPECT_EQ(luaValue("S.UTF8to16('A') == 'A\\0'"), "true");
    EXPECT_EQ(luaValue("#S.UTF8to16('\xF0\x9D\x84\x9E')"), "4");  // a surrogate pair
    const std::string text = "h\xC3\xA9llo \xE2\x82\xAC \xF0\x9D\x84\x9E";
    EXPECT_EQ(luaValue("S.UTF16to8(S.UTF8to16('" + text + "'))"), text);
    // Reading stops at the first zero unit; an odd last byte is no code unit.
    expectResults({{"S.UTF16to8('a\\0\\0\\0b\\0')", "a"},
                   {"S.UTF16to8('a\\0b')", "a"},
                   {"S.UTF16to8('')", ""}});
    // Invalid UTF-8 converts without failing.
    EXPECT_EQ(luaValue("S.UTF16to8(S.UTF8to16('a\\255b'))"), "a\xEF\xBF\xBD"
                                                             "b");
}

TEST_F(ZebStringTest, LocalizeLooksUpTheRunningLanguageAndFallsBackToTheDefaultText) {
    expectResults({{"S.Localize('$$$/zebhost/Greeting=Hi')", "Hello from the resources"},
                   {"S.Localize('$$$/zebstring/Missing=Default text')", "Default text"},
                   {"S.Localize('')", ""}});
    EXPECT_EQ(resultCount("S.Localize('')"), 0);
    auto* localizer = zebcore::config::Localizer::Get();
    const std::string language = localizer->GetLanguage();
    localizer->SetLanguage("de");
    EXPECT_EQ(luaValue("S.Localize('$$$/zebhost/Greeting=Hi')"), "Hallo aus den Ressourcen");
    localizer->SetLanguage(language);
}

TEST_F(ZebStringTest, ReplaceInStringFillsPlaceholdersUpToTheFirstNil) {
    for (const char* call : {"S.ReplaceInString()", "S.ReplaceInString('x')",
                             "S.ReplaceInString('', 'y')", "S.ReplaceInString('x', '')"})
        EXPECT_EQ(resultCount(call), 0) << call;
    expectResults({{"S.ReplaceInString('^1 and ^2', 'a', 'b')", "a and b"},
                   {"S.ReplaceInString('^1-^2', 'a', nil, 'b')", "a-^2"},
                   {"S.ReplaceInString('^1[^2]', 'a', '')", "a[]"},
                   {"S.ReplaceInString('^^^1', 5)", "^5"},
                   {"S.ReplaceInString('^1\\0^1', 'a\\0b')", "a"},
                   {"S.ReplaceInString('^1 ^2', 'a', nil, {})", "a ^2"}});
    EXPECT_THAT(luaError("S.ReplaceInString('^1', 'a', {})"),
                HasSubstr("bad argument #3 to 'ReplaceInString'"));
    EXPECT_THAT(luaError("S.ReplaceInString({}, 'a')"), HasSubstr("bad argument #1"));
}

TEST_F(ZebStringTest, ABadPatternIsALuaErrorThatLeavesTheStateUsable) {
    EXPECT_THAT(luaError("S.MatchB('abc', '(')"), StartsWith("test:1: MatchB: "));
    EXPECT_THAT(luaError("S.MatchB('abc', '[a')"), HasSubstr("regular expression"));
    EXPECT_THAT(luaError("S.ReplaceB('abc', 'a{2,1}', 'x', 2)"), HasSubstr("ReplaceB: "));
    EXPECT_EQ(results("pcall(S.MatchB, 'abc', '(')").substr(0, 6), "false,");
    EXPECT_EQ(results("S.MatchB('abc', 'c')"), "3,4");
}

// Patterns are kept once compiled, a few at a time: a bad one raises at every call, and one
// pushed out by many others answers the same when it comes back.
TEST_F(ZebStringTest, KeptPatternsAnswerAsFreshlyCompiledOnes) {
    for (int call = 0; call < 3; ++call)
        EXPECT_THAT(luaError("S.MatchB('abc', '(')"), StartsWith("test:1: MatchB: ")) << call;
    runLua("for k = 1, 40 do S.MatchB('abc', 'x' .. k) S.ReplaceB('abc', 'y' .. k, 'z') end");
    expectResults({{"S.MatchB('abcabc', 'b+c', 3)", "5,7"},
                   {"S.ReplaceB('a1b22', '[0-9]+', '#')", "a#b#"},
                   {"S.MatchB('abc', 'x17')", "nil"},
                   {"S.MatchB('ab', 'b')", "2,3"},
                   {"S.Trim('  kept  ')", "kept"}});
    EXPECT_THAT(luaError("S.ReplaceB('abc', '(', 'x')"), HasSubstr("ReplaceB: "));
    EXPECT_THAT(luaError("S.ReplaceB('abc', '(', 'x')"), HasSubstr("ReplaceB: "));
    // A result above the kept size is whole, and the next small one is not left over it.
    expectResults({{"#S.ReplaceB(string.rep('a', 100000), 'a', 'bb')", "200000"},
                   {"S.ReplaceB('abc', 'b', '')", "ac"}});
}

// Numbers beyond any string (2^63, -2^63, 1e19, infinities, NaN) are clamped before they
// become integers: an unclamped conversion is undefined, and 1e19 used to come back as
// -2^63 and count from the wrong end.
TEST_F(ZebStringTest, PositionsAndCountsBeyondAnyStringAnswerAsTheStringsEndsDo) {
    runLua("big, inf, nan = 2^63, 1/0, 0/0");
    expectResults({{"S.SubstringB('hello', big)", "o"},
                   {"S.SubstringB('hello', 1e19)", "o"},
                   {"S.SubstringB('hello', inf)", "o"},
                   {"S.SubstringB('hello', -big)", "hello"},
                   {"S.SubstringB('hello', -inf)", "hello"},
                   {"S.SubstringB('hello', 2, big)", "ello"},
                   {"S.SubstringB('hello', 2, 1e19)", "ello"},
                   {"S.SubstringB('hello', 2, inf)", "ello"},
                   {"S.SubstringB('hello', 2.9, 2.9)", "el"},  // truncated toward zero
                   {"S.SubstringB('hello', -big, 2)", "he"}});
    for (const char* call : {"S.SubstringB('hello', nan)", "S.SubstringB('hello', 1, nan)",
                             "S.SubstringB('hello', 1, -big)", "S.SubstringB('hello', 1, -inf)",
                             "S.SubstringB('hello', 0.5)"})
        EXPECT_EQ(luaError(call), "SubstringB: Bad character count, must be >= 0") << call;
    expectErrors({{"S.GetCharB('abc', big)", "GetCharB: Invalid stack position"},
                  {"S.GetCharB('abc', -1e19)", "GetCharB: Invalid stack position"},
                  {"S.GetCharB('abc', nan)", "GetCharB: Invalid stack position"},
                  {"S.IsSpaceB('abc', -inf)", "IsSpaceB: Invalid stack position"},
                  {"S.IsAlphaB('abc', 1e19)", "IsAlphaB: Invalid stack position"},
                  {"S.MatchB('abc', 'b', nan)", "MatchB: Invalid stack position"},
                  {"S.ReplaceB('abc', 'a', 'b', -big)", "ReplaceB: Invalid stack position"}});
    EXPECT_EQ(results("S.GetCharB('abc', -3.5)"), "a");
}

// The complexity bound holds for the whole of a ReplaceB call, as for one MatchB search:
// a pattern that backtracks over the rest of the text at every match raises Boost's
// complexity error in seconds, where it used to run for minutes. A plain replacement of
// every byte of a long text stays well inside the bound.
TEST_F(ZebStringTest, ReplaceBBoundsTheWholeCallAsMatchBBoundsOneSearch) {
    runLua("long = string.rep('a', 38000)");
    EXPECT_EQ(results("S.MatchB(long, 'a*?b|a')"), "1,2");
    EXPECT_THAT(luaError("S.ReplaceB(long, 'a*?b|a', 'x')"),
                HasSubstr("ReplaceB: The complexity of matching the regular expression exceeded"));
    EXPECT_EQ(luaValue("S.ReplaceB(string.rep('ab', 100000), '.', 'x') == string.rep('x', 2e5)"),
              "true");
    EXPECT_EQ(
        luaValue("S.ReplaceB(long, 'a*?b|a', 'x', 37990) == long:sub(1, 37989) .. 'xxxxxxxxxxx'"),
        "true");
}

namespace {

using zeblua::string::ByteSet;
using zeblua::string::RegexMatch;
using zeblua::string::SimplePattern;
using ByteRegex =
    boost::basic_regex<char, boost::regex_traits<char, boost::cpp_regex_traits<char>>>;

ByteRegex classicRegex(const std::string& expression) {
    ByteRegex regex;
    regex.imbue(std::locale::classic());
    regex.assign(expression);
    return regex;
}

// The bytes an atom takes, asked byte by byte: another way than the library's.
ByteSet bytesMatchedOneByOne(std::string_view atom) {
    const ByteRegex regex = classicRegex(std::string(atom));
    ByteSet bytes{};
    for (int value = 0; value < 256; ++value) {
        const char byte = static_cast<char>(value);
        if (boost::regex_match(&byte, &byte + 1, regex))
            bytes[value / 64] |= std::uint64_t(1) << (value % 64);
    }
    return bytes;
}

std::string shown(bool found, const RegexMatch& match) {
    return found ? std::to_string(match.begin) + "," + std::to_string(match.end) : "nil";
}

// Random patterns of the atoms and quantifiers a simple pattern is made of, and texts of
// the bytes those atoms tell apart.
struct PatternMaker {
    std::mt19937 random{20261123};

    std::string pick(const std::vector<std::string>& from) {
        return from[std::uniform_int_distribution<std::size_t>(0, from.size() - 1)(random)];
    }
    std::string pattern() {
        static const std::vector<std::string> kAtoms = {
            "a",    "b",    "c",     ".",   "\\d", "\\s", "\\w",    "\\W", "\\S",  "\\D",
            "[ab]", "[^a]", "[a-c]", "\\.", "-",   " ",   "[\\d.]", "\\-", "\xC3", "[^\\s]"};
        static const std::vector<std::string> kQuantifiers = {"", "", "*", "+", "?"};
        std::string made;
        for (int atoms = std::uniform_int_distribution<int>(1, 4)(random); atoms > 0; --atoms)
            made += pick(kAtoms) + pick(kQuantifiers);
        return made;
    }
    std::string text() {
        static const std::string kBytes = "abc .1-_\n\t\xC3\xA9";
        std::string made;
        for (int length = std::uniform_int_distribution<int>(0, 10)(random); length > 0; --length)
            made +=
                kBytes[std::uniform_int_distribution<std::size_t>(0, kBytes.size() - 1)(random)];
        return made;
    }
};

}  // namespace

// A pattern of single-byte atoms is searched without the general matcher: it must answer
// as that matcher does, also after an empty match (no empty match at the start then), and
// its byte classes must be the matcher's own. The reference here is Boost itself.
TEST(ZebStringSimplePattern, SearchesAnswerAsTheGeneralMatcherDoes) {
    PatternMaker maker;
    int readPatterns = 0;
    for (int round = 0; round < 400; ++round) {
        const std::string expression = maker.pattern();
        SimplePattern simple;
        ASSERT_TRUE(simple.Read(expression, bytesMatchedOneByOne)) << expression;
        ++readPatterns;
        const ByteRegex regex = classicRegex(expression);
        for (int textRound = 0; textRound < 20; ++textRound) {
            const std::string text = maker.text();
            for (bool afterEmpty : {false, true}) {
                const auto flags = afterEmpty ? boost::regex_constants::match_not_initial_null
                                              : boost::regex_constants::match_default;
                boost::cmatch found;
                const bool boostFound = boost::regex_search(text.data(), text.data() + text.size(),
                                                            found, regex, flags);
                RegexMatch expected{};
                if (boostFound) {
                    expected.begin = found[0].first - text.data();
                    expected.end = found[0].second - text.data();
                }
                std::ptrdiff_t steps = 1 << 20;
                RegexMatch match{};
                const auto outcome =
                    simple.Search(text.data(), text.data() + text.size(), afterEmpty, steps, match);
                ASSERT_NE(outcome, SimplePattern::Outcome::kTooMuchWork) << expression;
                EXPECT_EQ(shown(outcome == SimplePattern::Outcome::kMatch, match),
                          shown(boostFound, expected))
                    << "/" << expression << "/ in \"" << text << "\" after empty " << afterEmpty;
            }
        }
    }
    EXPECT_EQ(readPatterns, 400);
}

// Anything else is not read, and so goes to the general matcher: groups, alternatives,
// counted, lazy and possessive repeats, anchors, references, nested brackets, escapes of
// sequences and codes.
TEST(ZebStringSimplePattern, ReadsOnlySequencesOfSingleByteAtoms) {
    for (const char* expression :
         {"",   "(a)",    "a|b",  "a{2}", "a{",  "a*?",     "a++",   "a**",  "*a",          "^a",
          "a$", "\\bx",   "\\Ax", "a\\z", "\\1", "\\Qa\\E", "\\x41", "\\<a", "[[:alpha:]]", "[]a]",
          "[a", "[a\\b]", "a]",   "a}",   "\\",  "\\n",     "(?i)a"}) {
        SimplePattern simple;
        EXPECT_FALSE(simple.Read(expression, bytesMatchedOneByOne)) << expression;
    }
    SimplePattern simple;
    EXPECT_TRUE(simple.Read("b[a-z]+n\\.?[^,]*\\d", bytesMatchedOneByOne));
    // Each step spends one; none left is an answer of its own, not a wrong "no match".
    std::ptrdiff_t steps = 3;
    RegexMatch match{};
    const std::string text = "xxxxbrown.,1";
    EXPECT_EQ(simple.Search(text.data(), text.data() + text.size(), false, steps, match),
              SimplePattern::Outcome::kTooMuchWork);
}

// The same through zebString, where a pattern's second and later calls take the simple
// form: MatchB and ReplaceB from random positions, replacing all or the first match only.
TEST_F(ZebStringTest, RepeatedSimplePatternsAnswerAsBoostDoes) {
    PatternMaker maker;
    const std::string replacement = "<>";
    // Globals, so that the bytes reach Lua as they are, zero and high bytes included.
    auto setGlobal = [this](const char* name, const std::string& bytes) {
        lua_pushlstring(L, bytes.data(), bytes.size());
        lua_setglobal(L, name);
    };
    setGlobal("replacement", replacement);
    for (int round = 0; round < 60; ++round) {
        const std::string expression = maker.pattern();
        const ByteRegex regex = classicRegex(expression);
        setGlobal("pattern", expression);
        for (int textRound = 0; textRound < 12; ++textRound) {
            std::string text = maker.text();
            if (text.empty()) text = "a";
            setGlobal("text", text);
            const int pos = 1 + std::uniform_int_distribution<int>(
                                    0, static_cast<int>(text.size()) - 1)(maker.random);
            const char* first = text.data() + pos - 1;
            const char* last = text.data() + text.size();
            boost::cmatch found;
            const std::string expectedMatch =
                boost::regex_search(first, last, found, regex)
                    ? std::to_string(pos + (found[0].first - first)) + "," +
                          std::to_string(pos + (found[0].second - first))
                    : "nil";
            EXPECT_EQ(results("S.MatchB(text, pattern, " + std::to_string(pos) + ")"),
                      expectedMatch)
                << "/" << expression << "/ in \"" << text << "\" from " << pos;
            for (bool all : {true, false}) {
                const std::string expected =
                    text.substr(0, pos - 1) +
                    boost::regex_replace(std::string(first, last), regex, replacement,
                                         all ? boost::regex_constants::format_default
                                             : boost::regex_constants::format_first_only);
                EXPECT_EQ(results("S.ReplaceB(text, pattern, replacement, " + std::to_string(pos) +
                                  (all ? ", true)" : ", false)")),
                          expected)
                    << "/" << expression << "/ in \"" << text << "\" from " << pos << " all "
                    << all;
            }
        }
    }
}

// Where the simple form would take long, the general matcher decides, complexity bound
// included; and a kept pattern is its expression only, up to its first zero byte.
TEST_F(ZebStringTest, SimpleFormsLeaveLongWorkAndTrailingBytesAlone) {
    runLua("many = string.rep('a', 60)");
    for (int call = 0; call < 3; ++call) {
        EXPECT_THAT(luaError("S.MatchB(many, 'a*a*a*a*c')"),
                    HasSubstr("MatchB: The complexity of matching the regular expression exceeded"))
            << call;
        EXPECT_EQ(results("S.MatchB('abc', 'b\\0c')"), "2,3") << call;
        EXPECT_EQ(results("S.ReplaceB('abcb', 'b\\0c', 'x')"), "axcx") << call;
        EXPECT_EQ(results("S.MatchB(many .. 'c', 'a*a*a*a*c')"), "1,62") << call;
    }
    // Long inner white space makes Trim's trailing search long: the matcher takes it.
    EXPECT_EQ(luaValue("S.Trim(' x' .. string.rep(' ', 300) .. 'y\\t') == 'x' .. "
                       "string.rep(' ', 300) .. 'y'"),
              "true");
}

namespace {

// A ctype that also counts 0x85 and 0xA0 as space and 0xE0 as a letter, as a host's
// single-byte locale might.
class WiderClassesCtype : public std::ctype<char> {
public:
    WiderClassesCtype() : std::ctype<char>(table()) {}

private:
    static const mask* table() {
        static const std::vector<mask> sTable = [] {
            std::vector<mask> wider(classic_table(), classic_table() + table_size);
            wider[0x85] |= space;
            wider[0xA0] |= space;
            wider[0xE0] |= alpha | lower;
            return wider;
        }();
        return sTable.data();
    }
};

class GlobalLocale {
public:
    explicit GlobalLocale(const std::locale& locale) : mPrevious(std::locale::global(locale)) {}
    ~GlobalLocale() { std::locale::global(mPrevious); }

private:
    std::locale mPrevious;
};

}  // namespace

// Patterns are compiled with the classic locale: a global locale that a host sets changes
// no class, so "\s" never takes a byte of a UTF-8 character ("\xC3\xA0" is "a" with grave,
// "\xC3\x85" is "A" with ring), before or after the pattern was first kept.
TEST_F(ZebStringTest, AHostsGlobalLocaleChangesNoPatternsMeaning) {
    EXPECT_EQ(results("S.MatchB('a\\195\\160b', '\\\\s')"), "nil");
    const GlobalLocale wider(std::locale(std::locale::classic(), new WiderClassesCtype));
    ASSERT_TRUE(std::isspace('\xA0', std::locale()));  // the locale would change a class
    for (int call = 0; call < 2; ++call) {
        expectResults({{"S.MatchB('a\\195\\160b', '\\\\s')", "nil"},
                       {"S.MatchB('a\\195\\133 b', '[\\\\s]+')", "4,5"},
                       {"S.MatchB('\\224', '\\\\w')", "nil"},
                       {"S.ReplaceB('x\\160y', '\\\\s', '_')", "x\xA0y"},
                       {"S.Trim(' \\195\\160')", "\xC3\xA0"},
                       {"S.Trim('\\195\\133 ')", "\xC3\x85"}});
    }
}

// zebString from a Lua loop: a plain string function, called exactly as the no-op floor
// is, f(a, b) with f and both strings in locals; and the regular expression functions with
// one pattern used again and again, against Boost.Regex doing the same work with that
// pattern compiled once.
#include <initializer_list>
#include <iterator>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>
#include <boost/regex.hpp>

#include "bench/BenchRegistry.h"
#include "bench/BenchSession.h"

namespace zebbench {

namespace {

// What the module compiles: one element per byte, Perl syntax.
using ByteRegex =
    boost::basic_regex<char, boost::regex_traits<char, boost::cpp_regex_traits<char>>>;

const char kSentence[] = "the quick brown fox";
const char kWord[] = "b[a-z]+n";
// The same word through a group: a pattern that only the general matcher searches, where
// kWord, a run of single-byte atoms, takes the short path.
const char kGroupedWord[] = "(b[a-z]+)n";
const char kColour[] = "red";
const char kPadded[] = "  \t padded words \r\n";
// The two patterns Trim searches with: leading and trailing white space.
const char kLeadingSpace[] = "\\A[\\s]*";
const char kTrailingSpace[] = "[\\s]*\\z";

// -- for i = 1, n do f(...) end, with f = zebString[function] and the strings as locals
Step stringLoop(int ops, const char* function, const char* locals, const char* call,
                std::initializer_list<const char*> strings) {
    auto session = std::make_shared<BenchSession>();
    lua_State* L = session->L();
    lua_getglobal(L, "zebString");
    lua_getfield(L, -1, function);
    lua_remove(L, -2);
    for (const char* text : strings)
        lua_pushstring(L, text);
    const int loop = session->compileLoop(LoopChunk(locals, call), 1 + int(strings.size()));
    return LoopStep(session, loop, ops);
}

// Two strings that share a prefix, so the comparison walks some bytes.
Step compare(int ops) {
    return stringLoop(ops, "Compare", "f, a, b", "f(a, b)",
                      {"alpha/beta/gamma", "alpha/beta/delta"});
}

Step matchB(int ops) {
    return stringLoop(ops, "MatchB", "f, a, b", "f(a, b)", {kSentence, kWord});
}

Step matchBGrouped(int ops) {
    return stringLoop(ops, "MatchB", "f, a, b", "f(a, b)", {kSentence, kGroupedWord});
}

Step replaceB(int ops) {
    return stringLoop(ops, "ReplaceB", "f, a, b, c", "f(a, b, c)", {kSentence, kWord, kColour});
}

Step trim(int ops) {
    return stringLoop(ops, "Trim", "f, a", "f(a)", {kPadded});
}

// ops runs of op per step; op owns what it works with.
template <class Op> Step repeatNative(int ops, Op op) {
    return [ops, op]() mutable {
        for (int i = 0; i < ops; ++i)
            op();
    };
}

const char* const kSentenceEnd = kSentence + sizeof kSentence - 1;

Step searchSentence(int ops, const char* pattern) {
    return repeatNative(ops, [regex = ByteRegex(pattern), found = boost::cmatch()]() mutable {
        benchmark::DoNotOptimize(boost::regex_search(kSentence, kSentenceEnd, found, regex));
        benchmark::DoNotOptimize(found[0].first - kSentence);
    });
}

Step boostSearch(int ops) {
    return searchSentence(ops, kWord);
}

Step boostSearchGrouped(int ops) {
    return searchSentence(ops, kGroupedWord);
}

// Into one string, as a result is built before Lua copies it.
Step boostReplace(int ops) {
    return repeatNative(ops, [regex = ByteRegex(kWord), out = std::string()]() mutable {
        out.clear();
        boost::regex_replace(std::back_inserter(out), kSentence, kSentenceEnd, regex, kColour);
        benchmark::DoNotOptimize(out.data());
    });
}

Step boostTrim(int ops) {
    return repeatNative(ops, [leadingSpace = ByteRegex(kLeadingSpace),
                              trailingSpace = ByteRegex(kTrailingSpace),
                              found = boost::cmatch()]() mutable {
        const char* last = kPadded + sizeof kPadded - 1;
        boost::regex_search(kPadded, last, found, leadingSpace);
        const char* first = found[0].second;
        boost::regex_search(first, last, found, trailingSpace);
        benchmark::DoNotOptimize(found[0].first - first);
    });
}

}  // namespace

void RegisterStringBenchmarks() {
    RegisterCase("string/Compare", "zebString.Compare(a, b)", "floor/LuaCallsNoop", 1000, compare);
    RegisterFloor("floor/BoostSearch", "Boost regex_search, compiled once", 1000, boostSearch);
    RegisterCase("string/MatchB", "zebString.MatchB(s, regex), same regex", "floor/BoostSearch",
                 1000, matchB);
    RegisterFloor("floor/BoostSearchGrouped", "Boost regex_search, a group, compiled once", 1000,
                  boostSearchGrouped);
    RegisterCase("string/MatchBGrouped", "zebString.MatchB(s, regex), a group, same regex",
                 "floor/BoostSearchGrouped", 1000, matchBGrouped);
    RegisterFloor("floor/BoostReplace", "Boost regex_replace, compiled once", 1000, boostReplace);
    RegisterCase("string/ReplaceB", "zebString.ReplaceB(s, regex, text), same regex",
                 "floor/BoostReplace", 1000, replaceB);
    RegisterFloor("floor/BoostTrim", "Boost: Trim's two searches, compiled once", 1000, boostTrim);
    RegisterCase("string/Trim", "zebString.Trim(s)", "floor/BoostTrim", 1000, trim);
}

}  // namespace zebbench

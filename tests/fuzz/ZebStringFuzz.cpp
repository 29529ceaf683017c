// Fuzz target: zebString's functions with arbitrary texts, positions, counts and patterns.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include <lua.hpp>

#include "tests/fuzz/support/FuzzLua.h"

namespace {

// One row per function with behaviour; its arguments by kind:
// t text, p pattern, f replacement format, i position or count, b flag.
struct Row {
    const char* name;
    const char* arguments;
    bool answersPositions;
};
const Row kRows[] = {
    {"GetCharB", "ti", false},    {"IsSpaceB", "ti", false}, {"IsAlphaB", "ti", false},
    {"Localize", "t", false},     {"Trim", "t", false},      {"ReplaceInString", "ttttt", false},
    {"SubstringB", "tii", false}, {"MatchB", "tpi", true},   {"ReplaceB", "tpfib", false},
    {"Compare", "tt", false},     {"ToUpper", "t", false},   {"ToLower", "t", false},
    {"UTF8to16", "t", false},     {"UTF16to8", "t", false},
};

// Pieces of Perl syntax, so that patterns reach past the parser into matching.
const char* const kPatternPieces[] = {
    "a",   "b",       ".",   "*",   "+",      "?",    "*?", "{2,}", "{0,3}",       "(",
    ")",   "(?:",     "(?=", "(?!", "(?<=",   "|",    "^",  "$",    "\\A",         "\\z",
    "\\b", "\\s",     "\\S", "\\d", "\\w",    "[",    "]",  "[^a]", "-",           "\\1",
    "\\",  "\\x{e9}", "é",   "ß",   "\\p{L}", "(?i)", "$&", "\\n",  "[[:alpha:]]",
};

// Counts near the text's bounds and far outside them; the texts are short.
double consumePosition(FuzzedDataProvider& data) {
    if (data.ConsumeBool()) return data.ConsumeIntegralInRange(-20, 20);
    return zebfuzz::ConsumeNumber(data);
}

void pushPattern(lua_State* L, FuzzedDataProvider& data) {
    if (data.ConsumeIntegralInRange(0, 3) == 0) return zebfuzz::PushText(L, data, 24);
    luaL_Buffer buffer;
    luaL_buffinit(L, &buffer);
    for (int n = data.ConsumeIntegralInRange(1, 8); n > 0; --n)
        luaL_addstring(&buffer, data.PickValueInArray(kPatternPieces));
    luaL_pushresult(&buffer);
}

void pushArgument(lua_State* L, FuzzedDataProvider& data, char kind) {
    if (data.ConsumeIntegralInRange(0, 31) == 0) return zebfuzz::PushAny(L, data);
    switch (kind) {
    case 'p':
        return pushPattern(L, data);
    case 'f':
        if (data.ConsumeBool()) return pushPattern(L, data);  // $1, \\1 and friends
        return zebfuzz::PushText(L, data, 8);
    case 'i':
        return lua_pushnumber(L, consumePosition(data));
    case 'b':
        return lua_pushboolean(L, data.ConsumeBool());
    default:
        return zebfuzz::PushText(L, data, 48);
    }
}

// The positions MatchB answers lie within the text: 1 <= first <= after <= #text + 1.
void checkMatch(lua_State* L, size_t length) {
    if (lua_isnil(L, 1)) return;
    const lua_Number first = lua_tonumber(L, 1);
    const lua_Number after = lua_tonumber(L, 2);
    if (first < 1 || first > after || after > static_cast<lua_Number>(length) + 1) {
        std::fprintf(stderr, "MatchB answered %g, %g for a text of %zu bytes\n", first, after,
                     length);
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static lua_State* const L = zebfuzz::OpenState("");
    FuzzedDataProvider data(bytes, size);
    const Row& row = data.PickValueInArray(kRows);
    lua_getglobal(L, "zebString");
    lua_getfield(L, -1, row.name);
    lua_remove(L, -2);
    int count = 0;
    for (const char* kind = row.arguments; *kind && data.ConsumeIntegralInRange(0, 15) != 0;
         ++kind, ++count)
        pushArgument(L, data, *kind);
    const bool textFirst = count > 0 && lua_type(L, 2) == LUA_TSTRING;
    const size_t length = textFirst ? lua_objlen(L, 2) : 0;
    if (zebfuzz::Call(L, count, LUA_MULTRET) == 0 && textFirst && row.answersPositions)
        checkMatch(L, length);
    zebfuzz::ExpectUsable(L);
    return 0;
}

// zebString: byte-position string functions, regular expressions and Unicode case mapping.
#include "zeblua/string/src/ZebString.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <locale>
#include <string>
#include <string_view>
#include <vector>

#include <lua.hpp>

#include "zebcore/config/Localizer.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/string/src/StringRegex.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RunNative.h"

namespace zeblua {
namespace string {

const char* const kZebLuaStringLibName = "zebString";

namespace {

using zebcore::UTF16String;

constexpr const char* kBadCountMessage = "SubstringB: Bad character count, must be >= 0";

// Raises a message as it stands: Lua adds no source position to it.
int raisePlainError(lua_State* L, const char* message) {
    lua_pushstring(L, message);
    return lua_error(L);
}

// A script's number as an integer in [low, high], NaN as ifNaN. Clamped while still a
// double: converting one outside lua_Integer's range (2^63, -2^63, inf) is undefined.
lua_Integer clampToInteger(lua_Number value, lua_Integer low, lua_Integer high, lua_Integer ifNaN) {
    if (std::isnan(value)) return ifNaN;
    if (value <= static_cast<lua_Number>(low)) return low;
    if (value >= static_cast<lua_Number>(high)) return high;
    return static_cast<lua_Integer>(value);  // truncates toward zero, as lua_tointeger does
}

// Positions are ints; a string longer than that has its later bytes out of reach.
int positionLength(size_t length) {
    return static_cast<int>(std::min<size_t>(length, INT_MAX));
}

enum class ResultEnd { kFirstZero, kWholeString };

// The result of every function below is built in this one string, not in a C++ frame: when
// the final push runs out of memory nothing is left to leak, and its storage serves the
// next call. Work never runs script, so no call can begin while another fills it.
std::string& resultBuffer() {
    static std::string sBuffer;
    return sBuffer;
}

// A result above this size gives its storage back once it is pushed.
constexpr std::size_t kLargestKeptResult = 64 * 1024;

// The C++ work of a function whose one result is a string: work fills the result buffer.
template <typename Work>
int returnString(lua_State* L, const char* functionName, ResultEnd end, Work work) {
    std::string& out = resultBuffer();
    out.clear();
    utility::RunNative(L, functionName, [&] { work(out); });
    if (end == ResultEnd::kFirstZero)
        lua_pushstring(L, out.c_str());
    else
        lua_pushlstring(L, out.data(), out.size());
    if (out.capacity() > kLargestKeptResult) std::string().swap(out);
    return 1;
}

// The rows without behaviour: any arguments, no check, no result.
int strNoBehaviour(lua_State*) {
    return 0;
}

// -- char = zebString.GetCharB(s, pos)
int strGetCharB(lua_State* L) {
    size_t length = 0;
    const char* s = luaL_checklstring(L, 1, &length);
    luaL_checknumber(L, 2);  // required; not checkinteger, which converts before the helper clamps
    const int pos = GetOptionalOneBasedPos(L, 2, positionLength(length), "GetCharB", 1);
    lua_pushlstring(L, s + pos - 1, 1);
    return 1;
}

// The byte at the optional position, classified by the C locale's table: bytes of 0x80 and
// above are neither space nor letter. An empty string without a position gives its
// terminating zero byte.
int classifyByte(lua_State* L, std::ctype_base::mask byteClass, const char* functionName) {
    size_t length = 0;
    const char* s = luaL_checklstring(L, 1, &length);
    const int pos = GetOptionalOneBasedPos(L, 2, positionLength(length), functionName, 1);
    const auto& table = std::use_facet<std::ctype<char>>(std::locale::classic());
    lua_pushboolean(L, table.is(byteClass, s[pos - 1]));
    return 1;
}

// -- bool = zebString.IsSpaceB(s [, pos])
int strIsSpaceB(lua_State* L) {
    return classifyByte(L, std::ctype_base::space, "IsSpaceB");
}

// -- bool = zebString.IsAlphaB(s [, pos])
int strIsAlphaB(lua_State* L) {
    return classifyByte(L, std::ctype_base::alpha, "IsAlphaB");
}

// -- text = zebString.Localize("$$$/path/Name=Default text"); nothing for an empty key
int strLocalize(lua_State* L) {
    size_t length = 0;
    const char* key = luaL_checklstring(L, 1, &length);
    if (length == 0) return 0;
    return returnString(L, "Localize", ResultEnd::kFirstZero, [&](std::string& out) {
        out =
            zebcore::utility::UTF16to8(zebcore::config::Localizer::Get()->GetLocalizedString(key));
    });
}

// -- text = zebString.ReplaceInString(template, first, ...); nothing when template or first
// is missing or empty. The first nil after them ends the list.
int strReplaceInString(lua_State* L) {
    const int top = lua_gettop(L);
    if (top < 2) return 0;
    size_t length = 0;
    const char* templateText = luaL_checklstring(L, 1, &length);
    if (length == 0) return 0;
    luaL_checklstring(L, 2, &length);
    if (length == 0) return 0;
    int last = 2;
    while (last < top && !lua_isnil(L, last + 1))
        luaL_checklstring(L, ++last, nullptr);  // converts a number in place, so tostring reads it
    return returnString(L, "ReplaceInString", ResultEnd::kFirstZero, [&](std::string& out) {
        std::vector<UTF16String> replacements;
        for (int index = 2; index <= last; ++index)
            replacements.push_back(zebcore::utility::UTF8to16(lua_tostring(L, index)));
        out = zebcore::utility::UTF16to8(zebcore::utility::ReplaceInString(
            zebcore::utility::UTF8to16(templateText), replacements));
    });
}

// -- part = zebString.SubstringB(s, pos [, count])
// A negative pos counts from the end one further than the other functions do: -1 starts at
// the last byte but one. The start is clamped into the string; count 0 takes the rest.
// Positions and counts past the string's ends answer as its ends do, so they are clamped
// to one beyond them before they become integers; a NaN position or count is refused.
int strSubstringB(lua_State* L) {
    size_t length = 0;
    const char* s = luaL_checklstring(L, 1, &length);
    const auto n = static_cast<lua_Integer>(length);
    luaL_checktype(L, 2, LUA_TNUMBER);
    const lua_Integer pos = clampToInteger(lua_tonumber(L, 2), -n - 1, n + 1, 0);
    if (pos == 0) return raisePlainError(L, kBadCountMessage);
    lua_Integer count = 0;
    if (lua_gettop(L) >= 3 && !lua_isnil(L, 3)) {
        luaL_checktype(L, 3, LUA_TNUMBER);
        count = clampToInteger(lua_tonumber(L, 3), -1, n + 1, -1);
        if (count < 0) return raisePlainError(L, kBadCountMessage);
    }
    lua_Integer start = pos > 0 ? pos - 1 : n + pos - 1;
    if (start > n - 1) start = n - 1;
    if (start < 0) start = 0;
    const lua_Integer rest = n - start;
    const lua_Integer taken = (count == 0 || count > rest) ? rest : count;
    lua_pushlstring(L, s + start, static_cast<size_t>(taken));
    return 1;
}

// -- trimmed = zebString.Trim(s)
int strTrim(lua_State* L) {
    const char* first = luaL_checkstring(L, 1);
    const char* last = first + std::strlen(first);
    utility::RunNative(L, "Trim", [&] { TrimWhiteSpace(first, last); });
    lua_pushlstring(L, first, static_cast<size_t>(last - first));
    return 1;
}

// -- first, after = zebString.MatchB(s, pattern [, pos]); nil without a match. Both are
// one-based positions in s, not in the searched tail.
int strMatchB(lua_State* L) {
    size_t length = 0;
    const char* s = luaL_checklstring(L, 1, &length);
    size_t patternLength = 0;
    const char* pattern = luaL_checklstring(L, 2, &patternLength);
    const int pos = GetOptionalOneBasedPos(L, 3, positionLength(length), "MatchB", 1);
    return utility::RunNative(L, "MatchB", [&] {
        const char* first = s + pos - 1;
        // The search ends at the first zero byte; Lua's own one follows the last byte.
        const char* last = static_cast<const char*>(std::memchr(first, 0, length - (pos - 1)));
        RegexMatch match{};
        if (!SearchRegex({pattern, patternLength}, first, last ? last : s + length, match)) {
            lua_pushnil(L);
            return 1;
        }
        lua_pushinteger(L, pos + match.begin);
        lua_pushinteger(L, pos + match.end);
        return 2;
    });
}

// -- result = zebString.ReplaceB(s, pattern, replacement [, pos [, all]])
// The bytes before pos are copied unchanged; all == false replaces the first match only.
int strReplaceB(lua_State* L) {
    size_t length = 0;
    const char* s = luaL_checklstring(L, 1, &length);
    size_t patternLength = 0;
    const char* pattern = luaL_checklstring(L, 2, &patternLength);
    const char* format = luaL_checkstring(L, 3);
    const int pos = GetOptionalOneBasedPos(L, 4, positionLength(length), "ReplaceB", 1);
    bool firstOnly = false;
    if (lua_gettop(L) >= 5 && !lua_isnil(L, 5)) {
        luaL_checktype(L, 5, LUA_TBOOLEAN);
        firstOnly = !lua_toboolean(L, 5);
    }
    return returnString(L, "ReplaceB", ResultEnd::kFirstZero, [&](std::string& out) {
        ReplaceRegex({pattern, patternLength}, s, s + pos - 1, s + length, format, firstOnly, out);
    });
}

// -- order = zebString.Compare(a, b): byte order, with std::string::compare's unnormalised
// size (the length difference when one is a prefix of the other).
int strCompare(lua_State* L) {
    const std::string_view a = luaL_checkstring(L, 1);
    const std::string_view b = luaL_checkstring(L, 2);
    lua_pushinteger(L, a.compare(b));
    return 1;
}

int mapCase(lua_State* L, const char* functionName, void (*map)(UTF16String&)) {
    const char* s = luaL_checkstring(L, 1);
    return returnString(L, functionName, ResultEnd::kFirstZero, [&](std::string& out) {
        UTF16String text = zebcore::utility::UTF8to16(s);
        map(text);
        out = zebcore::utility::UTF16to8(text);
    });
}

// -- upper = zebString.ToUpper(s): full Unicode mapping, so the byte length may change
int strToUpper(lua_State* L) {
    return mapCase(L, "ToUpper", zebcore::utility::ToUpperCase);
}

// -- lower = zebString.ToLower(s)
int strToLower(lua_State* L) {
    return mapCase(L, "ToLower", zebcore::utility::ToLowerCase);
}

// -- units = zebString.UTF8to16(s): the code units as raw bytes in the processor's byte
// order, without byte order mark or terminator.
int strUTF8to16(lua_State* L) {
    const char* s = luaL_checkstring(L, 1);
    return returnString(L, "UTF8to16", ResultEnd::kWholeString, [&](std::string& out) {
        const UTF16String units = zebcore::utility::UTF8to16(s);
        out.assign(reinterpret_cast<const char*>(units.data()), units.size() * sizeof(char16_t));
    });
}

// -- text = zebString.UTF16to8(units): reads up to the first zero unit; an odd last byte is
// no code unit and is ignored.
int strUTF16to8(lua_State* L) {
    size_t length = 0;
    const char* bytes = luaL_checklstring(L, 1, &length);
    return returnString(L, "UTF16to8", ResultEnd::kWholeString, [&](std::string& out) {
        // A copy, since the bytes of a Lua string need not be aligned for char16_t.
        UTF16String units(length / sizeof(char16_t), u'\0');
        std::memcpy(&units[0], bytes, units.size() * sizeof(char16_t));
        out = zebcore::utility::UTF16to8(units.c_str());
    });
}

const luaL_Reg string_funcs[] = {
    {"GetChar", strNoBehaviour},
    {"GetCharB", strGetCharB},
    {"GetCharBytePos", strNoBehaviour},
    {"GetCharPosB", strNoBehaviour},
    {"GetLength", strNoBehaviour},
    {"IsStringAscii", strNoBehaviour},
    {"IsAscii", strNoBehaviour},
    {"IsAsciiB", strNoBehaviour},
    {"IsSpace", strNoBehaviour},
    {"IsSpaceB", strIsSpaceB},
    {"IsAlpha", strNoBehaviour},
    {"IsAlphaB", strIsAlphaB},
    {"IsPunct", strNoBehaviour},
    {"IsPunctB", strNoBehaviour},
    {"IsNumber", strNoBehaviour},
    {"IsNumberB", strNoBehaviour},
    {"IsControl", strNoBehaviour},
    {"IsControlB", strNoBehaviour},
    {"IsUpper", strNoBehaviour},
    {"IsUpperB", strNoBehaviour},
    {"IsLower", strNoBehaviour},
    {"IsLowerB", strNoBehaviour},
    {"Localize", strLocalize},
    {"ReplaceInString", strReplaceInString},
    {"Substring", strNoBehaviour},
    {"SubstringB", strSubstringB},
    {"Trim", strTrim},
    {"TrimLeft", strNoBehaviour},
    {"TrimRight", strNoBehaviour},
    {"Match", strNoBehaviour},
    {"MatchB", strMatchB},
    {"Replace", strNoBehaviour},
    {"ReplaceB", strReplaceB},
    {"Compare", strCompare},
    {"ToUpper", strToUpper},
    {"ToLower", strToLower},
    {"UTF8to16", strUTF8to16},
    {"UTF16to8", strUTF16to8},
    {nullptr, nullptr},
};

}  // namespace

int GetOptionalOneBasedPos(lua_State* L, int index, int length, const char* functionName,
                           int defaultPos) {
    if (lua_gettop(L) < index || lua_isnil(L, index)) return defaultPos;
    luaL_checktype(L, index, LUA_TNUMBER);
    // Anything beyond either end is as wrong as one past it; NaN is no position at all.
    const lua_Integer limit = lua_Integer(length) + 1;  // in lua_Integer: length may be INT_MAX
    lua_Integer pos = clampToInteger(lua_tonumber(L, index), -limit, limit, 0);
    if (pos < 0) pos += limit;  // -1 is the last byte
    if (pos < 1 || pos > length) {
        lua_pushfstring(L, "%s: Invalid stack position", functionName);
        return lua_error(L);
    }
    return static_cast<int>(pos);
}

int luaopen_zebluaStrings(lua_State* L) {
    lua_checkstack(L, 2);
    utility::RegisterFunctionModule(L, kZebLuaStringLibName, string_funcs);
    return 1;
}

}  // namespace string
}  // namespace zeblua

extern "C" int luaopen_zeblua_zebString(lua_State* L) {
    return zeblua::string::luaopen_zebluaStrings(L);
}

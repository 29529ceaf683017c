// zebString: byte-position string functions, regular expressions and Unicode case mapping.
#include "zeblua/string/src/ZebString.h"

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
using zebcore::UTF8String;

constexpr const char* kBadCountMessage = "SubstringB: Bad character count, must be >= 0";

// Raises a message as it stands: Lua adds no source position to it.
int raisePlainError(lua_State* L, const char* message) {
    lua_pushstring(L, message);
    return lua_error(L);
}

void pushUTF16AsUTF8(lua_State* L, const UTF16String& text) {
    const UTF8String utf8 = zebcore::utility::UTF16to8(text);
    lua_pushstring(L, utf8.c_str());
}

// The rows without behaviour: any arguments, no check, no result.
int strNoBehaviour(lua_State*) {
    return 0;
}

// -- char = zebString.GetCharB(s, pos)
int strGetCharB(lua_State* L) {
    size_t length = 0;
    const char* s = luaL_checklstring(L, 1, &length);
    luaL_checkinteger(L, 2);
    const int pos = GetOptionalOneBasedPos(L, 2, static_cast<int>(length), "GetCharB", 1);
    lua_pushlstring(L, s + pos - 1, 1);
    return 1;
}

// The byte at the optional position, classified by the C locale's table: bytes of 0x80 and
// above are neither space nor letter. An empty string without a position gives its
// terminating zero byte.
int classifyByte(lua_State* L, std::ctype_base::mask byteClass, const char* functionName) {
    size_t length = 0;
    const char* s = luaL_checklstring(L, 1, &length);
    const int pos = GetOptionalOneBasedPos(L, 2, static_cast<int>(length), functionName, 1);
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
    return utility::RunNative(L, "Localize", [&] {
        pushUTF16AsUTF8(L, zebcore::config::Localizer::Get()->GetLocalizedString(key));
        return 1;
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
    return utility::RunNative(L, "ReplaceInString", [&] {
        std::vector<UTF16String> replacements;
        for (int index = 2; index <= last; ++index)
            replacements.push_back(zebcore::utility::UTF8to16(lua_tostring(L, index)));
        pushUTF16AsUTF8(L, zebcore::utility::ReplaceInString(
                               zebcore::utility::UTF8to16(templateText), replacements));
        return 1;
    });
}

// -- part = zebString.SubstringB(s, pos [, count])
// A negative pos counts from the end one further than the other functions do: -1 starts at
// the last byte but one. The start is clamped into the string; count 0 takes the rest.
int strSubstringB(lua_State* L) {
    size_t length = 0;
    const char* s = luaL_checklstring(L, 1, &length);
    luaL_checktype(L, 2, LUA_TNUMBER);
    const lua_Integer pos = lua_tointeger(L, 2);
    if (pos == 0) return raisePlainError(L, kBadCountMessage);
    lua_Integer count = 0;
    if (lua_gettop(L) >= 3 && !lua_isnil(L, 3)) {
        luaL_checktype(L, 3, LUA_TNUMBER);
        count = lua_tointeger(L, 3);
        if (count < 0) return raisePlainError(L, kBadCountMessage);
    }
    const auto n = static_cast<lua_Integer>(length);
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
    const char* s = luaL_checkstring(L, 1);
    return utility::RunNative(L, "Trim", [&] {
        const char* last = s + std::strlen(s);
        RegexMatch leading{};
        SearchRegex("\\A[\\s]*", s, last, leading);
        const char* first = s + leading.end;
        RegexMatch trailing{};
        SearchRegex("[\\s]*\\z", first, last, trailing);
        lua_pushlstring(L, first, static_cast<size_t>(trailing.begin));
        return 1;
    });
}

// -- first, after = zebString.MatchB(s, pattern [, pos]); nil without a match. Both are
// one-based positions in s, not in the searched tail.
int strMatchB(lua_State* L) {
    size_t length = 0;
    const char* s = luaL_checklstring(L, 1, &length);
    const char* pattern = luaL_checkstring(L, 2);
    const int pos = GetOptionalOneBasedPos(L, 3, static_cast<int>(length), "MatchB", 1);
    return utility::RunNative(L, "MatchB", [&] {
        const char* first = s + pos - 1;
        RegexMatch match{};
        if (!SearchRegex(pattern, first, first + std::strlen(first), match)) {
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
    const char* pattern = luaL_checkstring(L, 2);
    const char* format = luaL_checkstring(L, 3);
    const int pos = GetOptionalOneBasedPos(L, 4, static_cast<int>(length), "ReplaceB", 1);
    bool firstOnly = false;
    if (lua_gettop(L) >= 5 && !lua_isnil(L, 5)) {
        luaL_checktype(L, 5, LUA_TBOOLEAN);
        firstOnly = !lua_toboolean(L, 5);
    }
    return utility::RunNative(L, "ReplaceB", [&] {
        const std::string out =
            ReplaceRegex(pattern, s, s + pos - 1, s + length, format, firstOnly);
        lua_pushstring(L, out.c_str());
        return 1;
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
    return utility::RunNative(L, functionName, [&] {
        UTF16String text = zebcore::utility::UTF8to16(s);
        map(text);
        pushUTF16AsUTF8(L, text);
        return 1;
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
    return utility::RunNative(L, "UTF8to16", [&] {
        const UTF16String units = zebcore::utility::UTF8to16(s);
        lua_pushlstring(L, reinterpret_cast<const char*>(units.data()),
                        units.size() * sizeof(char16_t));
        return 1;
    });
}

// -- text = zebString.UTF16to8(units): reads up to the first zero unit; an odd last byte is
// no code unit and is ignored.
int strUTF16to8(lua_State* L) {
    size_t length = 0;
    const char* bytes = luaL_checklstring(L, 1, &length);
    return utility::RunNative(L, "UTF16to8", [&] {
        // A copy, since the bytes of a Lua string need not be aligned for char16_t.
        UTF16String units(length / sizeof(char16_t), u'\0');
        std::memcpy(&units[0], bytes, units.size() * sizeof(char16_t));
        const UTF8String utf8 = zebcore::utility::UTF16to8(units.c_str());
        lua_pushlstring(L, utf8.data(), utf8.size());
        return 1;
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
    lua_Integer pos = lua_tointeger(L, index);
    if (pos < 0) pos += length + 1;  // -1 is the last byte
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

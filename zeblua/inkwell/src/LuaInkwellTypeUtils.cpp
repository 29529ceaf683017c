// Geometry and colour tables: readers by field name, writers through the script layer.
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"

#include <cstddef>

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/utility/src/LuaInternedKeys.h"
#include "zeblua/utility/src/LuaTableFields.h"

namespace zeblua {
namespace inkwell {

namespace {

using utility::CheckNumberField;
using zebcore::geom::MatrixT;
using zebcore::geom::PointT;
using zebcore::geom::RectT;
using zebui::inkwell::ColorRGBA;

// The field names and the global constructors' names, interned once per state: a draw
// path reads and writes these on every event.
enum Key {
    kX = 1,
    kY,
    kTop,
    kLeft,
    kHeight,
    kWidth,
    kRed,
    kGreen,
    kBlue,
    kAlpha,
    kColorConstructor,
    kRectConstructor,
    kPointConstructor,
    kMatrixConstructor,
};
const char* const kKeyNames[] = {
    "x",
    "y",
    "top",
    "left",
    "height",
    "width",
    "red",
    "green",
    "blue",
    "alpha",
    "zeblua_CreateNewRGBA",
    "zeblua_CreateNewRectF32",
    "zeblua_CreateNewPointF32",
    "zeblua_CreateNewMatrixF32",
};
static_assert(sizeof kKeyNames / sizeof kKeyNames[0] == kMatrixConstructor, "one name per key");
const utility::InternedKeys sKeys(kKeyNames);

// The table check every reader starts with. False when the value on top of the stack is
// nil: that is the top, not index, so a further nil argument after the table means "leave
// the target as it is".
bool tableToRead(lua_State* L, int index) {
    luaL_checktype(L, index, LUA_TTABLE);
    return !lua_isnil(L, -1);
}

// The raw values of the fields, when every one converts as luaL_checknumber converts it;
// pushKey(i) pushes the name of field i. __index runs only for an absent key, so then
// lua_gettable would have given the same values and run no script, in any order. False when
// one does not: the caller reads again the full way, with its __index order and its errors.
// The values are left on the stack for the caller to drop. A zero is taken only from a
// number: a string that converts to 0 goes the full way, which converts it the same, so that
// a value costs one lua_tonumber and rarely a lua_type.
template <std::size_t N, class PushKey>
bool rawNumbers(lua_State* L, int index, PushKey pushKey, lua_Number (&values)[N]) {
    // Unrolled, each field's zero test is a branch of its own, which a draw loop that meets
    // the same tables again predicts.
#pragma GCC unroll 4
    for (std::size_t i = 0; i < N; ++i) {
        pushKey(i);
        lua_rawget(L, index);
        values[i] = lua_tonumber(L, -1);
        if (values[i] == 0 && lua_type(L, -1) != LUA_TNUMBER) return false;
    }
    return true;
}

// Reads the number fields into values: raw when all are numbers, else each by
// CheckNumberField in the order given.
template <std::size_t N>
void readNumbers(lua_State* L, int index, int keys, const Key (&fields)[N],
                 lua_Number (&values)[N]) {
    const bool raw = rawNumbers(
        L, index, [&](std::size_t i) { lua_rawgeti(L, keys, fields[i]); }, values);
    lua_settop(L, keys);
    if (raw) return;
    for (std::size_t i = 0; i < N; ++i)
        values[i] = CheckNumberField(L, index, keys, fields[i]);
}

// The pair readers' fields: the rect's in its order, then the colour's.
const Key kRectFields[] = {kTop, kLeft, kHeight, kWidth};
const Key kColourFields[] = {kRed, kGreen, kBlue, kAlpha};
constexpr int kPairFieldCount = 8;

RectT<float> rectFrom(const lua_Number (&v)[4]) { /* top, left, height, width */
    return RectT<float>(static_cast<float>(v[1]), static_cast<float>(v[0]),
                        static_cast<float>(v[3]), static_cast<float>(v[2]));
}

ColorRGBA colourFrom(const lua_Number (&v)[4]) {
    return ColorRGBA(static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2]),
                     static_cast<float>(v[3]));
}

// Both tables, and a top that is not nil (as the colour is when it is the top), is what lets
// each reader on its own go on to read its fields. Raises no Lua error.
bool pairToRead(lua_State* L, int rectIndex, int colourIndex) {
    return lua_type(L, rectIndex) == LUA_TTABLE && lua_type(L, colourIndex) == LUA_TTABLE &&
           (lua_gettop(L) == colourIndex || !lua_isnil(L, -1));
}

// The raw pass of the pair readers, the name of pair field i (0 to 7) pushed by
// pushKey(i): either it gives what the two readers would give, running nothing, or it
// hands over to them unchanged. Leaves the stack as it found it; its stack holds at most
// four values, as each reader's.
template <class PushKey>
bool rawPair(lua_State* L, int rectIndex, int colourIndex, PushKey pushKey, RectT<float>& rect,
             ColorRGBA& colour) {
    const int top = lua_gettop(L);
    lua_Number r[4];
    lua_Number c[4];
    bool raw = rawNumbers(L, rectIndex, pushKey, r);
    lua_settop(L, top);
    raw = raw && rawNumbers(
                     L, colourIndex, [&](std::size_t i) { pushKey(4 + i); }, c);
    lua_settop(L, top);
    if (!raw) return false;
    rect = rectFrom(r);
    colour = colourFrom(c);
    return true;
}

// CheckNumberField's form with luaL_checkinteger and lua_tointeger.
lua_Integer integerField(lua_State* L, int index, int keys, Key key) {
    lua_rawgeti(L, keys, key);
    lua_gettable(L, index);                             /* value */
    const lua_Integer value = luaL_checkinteger(L, -1); /* lua_tointeger of the value */
    lua_pop(L, 1);
    return value;
}

// The numbers of a matrix table in the order they were met, counted past nine so that a
// surplus is noticed. Trivially destructible: the count check raises a Lua error while
// it is alive.
struct MatrixData {
    float values[9];
    int count = 0;

    void append(float value) {
        if (count < 9) values[count] = value;
        ++count;
    }
    int size() const { return count; }
};

void pushElement(lua_State* L, float value) {
    lua_pushnumber(L, value);
}
void pushElement(lua_State* L, int value) {
    lua_pushinteger(L, value);
}

// Calls the global constructor with the elements. The status is not looked at: on a
// missing or failing constructor its error value stands where the table would, so exactly
// one value is left either way.
template <class T, std::size_t N>
int callConstructor(lua_State* L, Key constructor, const T (&elements)[N]) {
    lua_checkstack(L, static_cast<int>(N) + 2);
    const int keys = sKeys.Push(L);
    lua_rawgeti(L, keys, constructor);
    lua_gettable(L, LUA_GLOBALSINDEX); /* keys, constructor: by name, as lua_getfield */
    lua_replace(L, keys);
    for (const T element : elements)
        pushElement(L, element);
    lua_pcall(L, static_cast<int>(N), 1, 0);
    return 1;
}

}  // namespace

void GetPointF32FromLua(lua_State* L, int index, PointT<float>& point) {
    if (!tableToRead(L, index)) return;
    const int keys = sKeys.Push(L);
    lua_Number v[2];
    readNumbers(L, index, keys, {kX, kY}, v);
    lua_pop(L, 1);
    point = PointT<float>(static_cast<float>(v[0]), static_cast<float>(v[1]));
}

void GetRectF32FromLua(lua_State* L, int index, RectT<float>& rect) {
    if (!tableToRead(L, index)) return;
    const int keys = sKeys.Push(L);
    lua_Number v[4];
    readNumbers(L, index, keys, kRectFields, v);
    lua_pop(L, 1);
    rect = rectFrom(v);
}

void GetRect32FromLua(lua_State* L, int index, RectT<int>& rect) {
    if (!tableToRead(L, index)) return;
    const int keys = sKeys.Push(L);
    const lua_Integer top = integerField(L, index, keys, kTop);
    const lua_Integer left = integerField(L, index, keys, kLeft);
    const lua_Integer height = integerField(L, index, keys, kHeight);
    const lua_Integer width = integerField(L, index, keys, kWidth);
    lua_pop(L, 1);
    rect = RectT<int>(static_cast<int>(left), static_cast<int>(top), static_cast<int>(width),
                      static_cast<int>(height));
}

void GetColorRGBAFromLua(lua_State* L, int index, ColorRGBA& colour) {
    if (!tableToRead(L, index)) return;
    const int keys = sKeys.Push(L);
    lua_Number v[4];
    readNumbers(L, index, keys, kColourFields, v);
    lua_pop(L, 1);
    colour = colourFrom(v);
}

int PushRectAndColorKeys(lua_State* L) {
    lua_checkstack(L, kPairFieldCount + 2);
    const int keys = sKeys.Push(L);
    for (const Key key : kRectFields)
        lua_rawgeti(L, keys, key);
    for (const Key key : kColourFields)
        lua_rawgeti(L, keys, key);
    lua_remove(L, keys);
    return kPairFieldCount;
}

void GetRectAndColorFromUpvalues(lua_State* L, int rectIndex, int colourIndex, RectT<float>& rect,
                                 ColorRGBA& colour) {
    if (pairToRead(L, rectIndex, colourIndex) &&
        rawPair(
            L, rectIndex, colourIndex,
            [L](std::size_t i) { lua_pushvalue(L, lua_upvalueindex(static_cast<int>(i) + 1)); },
            rect, colour))
        return;
    GetRectF32FromLua(L, rectIndex, rect);
    GetColorRGBAFromLua(L, colourIndex, colour);
}

void GetMatrixF32FromLua(lua_State* L, int index, MatrixT<float>& matrix) {
    if (!tableToRead(L, index)) return;
    MatrixData matData;
    lua_pushnil(L);                   /* first row key */
    while (lua_next(L, index) != 0) { /* row key, row */
        if (lua_istable(L, -1)) {
            lua_pushnil(L);                /* first column key */
            while (lua_next(L, -2) != 0) { /* row key, row, column key, value */
                // lua_tonumber converts a copy, so a numeric string stays a string in
                // its slot and lua_next still finds the keys.
                if (lua_isnumber(L, -1)) matData.append(static_cast<float>(lua_tonumber(L, -1)));
                lua_pop(L, 1); /* keep the column key */
            }
        }
        lua_pop(L, 1); /* keep the row key */
    }
    ZEB_ASSERT_MSG(matData.size() == 9, "A MatrixF32 table holds three rows of three numbers");
    if (matData.size() != 9) luaL_error(L, "incorrect number of values for MatrixF32");
    const float* v = matData.values;
    matrix = MatrixT<float>(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8]);
}

int PushPointF32ToLua(lua_State* L, const PointT<float>& point) {
    return callConstructor(L, kPointConstructor, {point.x, point.y});
}

int PushRectF32ToLua(lua_State* L, const RectT<float>& rect) {
    return callConstructor(L, kRectConstructor, {rect.left, rect.top, rect.width, rect.height});
}

int PushRect32ToLua(lua_State* L, const RectT<int>& rect) {
    return callConstructor(L, kRectConstructor, {rect.left, rect.top, rect.width, rect.height});
}

int PushColorRGBAToLua(lua_State* L, const ColorRGBA& colour) {
    return callConstructor(L, kColorConstructor,
                           {colour.red, colour.green, colour.blue, colour.alpha});
}

int PushMatrixF32ToLua(lua_State* L, const MatrixT<float>& m) {
    return callConstructor(
        L, kMatrixConstructor,
        {m(0, 0), m(0, 1), m(0, 2), m(1, 0), m(1, 1), m(1, 2), m(2, 0), m(2, 1), m(2, 2)});
}

}  // namespace inkwell
}  // namespace zeblua

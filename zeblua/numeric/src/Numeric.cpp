// zeblua.numeric: decomposition and inversion of 4 x 4 transform matrices.
#include "zeblua/numeric/src/Numeric.h"

#include <cstddef>

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zeblua/numeric/src/TransformMatrix.h"

namespace zeblua {
namespace numeric {

const char* const kLuaNumericLibName = "numeric";

namespace {

// The numbers of a matrix argument in the order they were read, counted past 16 so that a
// surplus is noticed. Trivially destructible: a Lua error may unwind past it, which is why
// the matrix is read into this and not straight into a uBLAS matrix.
struct MatrixData {
    double values[16];
    int count = 0;

    void append(double value) {
        if (count < 16) values[count] = value;
        ++count;
    }
    int size() const { return count; }
};

// translation, rotation, scale, shear: 3 numbers each; perspective: 4.
const int kComponentSizes[] = {3, 3, 3, 3, 4};

// Reads the table of rows at index: the numbers (numeric strings included) of every row
// table in lua_next order, skipping anything else. Raises a Lua error unless there are 16.
void GetBlasMatrix4FromLua(lua_State* L, int index, MatrixData& matData) {
    luaL_checktype(L, index, LUA_TTABLE);
    lua_pushnil(L);                   /* first row key */
    while (lua_next(L, index) != 0) { /* row key, row */
        if (lua_istable(L, -1)) {
            lua_pushnil(L);                /* first column key */
            while (lua_next(L, -2) != 0) { /* row key, row, column key, value */
                // lua_tonumber converts a copy and leaves the slot alone; the keys are
                // never converted, so lua_next still finds them.
                if (lua_isnumber(L, -1)) matData.append(lua_tonumber(L, -1));
                lua_pop(L, 1); /* keep the column key */
            }
        }
        lua_pop(L, 1); /* keep the row key */
    }
    ZEB_ASSERT(matData.size() == 16);
    if (matData.size() != 16) luaL_error(L, "incorrect number of values for MatrixF32");
}

Matrix makeBlasMatrix4(const MatrixData& matData) {
    Matrix matrix(4, 4);
    for (std::size_t row = 0; row < 4; ++row)
        for (std::size_t column = 0; column < 4; ++column)
            matrix(row, column) = matData.values[4 * row + column];
    return matrix;
}

// The uBLAS work of each function happens in these helpers, which return (destroying
// their matrices) before anything touches the Lua stack. They catch whatever escapes
// uBLAS so that no exception reaches a Lua frame; that counts as a failure.

// Fills components with translation, rotation, scale, shear and perspective in turn.
bool decompose(const MatrixData& matData, double (&components)[16]) {
    try {
        Vector translation(3), rotation(3), scale(3), shear(3), perspective(4);
        if (!DecomposeTransform(makeBlasMatrix4(matData), translation, rotation, scale, shear,
                                perspective))
            return false;
        const Vector* const parts[] = {&translation, &rotation, &scale, &shear, &perspective};
        std::size_t next = 0;
        for (const Vector* part : parts)
            for (double element : *part)
                components[next++] = element;
        return true;
    } catch (...) {
        return false;
    }
}

// Fills elements with the inverse, row 0 first.
bool invert(const MatrixData& matData, double (&elements)[16]) {
    try {
        Matrix inverse(4, 4);
        if (!InvertMatrix(makeBlasMatrix4(matData), inverse)) return false;
        for (std::size_t row = 0; row < 4; ++row)
            for (std::size_t column = 0; column < 4; ++column)
                elements[4 * row + column] = inverse(row, column);
        return true;
    } catch (...) {
        return false;
    }
}

// translation, rotation, scale, shear, perspective = zeblua.numeric.unmatrix(rows)
// Nothing at all when (3, 3) is 0 or the matrix cannot be decomposed.
int lua_unmatrix(lua_State* L) {
    MatrixData matData;
    GetBlasMatrix4FromLua(L, 1, matData);
    double components[16];
    if (!decompose(matData, components)) return 0;
    const double* element = components;
    for (int size : kComponentSizes) {
        lua_checkstack(L, 2);
        lua_createtable(L, 0, 0);
        for (int i = 1; i <= size; ++i) {
            lua_pushnumber(L, *element++);
            lua_rawseti(L, -2, i);
        }
    }
    return 5;
}

// matrix = zeblua.numeric.invertMatrix(rows)
// The result is whatever the script's zeblua_CreateNewTransformMatrix makes of the 16
// elements, or the error message when that fails; nothing at all for a singular matrix.
int lua_invertMatrix(lua_State* L) {
    MatrixData matData;
    GetBlasMatrix4FromLua(L, 1, matData);
    double elements[16];
    if (!invert(matData, elements)) return 0;
    lua_getfield(L, LUA_GLOBALSINDEX, "zeblua_CreateNewTransformMatrix");
    for (double element : elements)
        lua_pushnumber(L, element);
    // Either way one value is left: the constructor's result or the error message.
    lua_pcall(L, 16, 1, 0);
    return 1;
}

const luaL_Reg funcs[] = {
    {"unmatrix", lua_unmatrix}, {"invertMatrix", lua_invertMatrix}, {nullptr, nullptr}};

}  // namespace

void OpenLuaNumeric(lua_State* L) {
    lua_checkstack(L, 2);
    lua_createtable(L, 0, 0);
    luaL_register(L, nullptr, funcs);
    lua_setfield(L, -2, kLuaNumericLibName); /* zeblua.numeric = table */
}

}  // namespace numeric
}  // namespace zeblua

// Fuzz target: zeblua.numeric's decomposition and inversion with arbitrary matrix tables.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include <lua.hpp>

#include "tests/fuzz/support/FuzzLua.h"

namespace {

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

// Usually four rows of four numbers, filled into values; otherwise any shape, with numeric
// strings and other values among the elements. Answers whether it made the regular form.
bool pushMatrix(lua_State* L, FuzzedDataProvider& data, double (&values)[16]) {
    const bool regular = data.ConsumeIntegralInRange(0, 7) != 0;
    const int rows = regular ? 4 : data.ConsumeIntegralInRange(0, 6);
    lua_createtable(L, rows, 0);
    for (int row = 1; row <= rows; ++row) {
        if (!regular && data.ConsumeIntegralInRange(0, 7) == 0) {
            zebfuzz::PushAny(L, data);  // a row that is no table is skipped
        } else {
            const int columns = regular ? 4 : data.ConsumeIntegralInRange(0, 6);
            lua_createtable(L, columns, 0);
            for (int column = 1; column <= columns; ++column) {
                if (regular) {
                    values[4 * (row - 1) + column - 1] = zebfuzz::ConsumeNumber(data);
                    lua_pushnumber(L, values[4 * (row - 1) + column - 1]);
                } else {
                    zebfuzz::PushNumberLike(L, data);
                }
                lua_rawseti(L, -2, column);
            }
        }
        lua_rawseti(L, -2, row);
    }
    return regular;
}

// For moderate input, matrix times the answered inverse is the identity within what rounding
// allows for its condition (estimated as the product of the two row-sum norms): a
// transposed or misplaced element shows here.
double rowSumNorm(const double (&m)[16]) {
    double norm = 0;
    for (int row = 0; row < 4; ++row)
        norm = std::fmax(norm, std::fabs(m[4 * row]) + std::fabs(m[4 * row + 1]) +
                                   std::fabs(m[4 * row + 2]) + std::fabs(m[4 * row + 3]));
    return norm;
}

void checkInverse(lua_State* L, const double (&values)[16]) {
    double inverse[16];
    for (int row = 0; row < 4; ++row) {
        lua_rawgeti(L, 1, row + 1);
        for (int column = 0; column < 4; ++column) {
            lua_rawgeti(L, -1, column + 1);
            inverse[4 * row + column] = lua_tonumber(L, -1);
            lua_pop(L, 1);
        }
        lua_pop(L, 1);
    }
    // Beyond these, subnormal and overflowing products lose the precision the check needs.
    const auto moderate = [](double x) {
        return x == 0 || (std::fabs(x) >= 1e-100 && std::fabs(x) <= 1e100);
    };
    for (int i = 0; i < 16; ++i)
        if (!moderate(values[i]) || !moderate(inverse[i])) return;
    const double condition = rowSumNorm(values) * rowSumNorm(inverse);
    if (!std::isfinite(condition) || condition > 1e8) return;  // too close to singular to judge
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            double product = 0;
            for (int k = 0; k < 4; ++k)
                product += values[4 * row + k] * inverse[4 * k + column];
            if (std::fabs(product - (row == column ? 1.0 : 0.0)) > 1e-9 * condition) {
                for (int i = 0; i < 16; ++i)
                    std::fprintf(stderr, "%.17g / %.17g%s", values[i], inverse[i],
                                 i % 4 == 3 ? "\n" : ", ");
                fail("invertMatrix: matrix (left) times inverse (right) is not the identity");
            }
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static lua_State* const L = zebfuzz::OpenState("");
    FuzzedDataProvider data(bytes, size);
    const bool inverting = data.ConsumeBool();
    lua_getglobal(L, "zeblua");
    lua_getfield(L, -1, "numeric");
    lua_getfield(L, -1, inverting ? "invertMatrix" : "unmatrix");
    lua_replace(L, 1);
    lua_settop(L, 1);
    double values[16];
    const bool regular = pushMatrix(L, data, values);
    const int status = zebfuzz::Call(L, 1, LUA_MULTRET);
    if (regular) {
        // Sixteen numbers never raise; the answers are all or nothing.
        if (status != 0) fail(lua_tostring(L, -1));
        const int results = lua_gettop(L);
        if (results != 0 && results != (inverting ? 1 : 5)) fail("a partial answer");
        if (inverting && results == 1 && lua_istable(L, 1)) checkInverse(L, values);
    }
    zebfuzz::ExpectUsable(L);
    return 0;
}

// zeblua.numeric from Lua, and the native matrix math under it.
#include <cmath>
#include <string>

#include "tests/LuaTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zeblua/numeric/src/TransformMatrix.h"

namespace {

using zeblua::numeric::Matrix;
using zeblua::numeric::Vector;

class NumericTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        // Rounded to six places, -0 shown as 0, each list in braces.
        runLua(R"(
            function listText(t)
              local items = {}
              for i, v in ipairs(t) do
                v = math.floor(v * 1e6 + 0.5) / 1e6
                if v == 0 then v = 0 end
                items[i] = string.format('%g', v)
              end
              return '{' .. table.concat(items, ',') .. '}'
            end
            function unmatrixText(m)
              local parts = {}
              for _, t in ipairs({zeblua.numeric.unmatrix(m)}) do
                parts[#parts + 1] = listText(t)
              end
              return table.concat(parts, ' ')
            end
            function recordConstructor()
              calls = 0
              function zeblua_CreateNewTransformMatrix(...)
                calls = calls + 1
                args = {n = select('#', ...), ...}
                return 'made', 'dropped'
              end
            end
        )");
    }

    static std::string lastAssertExpression() {
        const auto& reports = zebcore::debug::RecordedAssertReports();
        return reports.empty() ? "" : reports.back().expression;
    }
};

Matrix matrixOf(const double (&values)[16]) {
    Matrix matrix(4, 4);
    for (int i = 0; i < 16; ++i)
        matrix(i / 4, i % 4) = values[i];
    return matrix;
}

TEST_F(NumericTest, UnmatrixSplitsRowVectorTransforms) {
    struct Case {
        const char* name;
        const char* matrix;
        const char* expected;  // translation rotation scale shear perspective
    };
    const Case cases[] = {
        {"identity", "{{1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0,1}}",
         "{0,0,0} {0,0,0} {1,1,1} {0,0,0} {0,0,0,1}"},
        {"translation in the fourth row", "{{1,0,0,0},{0,1,0,0},{0,0,1,0},{5,6,7,1}}",
         "{5,6,7} {0,0,0} {1,1,1} {0,0,0} {0,0,0,1}"},
        {"scale", "{{2,0,0,0},{0,3,0,0},{0,0,4,0},{0,0,0,1}}",
         "{0,0,0} {0,0,0} {2,3,4} {0,0,0} {0,0,0,1}"},
        {"(3, 3) divides everything", "{{2,0,0,0},{0,2,0,0},{0,0,2,0},{0,0,0,2}}",
         "{0,0,0} {0,0,0} {1,1,1} {0,0,0} {0,0,0,1}"},
        {"quarter turn with zeros on the diagonal", "{{0,1,0,0},{-1,0,0,0},{0,0,1,0},{0,0,0,1}}",
         "{0,0,0} {0,0,1.5708} {1,1,1} {0,0,0} {0,0,0,1}"},
        {"mirror flips all three scales", "{{-1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0,1}}",
         "{0,0,0} {-3.14159,0,0} {-1,-1,-1} {0,0,0} {0,0,0,1}"},
        {"turn about x",
         "{{1,0,0,0},{0,math.cos(.5),math.sin(.5),0},{0,-math.sin(.5),math.cos(.5),0},{0,0,0,1}}",
         "{0,0,0} {0.5,0,0} {1,1,1} {0,0,0} {0,0,0,1}"},
        {"shear xy", "{{1,0,0,0},{1,1,0,0},{0,0,1,0},{0,0,0,1}}",
         "{0,0,0} {0,0,0} {1,1,1} {1,0,0} {0,0,0,1}"},
        {"perspective solved, the rest from the cleared matrix",
         "{{2,0,0,0.5},{0,3,0,0.25},{0,0,4,0},{5,6,7,1}}",
         "{5,6,7} {0,0,0} {2,3,4} {0,0,0} {0.25,0.083333,0,-0.75}"},
        // Solved against the input as given (diagonal 2), not the normalised copy.
        {"perspective with (3, 3) of 2", "{{2,0,0,1},{0,2,0,0},{0,0,2,0},{0,0,0,2}}",
         "{0,0,0} {0,0,0} {1,1,1} {0,0,0} {0.25,0,0,1}"},
        {"uneven rows totalling 16", "{{1,0,0},{0,0,1,0,0},{0,0,1,0,5,6},{7,1}}",
         "{5,6,7} {0,0,0} {1,1,1} {0,0,0} {0,0,0,1}"},
        {"numeric strings count", "{{'2','0','0','0'},{0,' 3 ',0,0},{0,0,'4e0',0},{0,0,0,'0x1'}}",
         "{0,0,0} {0,0,0} {2,3,4} {0,0,0} {0,0,0,1}"},
        {"other values and rows skipped",
         "{'row', {1,0,0,0,'x',true}, 42, {0,1,0,0}, {0,0,1,0,{}}, {5,6,7,1}}",
         "{5,6,7} {0,0,0} {1,1,1} {0,0,0} {0,0,0,1}"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(luaValue(std::string("unmatrixText(") + c.matrix + ")"), c.expected) << c.name;
    }
    EXPECT_TRUE(zebcore::debug::RecordedAssertReports().empty());
}

TEST_F(NumericTest, UnmatrixGivesNoValueWhenItCannotDecompose) {
    // (3, 3) of 0: quietly nothing.
    EXPECT_EQ(resultCount("zeblua.numeric.unmatrix({{1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0,0}})"), 0);
    EXPECT_TRUE(zebcore::debug::RecordedAssertReports().empty());

    // Singular without perspective: nothing, after the report.
    EXPECT_EQ(resultCount("zeblua.numeric.unmatrix({{0,0,0,0},{0,0,0,0},{0,0,0,0},{0,0,0,1}})"), 0);
    ASSERT_EQ(zebcore::debug::RecordedAssertReports().size(), 1u);
    EXPECT_EQ(lastAssertExpression(), "0 && \"Bad perspective matrix\"");

    // A NaN at (3, 3) is not 0: it goes all the way through.
    EXPECT_EQ(resultCount("zeblua.numeric.unmatrix({{1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0,0/0}})"),
              5);
}

TEST_F(NumericTest, WrongNumberOfValuesIsAnError) {
    const char* const matrices[] = {
        "{{1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0}}",       // 15
        "{{1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0,1,9}}",   // 17
        "{1,0,0,0, 0,1,0,0, 0,0,1,0, 0,0,0,1}",          // flat: no rows, so 0
        "{{1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0,'one'}}"  // a non-numeric string
    };
    for (const char* function : {"unmatrix", "invertMatrix"}) {
        for (const char* matrix : matrices) {
            zebcore::debug::ClearRecordedAssertReports();
            EXPECT_EQ(luaError(std::string("zeblua.numeric.") + function + "(" + matrix + ")"),
                      "test:1: incorrect number of values for MatrixF32")
                << function << matrix;
            EXPECT_EQ(lastAssertExpression(), "matData.size() == 16") << function << matrix;
        }
    }
    EXPECT_EQ(luaError("zeblua.numeric.unmatrix(5)"),
              "test:1: bad argument #1 to 'unmatrix' (table expected, got number)");
}

TEST_F(NumericTest, InvertMatrixHandsTheElementsRowByRowToTheScriptConstructor) {
    runLua("recordConstructor()");
    EXPECT_EQ(resultCount("zeblua.numeric.invertMatrix({{1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0,1}})"),
              1);
    EXPECT_EQ(luaValue("zeblua.numeric.invertMatrix({{1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0,1}})"),
              "made");
    EXPECT_EQ(luaValue("calls"), "2");
    EXPECT_EQ(luaValue("args.n"), "16");
    EXPECT_EQ(luaValue("table.concat(args, ',')"), "1,0,0,0,0,1,0,0,0,0,1,0,0,0,0,1");

    // Not symmetric, so row 0 first is visible: the translation row comes last.
    runLua("zeblua.numeric.invertMatrix({{1,0,0,0},{0,1,0,0},{0,0,1,0},{5,6,7,1}})");
    EXPECT_EQ(luaValue("listText(args)"), "{1,0,0,0,0,1,0,0,0,0,1,0,-5,-6,-7,1}");

    // Singular: no value and no call.
    EXPECT_EQ(resultCount("zeblua.numeric.invertMatrix({{1,2,3,4},{2,4,6,8},{0,0,1,0},{0,0,0,1}})"),
              0);
    EXPECT_EQ(luaValue("calls"), "3");
    EXPECT_TRUE(zebcore::debug::RecordedAssertReports().empty());
}

TEST_F(NumericTest, InvertMatrixThroughTheHostLayer) {
    runLua("m = zeblua.numeric.invertMatrix({{2,0,0,0},{0,4,0,0},{0,0,8,0},{1,2,3,1}})");
    EXPECT_EQ(luaValue("table.concat(m[1], ',')"), "0.5,0,0,0");
    EXPECT_EQ(luaValue("table.concat(m[3], ',')"), "0,0,0.125,0");
    EXPECT_EQ(luaValue("table.concat(m[4], ',')"), "-0.5,-0.5,-0.375,1");
}

TEST_F(NumericTest, InvertMatrixReturnsTheConstructorsErrorAsItsResult) {
    const std::string identity = "{{1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0,1}}";
    runLua("zeblua_CreateNewTransformMatrix = nil");
    EXPECT_EQ(resultCount("zeblua.numeric.invertMatrix(" + identity + ")"), 1);
    EXPECT_EQ(luaValue("zeblua.numeric.invertMatrix(" + identity + ")"),
              "attempt to call a nil value");

    runLua("function zeblua_CreateNewTransformMatrix() error('refused', 0) end");
    EXPECT_EQ(luaValue("zeblua.numeric.invertMatrix(" + identity + ")"), "refused");
}

TEST_F(NumericTest, NativeInverseAndCross) {
    const Matrix input = matrixOf({0, 2, 0, 0, -1, 0, 0, 0, 0, 0, 3, 0, 4, 5, 6, 1});
    Matrix inverse(4, 4);
    ASSERT_TRUE(zeblua::numeric::InvertMatrix(input, inverse));
    const Matrix product = boost::numeric::ublas::prod(input, inverse);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_NEAR(product(r, c), r == c ? 1.0 : 0.0, 1e-12);
    EXPECT_FALSE(zeblua::numeric::InvertMatrix(Matrix(4, 4, 0.0), inverse));

    Vector x(3, 0.0), y(3, 0.0);
    x(0) = 1;
    y(1) = 1;
    const Vector z = zeblua::numeric::Vector3Cross(x, y);
    EXPECT_EQ(z(0), 0.0);
    EXPECT_EQ(z(1), 0.0);
    EXPECT_EQ(z(2), 1.0);
    EXPECT_EQ(zeblua::numeric::Vector3Cross(y, x)(2), -1.0);
    EXPECT_TRUE(zebcore::debug::RecordedAssertReports().empty());

    // Execution goes on behind the report, on the first three elements.
    Vector longX(4, 0.0);
    longX(0) = 1;
    EXPECT_EQ(zeblua::numeric::Vector3Cross(longX, y)(2), 1.0);
    EXPECT_EQ(lastAssertExpression(), "a.size() == 3");
    EXPECT_EQ(zeblua::numeric::Vector3Cross(y, longX)(2), -1.0);
    EXPECT_EQ(lastAssertExpression(), "b.size() == 3");
}

TEST_F(NumericTest, NativeDecomposeRecoversComposedComponents) {
    // Rows: scale and shear applied to the rows of Rx(a) Ry(b) Rz(c), then translation,
    // and everything multiplied by a homogeneous 2.
    const double a = 0.3, b = -0.4, c = 0.7;
    const double sx = 2, sy = 3, sz = 0.5, xy = 0.25, xz = -0.5, yz = 0.75;
    const double q[3][3] = {{std::cos(b) * std::cos(c), std::cos(b) * std::sin(c), -std::sin(b)},
                            {-std::cos(a) * std::sin(c) + std::sin(a) * std::sin(b) * std::cos(c),
                             std::cos(a) * std::cos(c) + std::sin(a) * std::sin(b) * std::sin(c),
                             std::sin(a) * std::cos(b)},
                            {std::sin(a) * std::sin(c) + std::cos(a) * std::sin(b) * std::cos(c),
                             -std::sin(a) * std::cos(c) + std::cos(a) * std::sin(b) * std::sin(c),
                             std::cos(a) * std::cos(b)}};
    Matrix input(4, 4, 0.0);
    for (int k = 0; k < 3; ++k) {
        input(0, k) = 2 * sx * q[0][k];
        input(1, k) = 2 * sy * (q[1][k] + xy * q[0][k]);
        input(2, k) = 2 * sz * (q[2][k] + xz * q[0][k] + yz * q[1][k]);
    }
    input(3, 0) = 2 * 1.5;
    input(3, 1) = 2 * -2.5;
    input(3, 2) = 2 * 3.5;
    input(3, 3) = 2;

    Vector translation(3), rotation(3), scale(3), shear(3), perspective(4);
    ASSERT_TRUE(zeblua::numeric::DecomposeTransform(input, translation, rotation, scale, shear,
                                                    perspective));
    const double expected[16] = {1.5, -2.5, 3.5, a, b, c, sx, sy, sz, xy, xz, yz, 0, 0, 0, 1};
    const Vector* const parts[] = {&translation, &rotation, &scale, &shear, &perspective};
    int i = 0;
    for (const Vector* part : parts)
        for (double element : *part) {
            EXPECT_NEAR(element, expected[i], 1e-12) << "component " << i;
            ++i;
        }
}

}  // namespace

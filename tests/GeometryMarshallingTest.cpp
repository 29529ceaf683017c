// Geometry and colour tables across the boundary, the script layer's constructors, and
// the float to integer rounding of rectangles and points.
#include <climits>
#include <cmath>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zebcore/debug/Debug.h"
#include "zebcore/geom/Geometry.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"

namespace {

using namespace zeblua::inkwell;
using zebcore::geom::MatrixT;
using zebcore::geom::PointT;
using zebcore::geom::RectT;
using zebui::inkwell::ColorRGBA;

// The readers' targets. Plain statics: a reader that raises unwinds past the shims.
PointT<float> sPoint;
RectT<float> sRect;
RectT<int> sRect32;
ColorRGBA sColour;
MatrixT<float> sMatrix;

// readX(table [, more]): the reader on argument 1, as a binding would call it.
int readPoint(lua_State* L) {
    GetPointF32FromLua(L, 1, sPoint);
    return 0;
}
int readRect(lua_State* L) {
    GetRectF32FromLua(L, 1, sRect);
    return 0;
}
int readRect32(lua_State* L) {
    GetRect32FromLua(L, 1, sRect32);
    return 0;
}
int readColour(lua_State* L) {
    GetColorRGBAFromLua(L, 1, sColour);
    return 0;
}
int readMatrix(lua_State* L) {
    GetMatrixF32FromLua(L, 1, sMatrix);
    return 0;
}
// readPair(rect, colour [, more]): the pair reader, or the two readers it stands for.
int readPairFromUpvalues(lua_State* L) {
    GetRectAndColorFromUpvalues(L, 1, 2, sRect, sColour);
    return 0;
}
int readPairOneByOne(lua_State* L) {
    GetRectF32FromLua(L, 1, sRect);
    GetColorRGBAFromLua(L, 2, sColour);
    return 0;
}

template <class... T> std::string joined(T... values) {
    std::ostringstream text;
    const char* separator = "";
    ((text << separator << values, separator = " "), ...);
    return text.str();
}
std::string pointText() {
    return joined(sPoint.x, sPoint.y);
}
std::string rectText() {
    return joined(sRect.left, sRect.top, sRect.width, sRect.height);
}
std::string rect32Text() {
    return joined(sRect32.left, sRect32.top, sRect32.width, sRect32.height);
}
std::string colourText() {
    return joined(sColour.red, sColour.green, sColour.blue, sColour.alpha);
}
std::string matrixText() {
    const MatrixT<float>& m = sMatrix;
    return joined(m(0, 0), m(0, 1), m(0, 2), m(1, 0), m(1, 1), m(1, 2), m(2, 0), m(2, 1), m(2, 2));
}

class GeometryMarshallingTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        resetTargets();
        lua_register(L, "readPoint", readPoint);
        lua_register(L, "readRect", readRect);
        lua_register(L, "readRect32", readRect32);
        lua_register(L, "readColour", readColour);
        lua_register(L, "readMatrix", readMatrix);
        // Each constructor replaced by one that keeps its arguments and returns "made".
        runLua(R"(
            function recordConstructors()
              for _, name in ipairs({'zeblua_CreateNewRGBA', 'zeblua_CreateNewRectF32',
                                     'zeblua_CreateNewPointF32', 'zeblua_CreateNewMatrixF32'}) do
                _G[name] = function(...)
                  args = {...}
                  for i = 1, select('#', ...) do args[i] = tostring(args[i]) end
                  args = name .. '(' .. table.concat(args, ', ') .. ')'
                  return 'made', 'dropped'
                end
              end
            end
        )");
    }

    // Every target to -7s, and no reports.
    static void resetTargets() {
        sPoint = PointT<float>(-7, -7);
        sRect = RectT<float>(-7, -7, -7, -7);
        sRect32 = RectT<int>(-7, -7, -7, -7);
        sColour = ColorRGBA(-7, -7, -7, -7);
        sMatrix = MatrixT<float>(-7, -7, -7, -7, -7, -7, -7, -7, -7);
        zebcore::debug::ClearRecordedAssertReports();
    }

    static std::string assertExpressions() {
        std::string text;
        for (const auto& report : zebcore::debug::RecordedAssertReports())
            text += (text.empty() ? "" : "; ") + report.expression;
        return text;
    }
};

const char* const kUntouched4 = "-7 -7 -7 -7";

TEST_F(GeometryMarshallingTest, ReadersTakeNamedNumberFieldsOrRaise) {
    struct Case {
        const char* call;
        std::string (*target)();
        const char* values;
        const char* error;  // a part of the message, or "" for success
    };
    const Case cases[] = {
        {"readRect{left=1.5, top=2, width=3, height=4, right=99, name='extra'}", rectText,
         "1.5 2 3 4", ""},
        {"readRect{left='1', top=' 2 ', width='0x10', height=4}", rectText, "1 2 16 4", ""},
        // Nothing is stored until every field has been read.
        {"readRect{left=1, top=2, width=3}", rectText, kUntouched4,
         "test:1: bad argument #-1 to 'readRect' (number expected, got nil)"},
        {"readRect{left=1, top=2, width='wide', height=4}", rectText, kUntouched4,
         "number expected, got string"},
        {"readRect(5)", rectText, kUntouched4,
         "test:1: bad argument #1 to 'readRect' (table expected, got number)"},
        {"readRect(nil, 1)", rectText, kUntouched4, "table expected, got nil"},
        // The top of the stack is tested for nil, not the table's position.
        {"readRect({left=1, top=2, width=3, height=4}, nil)", rectText, kUntouched4, ""},
        {"readRect({left=1, top=2, width=3, height=4}, nil, 0)", rectText, "1 2 3 4", ""},
        {"readRect32{left=2.7, top=-2.7, width=3.99, height='4'}", rect32Text, "2 -2 3 4", ""},
        {"readRect32{left=2, top=2, width=3}", rect32Text, kUntouched4, "number expected, got nil"},
        {"readRect32({left=2, top=2, width=3, height=4}, nil)", rect32Text, kUntouched4, ""},
        {"readPoint{x=-1.25, y=1e3, z=1}", pointText, "-1.25 1000", ""},
        {"readPoint{y=1}", pointText, "-7 -7", "number expected, got nil"},
        {"readPoint({x=1, y=2}, nil)", pointText, "-7 -7", ""},
        {"readColour{red=1, green=0.5, blue=2, alpha=-1}", colourText, "1 0.5 2 -1", ""},
        // No default alpha: a colour without it raises like any missing field.
        {"readColour{red=1, green=0.5, blue=0}", colourText, kUntouched4,
         "number expected, got nil"},
        {"readColour({red=1, green=0.5, blue=0, alpha=1}, nil)", colourText, kUntouched4, ""},
    };
    for (const Case& c : cases) {
        resetTargets();
        if (*c.error)
            EXPECT_NE(luaError(c.call).find(c.error), std::string::npos) << c.call;
        else
            runLua(c.call);
        EXPECT_EQ(c.target(), c.values) << c.call;
    }
}

TEST_F(GeometryMarshallingTest, ReadersAskForFieldsInTheirFixedOrder) {
    runLua(R"(
        function logged()
          log = {}
          return setmetatable({}, {__index = function(_, key) log[#log + 1] = key return 1 end})
        end
    )");
    const struct {
        const char* reader;
        const char* order;
    } cases[] = {
        {"readRect", "top left height width"},
        {"readRect32", "top left height width"},
        {"readPoint", "x y"},
        {"readColour", "red green blue alpha"},
    };
    for (const auto& c : cases) {
        runLua(std::string(c.reader) + "(logged())");
        EXPECT_EQ(luaValue("table.concat(log, ' ')"), c.order) << c.reader;
    }
    EXPECT_EQ(rectText(), "1 1 1 1");
}

// Fields that are all there are read raw, so a metatable's __index never runs; one missing
// field sends the whole read the full way, __index and errors in the fixed order.
TEST_F(GeometryMarshallingTest, PresentFieldsNeverReachIndexAndAMissingOneReadsInOrder) {
    runLua(R"(
        function withIndex(t)
          log = {}
          return setmetatable(t, {__index = function(_, key)
            log[#log + 1] = key
            if key == "fail" then error("index ran") end
            return 5
          end})
        end
    )");
    resetTargets();
    runLua("readRect(withIndex{left=1, top=2, width=3, height=4, fail=true})");
    runLua("rectLog = #log readColour(withIndex{red=0, green='0', blue=0.5, alpha=1})");
    EXPECT_EQ(luaValue("rectLog .. ',' .. #log"), "0,0");
    EXPECT_EQ(rectText(), "1 2 3 4");
    EXPECT_EQ(colourText(), "0 0 0.5 1");
    runLua("readRect(withIndex{top=1, width=3})");
    EXPECT_EQ(luaValue("table.concat(log, ' ')"), "left height");
    EXPECT_EQ(rectText(), "5 1 3 5");
    // The full read meets the bad "left" before it would ask __index for "height".
    EXPECT_THAT(luaError("readRect(withIndex{top=1, left='wide', width=3})"),
                ::testing::HasSubstr("number expected, got string"));
    EXPECT_EQ(luaValue("#log"), "0");
}

// The pair reader is the rect reader followed by the colour reader, whichever way it reads:
// the same values, the same error texts, the same __index calls in the same order, and a
// rect stored before the colour fails.
TEST_F(GeometryMarshallingTest, PairReaderActsAsTheRectReaderThenTheColourReader) {
    runLua(R"(
        log = {}
        -- t with __index logging each key it is asked for, as "<tag>.<key>", answering 5.
        function logging(tag, t)
          return setmetatable(t, {__index = function(_, key)
            log[#log + 1] = tag .. '.' .. key
            if key == 'alpha' and tag == 'mutating' then theRect.left = 99 end
            if key == 'fail' or key == 'blue' and tag == 'raising' then error('index ran', 0) end
            return 5
          end})
        end
        theRect = {left=1, top=2, width=3, height=4}
    )");
    const char* const calls[] = {
        "readPair({left=1, top=2, width=3, height=4}, {red=1, green=0, blue=0, alpha=1})",
        "readPair({left=-1.5, top=0, width=1e9, height=0.25}, {red=0, green=0, blue=0, alpha=0})",
        // Numeric strings, a "0" among them: converted as luaL_checknumber converts them.
        "readPair({left='1', top=' 2 ', width='0x10', height=4}, {red=1, green='0', blue=0, "
        "alpha='0.5'})",
        "readPair(logging('r', {left=1, top=2, width=3, height=4}), logging('c', {red=1, "
        "green=0, blue=0, alpha=1}))",
        "readPair(logging('r', {left=1, width=3}), logging('c', {red=1, blue=0}))",
        "readPair(theRect, logging('mutating', {red=1, green=0, blue=0}))",
        "readPair(logging('r', {top=1, left=2, height=3, width=4}), logging('raising', {red=1}))",
        "readPair({left=1, top=2, width=3}, {red=1, green=0, blue=0, alpha=1})",
        "readPair({left=1, top=2, width=3, height=4}, {red=1, green=0, blue=0})",
        "readPair({left=1, top=2, width=3, height=4}, {red=1, green=true, blue=0, alpha=1})",
        "readPair({left=1, top=2, width=3, height={}}, {red=1, green=0, blue=0, alpha=1})",
        "readPair({left=1, top=2, width=3, height=4}, 'red')",
        "readPair(5, {red=1, green=0, blue=0, alpha=1})",
        "readPair({left=1, top=2, width=3, height=4})",
        "readPair({left=1, top=2, width=3, height=4}, nil)",
        "readPair()",
        // The top of the stack is tested for nil, not the tables' positions.
        "readPair({left=1, top=2, width=3, height=4}, {red=1, green=0, blue=0, alpha=1}, nil)",
        "readPair({left=1, top=2, width=3, height=4}, {red=1, green=0, blue=0, alpha=1}, 7)",
        "readPair({left=1, top=2, width=3, height='x'}, {red=1, green=0, blue=0, alpha=1}, nil)",
    };
    // The upvalue form as a draw method has it, and without its upvalues.
    const auto closure = [](lua_State* state) {
        lua_pushcclosure(state, readPairFromUpvalues, PushRectAndColorKeys(state));
    };
    const auto bare = [](lua_State* state) { lua_pushcfunction(state, readPairFromUpvalues); };
    const auto oneByOne = [](lua_State* state) { lua_pushcfunction(state, readPairOneByOne); };
    const auto outcome = [this](void (*pushReader)(lua_State*), const std::string& call) {
        resetTargets();
        pushReader(L);
        lua_setglobal(L, "readPair");
        runLua("log = {} theRect = {left=1, top=2, width=3, height=4}");
        runLua("local ok, e = pcall(function() " + call + " end) failure = ok and '' or e");
        return "error=" + luaValue("failure") + " rect=" + rectText() + " colour=" + colourText() +
               " log=" + luaValue("table.concat(log, ' ')") + " left=" + luaValue("theRect.left");
    };
    for (const char* call : calls) {
        const std::string expected = outcome(oneByOne, call);
        EXPECT_EQ(outcome(closure, call), expected) << call;
        EXPECT_EQ(outcome(bare, call), expected) << call;
    }
    // Eight names, the rect's in the order its reader asks for them, then the colour's.
    lua_settop(L, 0);
    ASSERT_EQ(PushRectAndColorKeys(L), 8);
    std::string names;
    for (int i = 1; i <= lua_gettop(L); ++i)
        names += std::string(i > 1 ? " " : "") + lua_tostring(L, i);
    EXPECT_EQ(names, "top left height width red green blue alpha");
    lua_settop(L, 0);

    // What those rows came to, for the rows where a careless rewrite would differ.
    EXPECT_EQ(outcome(closure, calls[0]), "error= rect=1 2 3 4 colour=1 0 0 1 log= left=1");
    EXPECT_EQ(outcome(closure, calls[2]), "error= rect=1 2 16 4 colour=1 0 0 0.5 log= left=1");
    EXPECT_EQ(outcome(closure, calls[3]), "error= rect=1 2 3 4 colour=1 0 0 1 log= left=1");
    EXPECT_EQ(outcome(closure, calls[4]),
              "error= rect=1 5 3 5 colour=1 5 0 5 log=r.top r.height c.green c.alpha left=1");
    // The colour's __index ran after the rect was read: the rect keeps the old left.
    EXPECT_EQ(outcome(closure, calls[5]),
              "error= rect=1 2 3 4 colour=1 0 0 5 log=mutating.alpha left=99");
    // The rect is stored before the colour read raises.
    EXPECT_EQ(outcome(closure, calls[6]),
              "error=index ran rect=2 1 4 3 colour=-7 -7 -7 -7 log=raising.green raising.blue "
              "left=1");
    EXPECT_THAT(outcome(closure, calls[7]),
                ::testing::HasSubstr("bad argument #-1 to 'readPair' (number expected, got nil) "
                                     "rect=-7 -7 -7 -7 colour=-7 -7 -7 -7"));
    EXPECT_THAT(outcome(closure, calls[9]),
                ::testing::HasSubstr("(number expected, got boolean) rect=1 2 3 4 colour=-7"));
    EXPECT_THAT(outcome(closure, calls[11]),
                ::testing::HasSubstr("bad argument #2 to 'readPair' (table expected, got string)"));
    EXPECT_THAT(outcome(closure, calls[14]),
                ::testing::HasSubstr("bad argument #2 to 'readPair' (table expected, got nil) "
                                     "rect=-7 -7 -7 -7"));
    EXPECT_EQ(outcome(closure, calls[16]),
              "error= rect=-7 -7 -7 -7 colour=-7 -7 -7 -7 log= left=1");
    EXPECT_EQ(outcome(closure, calls[17]), "error= rect=1 2 3 4 colour=1 0 0 1 log= left=1");
    EXPECT_EQ(outcome(closure, calls[18]),
              "error= rect=-7 -7 -7 -7 colour=-7 -7 -7 -7 log= left=1");
}

TEST_F(GeometryMarshallingTest, MatrixReaderCountsTheNumbersOfItsRowTables) {
    const char* const kBadCount = "test:1: incorrect number of values for MatrixF32";
    const char* const kUntouched9 = "-7 -7 -7 -7 -7 -7 -7 -7 -7";
    const struct {
        const char* matrix;
        const char* values;
        const char* error;
    } cases[] = {
        {"{{1,2,3},{4,5,6},{7,8,9}}", "1 2 3 4 5 6 7 8 9", ""},
        {"{{1,'2',3},{4,' 5 ',6},{7,8,'0x9'}}", "1 2 3 4 5 6 7 8 9", ""},
        // Rows are not checked, only the total; non-table rows and non-numbers are skipped.
        {"{{1,2,3,4},{5},{6,7,8,9}}", "1 2 3 4 5 6 7 8 9", ""},
        {"{'row', {1,2,3,true}, 42, {4,5,6,{}}, {7,8,9,'x'}}", "1 2 3 4 5 6 7 8 9", ""},
        {"{{1,2,3},{4,'x',6},{7,8,9}}", kUntouched9, kBadCount},
        {"{{1,2,3},{4,5,6},{7,8,9},{0,0,1}}", kUntouched9, kBadCount},
        {"{1,2,3,4,5,6,7,8,9}", kUntouched9, kBadCount},
        {"{}", kUntouched9, kBadCount},
    };
    for (const auto& c : cases) {
        resetTargets();
        const std::string call = std::string("readMatrix(") + c.matrix + ")";
        if (*c.error) {
            EXPECT_EQ(luaError(call), c.error) << c.matrix;
            // Made before the error unwound the reader.
            EXPECT_EQ(assertExpressions(), "matData.size() == 9") << c.matrix;
        } else {
            runLua(call);
            EXPECT_EQ(assertExpressions(), "") << c.matrix;
        }
        EXPECT_EQ(matrixText(), c.values) << c.matrix;
    }

    // A trailing nil leaves the matrix as it is, without counting anything.
    resetTargets();
    runLua("readMatrix({{1}}, nil)");
    EXPECT_EQ(matrixText(), kUntouched9);
    EXPECT_EQ(assertExpressions(), "");
    EXPECT_NE(luaError("readMatrix('m')").find("table expected, got string"), std::string::npos);
}

TEST_F(GeometryMarshallingTest, WritersPassStorageOrderToTheGlobalConstructors) {
    runLua("recordConstructors()");
    const struct {
        int (*push)(lua_State*);
        const char* call;
    } cases[] = {
        {[](lua_State* L) { return PushRectF32ToLua(L, RectT<float>(1.5f, -2, 3, 4.25f)); },
         "zeblua_CreateNewRectF32(1.5, -2, 3, 4.25)"},
        // Integers go to the float constructor too.
        {[](lua_State* L) { return PushRect32ToLua(L, RectT<int>(-3, 4, 5, 6)); },
         "zeblua_CreateNewRectF32(-3, 4, 5, 6)"},
        {[](lua_State* L) { return PushPointF32ToLua(L, PointT<float>(0.5f, -8)); },
         "zeblua_CreateNewPointF32(0.5, -8)"},
        {[](lua_State* L) { return PushColorRGBAToLua(L, ColorRGBA(1, 0.25f, 0, 0.5f)); },
         "zeblua_CreateNewRGBA(1, 0.25, 0, 0.5)"},
        {[](lua_State* L) {
             return PushMatrixF32ToLua(L, MatrixT<float>(1, 2, 3, 4, 5, 6, 7, 8, 9));
         },
         "zeblua_CreateNewMatrixF32(1, 2, 3, 4, 5, 6, 7, 8, 9)"},
    };
    for (const auto& c : cases) {
        lua_pushstring(L, "below");
        EXPECT_EQ(c.push(L), 1) << c.call;
        ASSERT_EQ(lua_gettop(L), 2) << c.call;  // one value, the constructor's first result
        EXPECT_STREQ(lua_tostring(L, -1), "made") << c.call;
        EXPECT_STREQ(lua_tostring(L, 1), "below") << c.call;
        lua_settop(L, 0);
        EXPECT_EQ(luaValue("args"), c.call);
    }
}

TEST_F(GeometryMarshallingTest, AMissingOrFailingConstructorLeavesItsErrorInPlace) {
    const struct {
        const char* setup;
        const char* value;
    } cases[] = {
        {"zeblua_CreateNewRectF32 = nil", "attempt to call a nil value"},
        {"function zeblua_CreateNewRectF32() error('refused', 0) end", "refused"},
        {"function zeblua_CreateNewRectF32() end", "nil"},
    };
    for (const auto& c : cases) {
        runLua(c.setup);
        lua_pushstring(L, "below");
        EXPECT_EQ(PushRect32ToLua(L, RectT<int>(1, 2, 3, 4)), 1);
        ASSERT_EQ(lua_gettop(L), 2) << c.setup;
        EXPECT_STREQ(luaL_typename(L, 1), "string");
        lua_setglobal(L, "result");
        lua_settop(L, 0);
        EXPECT_EQ(luaValue("result"), c.value) << c.setup;
    }
}

TEST_F(GeometryMarshallingTest, LayerTablesGoBackThroughTheReaders) {
    const struct {
        int (*push)(lua_State*);
        const char* read;
        std::string (*target)();
        const char* values;
        const char* printed;
    } cases[] = {
        {[](lua_State* L) { return PushRectF32ToLua(L, RectT<float>(1.5f, 2, 3, -4)); },
         "readRect(made)", rectText, "1.5 2 3 -4", "{left=1.5, top=2, width=3, height=-4}"},
        {[](lua_State* L) { return PushRect32ToLua(L, RectT<int>(-1, 2, 30, 40)); },
         "readRect32(made)", rect32Text, "-1 2 30 40", "{left=-1, top=2, width=30, height=40}"},
        {[](lua_State* L) { return PushPointF32ToLua(L, PointT<float>(-0.5f, 8)); },
         "readPoint(made)", pointText, "-0.5 8", "{x=-0.5, y=8}"},
        {[](lua_State* L) { return PushColorRGBAToLua(L, ColorRGBA(1, 0.5f, 0, 0.25f)); },
         "readColour(made)", colourText, "1 0.5 0 0.25", "{red=1, green=0.5, blue=0, alpha=0.25}"},
        {[](lua_State* L) {
             return PushMatrixF32ToLua(L, MatrixT<float>(1, 0, 5, 0, 2, 6, 0, 0, 1));
         },
         "readMatrix(made)", matrixText, "1 0 5 0 2 6 0 0 1", "{{1, 0, 5}, {0, 2, 6}, {0, 0, 1}}"},
    };
    for (const auto& c : cases) {
        c.push(L);
        lua_setglobal(L, "made");
        runLua(c.read);
        EXPECT_EQ(c.target(), c.values) << c.read;
        EXPECT_EQ(luaValue("tostring(made)"), c.printed) << c.read;
    }
}

TEST_F(GeometryMarshallingTest, LayerSurfaceAddsNoFields) {
    runLua(R"(
        function fieldCount(t) local n = 0 for _ in pairs(t) do n = n + 1 end return n end
        rect = zeblua_CreateNewRectF32(1, 2, 10, 20)
    )");
    EXPECT_EQ(luaValue("rect:right() .. ' ' .. rect:bottom()"), "11 22");
    EXPECT_EQ(luaValue("fieldCount(rect)"), "4");
    EXPECT_EQ(luaValue("fieldCount(zeblua_CreateNewPointF32(1, 2))"), "2");
    EXPECT_EQ(luaValue("fieldCount(zeblua_CreateNewRGBA(1, 2, 3, 4))"), "4");
    EXPECT_EQ(luaValue("fieldCount(zeblua_CreateNewMatrixF32(1, 2, 3, 4, 5, 6, 7, 8, 9))"), "3");
    // Methods never stand in for a field the reader asks for.
    runLua("rect.height = nil");
    EXPECT_NE(luaError("readRect(rect)").find("number expected, got nil"), std::string::npos);
    EXPECT_EQ(luaValue("tostring(rect)"), "{left=1, top=2, width=10, height=nil}");
}

TEST_F(GeometryMarshallingTest, ConvertRectRoundsTheEdgesThenTakesDifferences) {
    using zebcore::geom::ConvertRect;
    using zebcore::geom::RectRound;
    const struct {
        RectT<float> in;
        RectRound round;
        RectT<int> out;
    } cases[] = {
        {{0.2f, 0.2f, 0.2f, 0.2f}, zebcore::geom::kRectRound_OUT, {0, 0, 1, 1}},
        // Inward across less than a unit: left 1, right 0, a width of -1, kept.
        {{0.2f, 0.2f, 0.2f, 0.2f}, zebcore::geom::kRectRound_IN, {1, 1, -1, -1}},
        {{0.2f, 0.2f, 0.2f, 0.2f}, zebcore::geom::kRectRound_NEAREST, {0, 0, 0, 0}},
        {{-1.2f, -3.7f, 0.4f, 1}, zebcore::geom::kRectRound_OUT, {-2, -4, 2, 2}},
        {{-1.2f, -3.7f, 0.4f, 1}, zebcore::geom::kRectRound_IN, {-1, -3, 0, 0}},
        // Nearest: left -0.5 -> 0, top -1.5 -> -1, right 0.5 -> 1, bottom -0.5 -> 0.
        {{-0.5f, -1.5f, 1, 1}, zebcore::geom::kRectRound_NEAREST, {0, -1, 1, 1}},
        {{-2.5f, -2.4f, 0, 0}, zebcore::geom::kRectRound_NEAREST, {-2, -2, 0, 0}},
        // Beyond int, edges stop at its ends (NaN at 0), and so does the size between them.
        {{1e10f, -1e10f, 1, 1}, zebcore::geom::kRectRound_OUT, {INT_MAX, INT_MIN, 0, 0}},
        {{-1e10f, 0, 2e10f, NAN}, zebcore::geom::kRectRound_OUT, {INT_MIN, 0, INT_MAX, 0}},
    };
    for (const auto& c : cases) {
        const RectT<int> out = ConvertRect<RectT<int>, RectT<float>>(c.in, c.round);
        EXPECT_EQ(joined(out.left, out.top, out.width, out.height),
                  joined(c.out.left, c.out.top, c.out.width, c.out.height))
            << joined(c.in.left, c.in.top, c.in.width, c.in.height) << " by " << c.round;
    }
    EXPECT_EQ(assertExpressions(), "");

    // An unknown rounding is reported and rounds outward.
    const RectT<int> fallback = ConvertRect<RectT<int>, RectT<float>>(
        RectT<float>(0.2f, 0.2f, 0.2f, 0.2f), static_cast<RectRound>(7));
    EXPECT_EQ(fallback, RectT<int>(0, 0, 1, 1));
    EXPECT_EQ(assertExpressions(), "rect_round == kRectRound_OUT");
}

TEST_F(GeometryMarshallingTest, ConvertPointRoundsBothCoordinates) {
    using zebcore::geom::ConvertPoint;
    using zebcore::geom::PointRound;
    const struct {
        PointT<float> in;
        PointRound round;
        PointT<int> out;
    } cases[] = {
        {{0.5f, -0.5f}, zebcore::geom::kPointRound_ROUND, {1, 0}},
        {{2.5f, -2.5f}, zebcore::geom::kPointRound_ROUND, {3, -2}},
        {{0.2f, -0.2f}, zebcore::geom::kPointRound_CEIL, {1, 0}},
        {{0.2f, -0.2f}, zebcore::geom::kPointRound_FLOOR, {0, -1}},
        {{NAN, -INFINITY}, zebcore::geom::kPointRound_ROUND, {0, INT_MIN}},
        {{3e9f, -3e9f}, zebcore::geom::kPointRound_FLOOR, {INT_MAX, INT_MIN}},
    };
    for (const auto& c : cases) {
        const PointT<int> out = ConvertPoint<PointT<int>, PointT<float>>(c.in, c.round);
        EXPECT_EQ(joined(out.x, out.y), joined(c.out.x, c.out.y))
            << joined(c.in.x, c.in.y) << " by " << c.round;
    }
    EXPECT_EQ(assertExpressions(), "");

    // An unknown rounding is reported and rounds to the nearest value.
    EXPECT_EQ((ConvertPoint<PointT<int>, PointT<float>>(PointT<float>(-1.5f, 2.5f),
                                                        static_cast<PointRound>(9))),
              PointT<int>(-1, 3));
    EXPECT_EQ(assertExpressions(), "round == kPointRound_ROUND");
}

}  // namespace

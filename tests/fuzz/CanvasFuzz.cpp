// Fuzz target: drawing calls with arbitrary numbers through zebhost.canvas and the surface,
// path, pen, shader and image API, objects kept past their scope and used again.
#include <cstdint>

#include <lua.hpp>

#include "tests/fuzz/support/FuzzLua.h"

namespace {

const char* const kSetup = R"lua(
require "zeblua.inkwell.zebInkwell"
require "zeblua.inkwell.zebSurfaceInterface"
require "zeblua.inkwell.zebSupplier"
require "zeblua.inkwell.zebPathInterface"
require "zeblua.inkwell.PenInterface"
require "zeblua.inkwell.ShaderInterface"
require "zeblua.inkwell.zebImageInterface"
)lua";

// Slots of the objects an input works with, one table per input carried from round to
// round, so that objects of an ended scope, released ones included, are used again.
enum Slot { kInk = 1, kSurface, kPath, kPen, kShader, kImage, kOffscreen, kOffscreenInk, kSlots };

// A call: on the object in a slot (receiver 'K' an Inkwell, 'S' a surface, 'P' path, 'N'
// pen, 'H' shader, 'G' image) or, with receiver 0, the function of a global table. Its
// arguments by kind: n number, i small integer, t text, b boolean, a any value, c colour,
// r rect, p point, m matrix, or an object as for the receiver. A result goes to slot result.
struct Row {
    char receiver;
    const char* table;
    const char* name;
    const char* arguments;
    int result;
};
const Row kRows[] = {
    {'S', nullptr, "PushStateStack", "", 0},
    {'S', nullptr, "PopStateStack", "", 0},
    {'S', nullptr, "DrawString", "tnncinni", 0},
    {'S', nullptr, "MeasureStringWidth", "tn", 0},
    {'S', nullptr, "PaintRect", "rc", 0},
    {'S', nullptr, "DrawOutline", "rcnn", 0},
    {'S', nullptr, "DrawRoundedFill", "rcn", 0},
    {'S', nullptr, "StrokePath", "PN", 0},
    {'S', nullptr, "StrokePath", "Pcn", 0},
    {'S', nullptr, "FillPath", "Pca", 0},
    {'S', nullptr, "ShadePath", "PHa", 0},
    {'S', nullptr, "Transform", "m", 0},
    {'S', nullptr, "GetTransform", "", 0},
    {'S', nullptr, "Clip", "Pa", 0},
    {'S', nullptr, "GetClipBounds", "", 0},
    {'S', nullptr, "IsWithinClipBounds", "r", 0},
    {'S', nullptr, "DrawImage", "Gpn", 0},
    {'S', nullptr, "DrawImage2", "Grrn", 0},
    {'S', nullptr, "SetAntiAliasPolicy", "i", 0},
    {'S', nullptr, "GetAntiAliasPolicy", "", 0},
    {'S', nullptr, "GetSurfaceImage", "", kImage},
    {'S', nullptr, "Flush", "", 0},
    {'S', nullptr, "Release", "", 0},
    {'K', nullptr, "CreateOffscreenSurface", "iib", kOffscreen},
    {'K', nullptr, "GetSurface", "", kSurface},
    {'K', nullptr, "Release", "", 0},
    {0, "zebInkwell", "NewInkwell", "S", kOffscreenInk},
    {0, "zebInkwell", "MeasureStringWidth", "taant", 0},
    {0, "PathInterface", "newPath", "K", kPath},
    {0, "PenInterface", "newPen", "Kcn", kPen},
    {0, "Shader", "newLinearShader", "Kppcc", kShader},
    {0, "Shader", "newRadialShader", "Kppcc", kShader},
    {'P', nullptr, "MoveTo", "nn", 0},
    {'P', nullptr, "LineTo", "nn", 0},
    {'P', nullptr, "BezierTo", "ppp", 0},
    {'P', nullptr, "AddRect", "r", 0},
    {'P', nullptr, "AddArc", "pnnn", 0},
    {'P', nullptr, "ClosePath", "", 0},
    {'P', nullptr, "Release", "", 0},
    {'N', nullptr, "SetWidth", "n", 0},
    {'N', nullptr, "SetMiterLimit", "n", 0},
    {'N', nullptr, "SetLineJoin", "i", 0},
    {'N', nullptr, "SetLineCap", "i", 0},
    {'N', nullptr, "SetDashPattern", "nnnn", 0},
    {'N', nullptr, "GetWidth", "", 0},
    {'N', nullptr, "Release", "", 0},
    {'H', nullptr, "Release", "", 0},
    {'G', nullptr, "GetWidth", "", 0},
    {'G', nullptr, "Release", "", 0},
};

const char* const kPointFields[] = {"x", "y"};
const char* const kRectFields[] = {"left", "top", "width", "height"};
const char* const kColourFields[] = {"red", "green", "blue", "alpha"};

int sSlotsRef = LUA_NOREF;  // the input's slot table, for the drawing function

// The slot of an object kind; surfaces and Inkwells have two each.
int slotOf(char kind, FuzzedDataProvider& data) {
    switch (kind) {
    case 'K':
        return data.ConsumeBool() ? kInk : kOffscreenInk;
    case 'S':
        return data.ConsumeBool() ? kSurface : kOffscreen;
    case 'P':
        return kPath;
    case 'N':
        return kPen;
    case 'H':
        return kShader;
    default:
        return kImage;
    }
}

void pushMatrix(lua_State* L, FuzzedDataProvider& data) {
    lua_createtable(L, 3, 0);
    for (int row = 1; row <= 3; ++row) {
        lua_createtable(L, 3, 0);
        for (int column = 1; column <= 3; ++column) {
            zebfuzz::PushNumberLike(L, data);
            lua_rawseti(L, -2, column);
        }
        lua_rawseti(L, -2, row);
    }
}

void pushArgument(lua_State* L, int slots, FuzzedDataProvider& data, char kind) {
    if (data.ConsumeIntegralInRange(0, 31) == 0) return zebfuzz::PushAny(L, data);
    switch (kind) {
    case 'n':
        return lua_pushnumber(L, zebfuzz::ConsumeNumber(data));
    case 'i':
        return lua_pushinteger(L, data.ConsumeIntegralInRange(-2, 66));
    case 't':
        return zebfuzz::PushText(L, data, 24);
    case 'b':
        return lua_pushboolean(L, data.ConsumeBool());
    case 'a':
        return zebfuzz::PushAny(L, data);
    case 'c':
        return zebfuzz::PushRecord(L, data, kColourFields, 4);
    case 'r':
        return zebfuzz::PushRecord(L, data, kRectFields, 4);
    case 'p':
        return zebfuzz::PushRecord(L, data, kPointFields, 2);
    case 'm':
        return pushMatrix(L, data);
    default:
        lua_rawgeti(L, slots, slotOf(kind, data));
    }
}

// Offscreen surfaces are the script's to release (the collector leaves them), so one that
// is about to be dropped is released as a careful script would.
void releaseOffscreen(lua_State* L, int slots) {
    const int top = lua_gettop(L);
    lua_rawgeti(L, slots, kOffscreen);
    if (!lua_isnil(L, -1)) {
        lua_getfield(L, -1, "Release");
        lua_insert(L, -2);
        zebfuzz::Call(L, 1, 0);
    }
    lua_settop(L, top);
}

// One call, its failure discarded: a script that got an error goes on with its next call.
void runCall(lua_State* L, int slots, FuzzedDataProvider& data) {
    const Row& row = data.PickValueInArray(kRows);
    const int base = lua_gettop(L);
    int arguments = 0;
    if (row.receiver) {
        lua_rawgeti(L, slots, slotOf(row.receiver, data));
        if (lua_isnil(L, -1)) return lua_settop(L, base);
        lua_getfield(L, -1, row.name);
        lua_insert(L, -2);
        // Now and then a self of another kind, or no object at all.
        if (data.ConsumeIntegralInRange(0, 31) == 0) {
            lua_pop(L, 1);
            pushArgument(L, slots, data,
                         data.PickValueInArray({'K', 'S', 'P', 'N', 'H', 'G', 'a'}));
        }
        arguments = 1;
    } else {
        lua_getglobal(L, row.table);
        lua_getfield(L, -1, row.name);
        lua_remove(L, -2);
    }
    for (const char* kind = row.arguments; *kind && data.ConsumeIntegralInRange(0, 15) != 0;
         ++kind, ++arguments)
        pushArgument(L, slots, data, *kind);
    if (zebfuzz::Call(L, arguments, 1) == 0 && row.result && !lua_isnil(L, -1)) {
        if (row.result == kOffscreen) releaseOffscreen(L, slots);
        lua_rawseti(L, slots, row.result);
    }
    lua_settop(L, base);
}

// -- draw(ink): the calls of one round, on the input's slots; the Inkwell and its surface
// of this round's scope, when there is one, take the first two slots.
int draw(lua_State* L) {
    auto& data = *static_cast<FuzzedDataProvider*>(lua_touserdata(L, lua_upvalueindex(1)));
    lua_settop(L, 1);
    lua_rawgeti(L, LUA_REGISTRYINDEX, sSlotsRef); /* ink, slots */
    if (!lua_isnil(L, 1)) {
        lua_pushvalue(L, 1);
        lua_rawseti(L, 2, kInk);
        lua_getfield(L, 1, "GetSurface");
        lua_pushvalue(L, 1);
        lua_call(L, 1, 1);
        lua_rawseti(L, 2, kSurface);
    }
    for (int calls = data.ConsumeIntegralInRange(1, 24); calls > 0; --calls)
        runCall(L, 2, data);
    return 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static lua_State* const L = zebfuzz::OpenState(kSetup);
    FuzzedDataProvider data(bytes, size);
    lua_createtable(L, kSlots, 0);
    luaL_unref(L, LUA_REGISTRYINDEX, sSlotsRef);
    sSlotsRef = luaL_ref(L, LUA_REGISTRYINDEX);
    for (int rounds = data.ConsumeIntegralInRange(1, 3); rounds > 0; --rounds) {
        // A round inside a canvas's draw scope, or outside any scope with what is left.
        if (data.ConsumeIntegralInRange(0, 3) != 0) {
            lua_getglobal(L, "zebhost");
            lua_getfield(L, -1, "canvas");
            lua_remove(L, -2);
            lua_pushinteger(L, data.ConsumeIntegralInRange(1, 40));
            lua_pushinteger(L, data.ConsumeIntegralInRange(1, 40));
            lua_pushlightuserdata(L, &data);
            lua_pushcclosure(L, draw, 1);
            zebfuzz::Call(L, 3, 0);
        } else {
            lua_pushlightuserdata(L, &data);
            lua_pushcclosure(L, draw, 1);
            lua_pushnil(L);
            zebfuzz::Call(L, 1, 0);
        }
        lua_settop(L, 0);
    }
    lua_rawgeti(L, LUA_REGISTRYINDEX, sSlotsRef);
    releaseOffscreen(L, 1);
    zebfuzz::ExpectUsable(L);
    return 0;
}

// Fuzz target: the readers of geometry, colour and mouse event tables, and a round trip
// through the script layer's constructors for whatever they accept.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <type_traits>

#include <lua.hpp>

#include "tests/fuzz/support/FuzzLua.h"
#include "zeblua/inkwell/src/LuaInkwellTypeUtils.h"
#include "zeblua/ui/src/LuaInputEvents.h"
#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/MouseEvent.h"

namespace {

using zebcore::geom::MatrixT;
using zebcore::geom::PointT;
using zebcore::geom::RectT;
using zebui::inkwell::ColorRGBA;
using zebui::ui::MouseEvent;

// A mouse event as plain numbers, so that it can be compared and live across a raise.
struct MouseFields {
    float x, y;
    int action, button, clickCount, modKey, wheelDelta, wheelAxis;
};

const char* const kPointFields[] = {"x", "y"};
const char* const kRectFields[] = {"left", "top", "width", "height"};
const char* const kColourFields[] = {"red", "green", "blue", "alpha"};
const char* const kMouseFields[] = {"action", "button",          "clickCount",
                                    "modKey", "mouseWheelDelta", "mouseWheelAxis"};

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

// The readers and writers as closures over the native value (a light userdata upvalue),
// so that each runs under lua_pcall and a raise ends only its own frame.
template <class Value, void (*Read)(lua_State*, int, Value&)> int readValue(lua_State* L) {
    Read(L, 1, *static_cast<Value*>(lua_touserdata(L, lua_upvalueindex(1))));
    return 0;
}

template <class Value, int (*Push)(lua_State*, const Value&)> int pushValue(lua_State* L) {
    return Push(L, *static_cast<const Value*>(lua_touserdata(L, lua_upvalueindex(1))));
}

// The reader's contract: an empty pointer in, no other C++ object in the frame.
void readMouseEvent(lua_State* L, int index, MouseFields& fields) {
    std::unique_ptr<MouseEvent> event;
    if (!zeblua::ui::GetMouseEventFromLua(L, index, event)) return;
    fields = {event->GetPosition().x,
              event->GetPosition().y,
              static_cast<int>(event->GetAction()),
              event->GetButton(),
              event->GetClickCount(),
              event->GetModKey().GetValue(),
              event->GetMouseWheelDelta(),
              event->GetMouseWheelAxis()};
}

int pushMouseEvent(lua_State* L, const MouseFields& fields) {
    const MouseEvent event(static_cast<zebui::ui::MouseAction>(fields.action), fields.button,
                           fields.clickCount, PointT<float>(fields.x, fields.y),
                           zebui::ui::ModifierFlags(static_cast<unsigned char>(fields.modKey)),
                           zebui::ui::OS_Event(), fields.wheelDelta, fields.wheelAxis, 0, 0,
                           zebui::ui::SwipeDirection(), 0);
    return zeblua::ui::PushMouseEventToLua(L, event);
}

// Calls fn(arguments on the stack) with value as its upvalue; answers whether it ran.
bool callWith(lua_State* L, lua_CFunction fn, void* value, int arguments, int results) {
    lua_pushlightuserdata(L, value);
    lua_pushcclosure(L, fn, 1);
    lua_insert(L, -arguments - 1);
    return zebfuzz::Call(L, arguments, results) == 0;
}

// Equal element by element, NaN equal to NaN.
template <class Value, class Element> bool sameElements(const Value& a, const Value& b) {
    static_assert(std::is_trivially_copyable<Value>::value && sizeof(Value) % sizeof(Element) == 0);
    const auto* x = reinterpret_cast<const Element*>(&a);
    const auto* y = reinterpret_cast<const Element*>(&b);
    for (size_t i = 0; i < sizeof(Value) / sizeof(Element); ++i)
        if (!(x[i] == y[i] || (x[i] != x[i] && y[i] != y[i]))) return false;
    return true;
}

// A matrix as the reader walks it: rows of numbers, or any shape at all.
void pushMatrixTable(lua_State* L, FuzzedDataProvider& data) {
    const bool regular = data.ConsumeIntegralInRange(0, 3) != 0;
    const int rows = regular ? 3 : data.ConsumeIntegralInRange(0, 5);
    lua_createtable(L, rows, 0);
    for (int row = 1; row <= rows; ++row) {
        const int columns = regular ? 3 : data.ConsumeIntegralInRange(0, 5);
        lua_createtable(L, columns, 0);
        for (int column = 1; column <= columns; ++column) {
            zebfuzz::PushNumberLike(L, data);
            lua_rawseti(L, -2, column);
        }
        lua_rawseti(L, -2, row);
    }
}

void pushMouseTable(lua_State* L, FuzzedDataProvider& data) {
    zebfuzz::PushRecord(L, data, kMouseFields, 6);
    if (data.ConsumeIntegralInRange(0, 15) == 0) {
        zebfuzz::PushAny(L, data);  // a position that is no table
    } else {
        zebfuzz::PushRecord(L, data, kPointFields, 2);
    }
    lua_setfield(L, -2, "position");
}

// Reads the table on top into a value; what it accepts goes out through the writer and
// must read back the same.
template <class Value, class Element, void (*Read)(lua_State*, int, Value&),
          int (*Push)(lua_State*, const Value&)>
void roundTrip(lua_State* L, FuzzedDataProvider& data) {
    Value first{};
    int arguments = 1;
    if (data.ConsumeIntegralInRange(0, 15) == 0) {
        lua_pushnil(L);  // a nil after the table leaves the value as it was
        ++arguments;
    }
    if (!callWith(L, readValue<Value, Read>, &first, arguments, 0)) return;
    if (!callWith(L, pushValue<Value, Push>, &first, 0, 1))
        fail("a writer failed on what the reader accepted");
    Value second{};
    if (!callWith(L, readValue<Value, Read>, &second, 1, 0))
        fail("the reader refused what the writer made");
    if (!sameElements<Value, Element>(first, second)) fail("a round trip changed the value");
}

void pushKeyboardEvent(lua_State* L, FuzzedDataProvider& data) {
    const char16_t character = data.ConsumeIntegral<char16_t>();
    const zebui::ui::KeyboardEvent event(
        static_cast<zebui::ui::KeyboardAction>(data.ConsumeIntegralInRange(0, 2)),
        zebcore::UTF16String(data.ConsumeBool() ? 1 : 0, character),
        zebui::ui::KeyboardCode(data.ConsumeIntegral<unsigned>()),
        zebui::ui::ModifierFlags(data.ConsumeIntegral<unsigned char>()), data.ConsumeBool());
    if (!callWith(L, pushValue<zebui::ui::KeyboardEvent, zeblua::ui::PushKeyboardEventToLua>,
                  const_cast<zebui::ui::KeyboardEvent*>(&event), 0, 1) ||
        !lua_istable(L, -1))
        fail("the keyboard event writer made no table");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static lua_State* const L = zebfuzz::OpenState("");
    namespace ink = zeblua::inkwell;
    FuzzedDataProvider data(bytes, size);
    switch (data.ConsumeIntegralInRange(0, 6)) {
    case 0:
        zebfuzz::PushRecord(L, data, kPointFields, 2);
        roundTrip<PointT<float>, float, ink::GetPointF32FromLua, ink::PushPointF32ToLua>(L, data);
        break;
    case 1:
        zebfuzz::PushRecord(L, data, kRectFields, 4);
        roundTrip<RectT<float>, float, ink::GetRectF32FromLua, ink::PushRectF32ToLua>(L, data);
        break;
    case 2:
        zebfuzz::PushRecord(L, data, kRectFields, 4);
        roundTrip<RectT<int>, int, ink::GetRect32FromLua, ink::PushRect32ToLua>(L, data);
        break;
    case 3:
        zebfuzz::PushRecord(L, data, kColourFields, 4);
        roundTrip<ColorRGBA, float, ink::GetColorRGBAFromLua, ink::PushColorRGBAToLua>(L, data);
        break;
    case 4:
        pushMatrixTable(L, data);
        roundTrip<MatrixT<float>, float, ink::GetMatrixF32FromLua, ink::PushMatrixF32ToLua>(L,
                                                                                            data);
        break;
    case 5:
        pushMouseTable(L, data);
        roundTrip<MouseFields, int, readMouseEvent, pushMouseEvent>(L, data);
        break;
    default:
        pushKeyboardEvent(L, data);
    }
    zebfuzz::ExpectUsable(L);
    return 0;
}

// Keyboard and mouse events across the boundary, and the toolkit's input numbers as the
// script layer publishes them.
#include <memory>
#include <sstream>
#include <string>

#include <lua.hpp>

#include "tests/LuaTestFixture.h"
#include "zeblua/ui/src/LuaInputEvents.h"
#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/MouseEvent.h"

namespace {

using namespace zebui::ui;
using zeblua::ui::GetMouseEventFromLua;
using zeblua::ui::PushKeyboardEventToLua;
using zeblua::ui::PushMouseEventToLua;

// The reader's target: a static, so a raising reader unwinds past nothing that owns.
std::unique_ptr<MouseEvent> sMouseEvent;

// built = readMouse(table [, more])
int readMouse(lua_State* L) {
    lua_pushboolean(L, GetMouseEventFromLua(L, 1, sMouseEvent));
    return 1;
}

const int kNativeEvent = 0;  // its address stands for a platform event

MouseEvent nativeMouseEvent() {
    return MouseEvent(kMouseAction_Drag, kMouseButton_Right, 3, {12.5f, -4.25f},
                      ModifierFlags(kModifierKey_Shift | kModifierKey_Command),
                      OS_Event(&kNativeEvent), -3, kMouseWheelAxis_Horizontal, 1.5f, 2.0f,
                      kSwipeDirection_Left, 4);
}

// action button clickCount modKey wheelDelta wheelAxis x y, or "none".
std::string eventText(const MouseEvent* event) {
    if (!event) return "none";
    std::ostringstream text;
    text << event->GetAction() << ' ' << event->GetButton() << ' ' << event->GetClickCount() << ' '
         << int(event->GetModKey().GetValue()) << ' ' << event->GetMouseWheelDelta() << ' '
         << event->GetMouseWheelAxis() << ' ' << event->GetPosition().x << ' '
         << event->GetPosition().y;
    return text.str();
}

class InputEventMarshallingTest : public LuaTest {
protected:
    void SetUp() override {
        LuaTest::SetUp();
        sMouseEvent.reset();
        lua_register(L, "readMouse", readMouse);
        runLua(R"(
            function record(name)
              _G[name] = function(...)
                args = {...}
                for i = 1, select('#', ...) do args[i] = tostring(args[i]) end
                args = table.concat(args, ' ')
                return 'made'
              end
            end
        )");
    }
    void TearDown() override {
        sMouseEvent.reset();
        LuaTest::TearDown();
    }

    // Pushes with push, checks that exactly one value came and stores it as global name.
    template <class Push> void pushAs(const char* name, Push push) {
        const int top = lua_gettop(L);
        EXPECT_EQ(push(), 1);
        ASSERT_EQ(lua_gettop(L), top + 1) << name;
        lua_setglobal(L, name);
    }
};

TEST_F(InputEventMarshallingTest, PushesHandTheConstructorsTheirArgumentsInOrder) {
    runLua(
        "record('zeblua_CreateNewZEBUIMouseEvent') record('zeblua_CreateNewZEBUIKeyboardEvent')");
    const MouseEvent mouse = nativeMouseEvent();
    pushAs("made", [&] { return PushMouseEventToLua(L, mouse); });
    EXPECT_EQ(luaValue("made"), "made");
    EXPECT_EQ(luaValue("args"), "2 2 3 12.5 -4.25 9 -3 1");

    // Only the first UTF-16 unit crosses: here the high surrogate of U+1F600.
    const KeyboardEvent emoji(kKeyboardAction_Up, u"\U0001F600x", KeyboardCode(kKeyCode_A, 0x26),
                              ModifierFlags(kModifierKey_Shift | kModifierKey_Control), true);
    pushAs("made", [&] { return PushKeyboardEventToLua(L, emoji); });
    EXPECT_EQ(luaValue("args"), "1 55357 65 3 true");

    const KeyboardEvent modifierOnly(kKeyboardAction_FlagsChanged, u"", KeyboardCode(), 0, false);
    pushAs("made", [&] { return PushKeyboardEventToLua(L, modifierOnly); });
    EXPECT_EQ(luaValue("args"), "2 0 0 0 false");

    // A signed button stays negative.
    const MouseEvent odd(kMouseAction_Up, -1, -2, {0, 0}, 0, OS_Event(), 0, 0, 0, 0,
                         kSwipeDirection_None, 0);
    pushAs("made", [&] { return PushMouseEventToLua(L, odd); });
    EXPECT_EQ(luaValue("args"), "1 -1 -2 0 0 0 0 0");
}

TEST_F(InputEventMarshallingTest, AMissingConstructorLeavesItsErrorWhereTheTableWouldBe) {
    runLua("zeblua_CreateNewZEBUIMouseEvent = nil "
           "function zeblua_CreateNewZEBUIKeyboardEvent() error('no keys', 0) end");
    const MouseEvent mouse = nativeMouseEvent();
    pushAs("made", [&] { return PushMouseEventToLua(L, mouse); });
    EXPECT_EQ(luaValue("made"), "attempt to call a nil value");
    const KeyboardEvent key(kKeyboardAction_Down, u"a", KeyboardCode(kKeyCode_A), 0, false);
    pushAs("made", [&] { return PushKeyboardEventToLua(L, key); });
    EXPECT_EQ(luaValue("made"), "no keys");
}

TEST_F(InputEventMarshallingTest, MouseEventRoundTripLosesOnlyTheNativeParts) {
    const MouseEvent original = nativeMouseEvent();
    pushAs("event", [&] { return PushMouseEventToLua(L, original); });
    EXPECT_EQ(luaValue("tostring(event)"),
              "{action=2, button=2, clickCount=3, position={x=12.5, y=-4.25}, modKey=9, "
              "mouseWheelDelta=-3, mouseWheelAxis=1}");
    EXPECT_EQ(luaValue("event.action == zebhost.mouse.kDrag and event.button == "
                       "zebhost.buttons.kRight and event.mouseWheelAxis == "
                       "zebhost.wheelAxis.kHorizontal"),
              "true");
    EXPECT_EQ(luaValue("event:hasModifier(zebhost.modifiers.kCommand) and "
                       "not event:hasModifier(zebhost.modifiers.kControl)"),
              "true");

    EXPECT_EQ(luaValue("readMouse(event)"), "true");
    ASSERT_TRUE(sMouseEvent);
    EXPECT_EQ(eventText(sMouseEvent.get()), eventText(&original));
    EXPECT_FALSE(sMouseEvent->GetOSEvent().HasNativeEvent());
    EXPECT_EQ(sMouseEvent->GetMagnification(), 0.0f);
    EXPECT_EQ(sMouseEvent->GetRotation(), 0.0f);
    EXPECT_EQ(sMouseEvent->GetSwipeDirection(), kSwipeDirection_None);
    EXPECT_EQ(sMouseEvent->GetGesturePhase(), 0);

    const KeyboardEvent key(kKeyboardAction_Down, u"\u00e9", KeyboardCode(kKeyCode_F1), 0, true);
    pushAs("key", [&] { return PushKeyboardEventToLua(L, key); });
    EXPECT_EQ(luaValue("tostring(key)"),
              "{action=0, character=233, keyCode=272, modKey=0, isRepeat=true}");
    EXPECT_EQ(luaValue("key.keyCode == zebhost.keys.kF1"), "true");
}

TEST_F(InputEventMarshallingTest, MouseEventReaderConvertsEachField) {
    const std::string fields = "button=1, clickCount=2, modKey=0, mouseWheelDelta=0, "
                               "mouseWheelAxis=0, position={x=1, y=2}";
    const struct {
        std::string table;
        const char* event;
        const char* error;  // a part of the message, or "" for success
    } cases[] = {
        {"{action=1, button=1.9, clickCount=-2.7, modKey=257, mouseWheelDelta=-2.5, "
         "mouseWheelAxis='1', position={x=1.5, y='2'}, extra=true}",
         "1 1 -2 1 -2 1 1.5 2", ""},
        {"{action=2.9, " + fields + "}", "2 1 2 0 0 0 1 2", ""},
        {"{action=0, button=0, clickCount=0, modKey=-1, mouseWheelDelta=0, mouseWheelAxis=0, "
         "position={}}",
         "0 0 0 255 0 0 0 0", ""},
        {"{action=0, button=0, clickCount=0, modKey=0x1FF, mouseWheelDelta=0, mouseWheelAxis=0, "
         "position={y=3, x='nope'}}",
         "0 0 0 255 0 0 0 3", ""},
        // Beyond int, numbers stop at its ends and NaN gives 0.
        {"{action=1, button=1/0, clickCount=-1e10, modKey=0/0, mouseWheelDelta=2^31, "
         "mouseWheelAxis=-2^31-1, position={x=1, y=2}}",
         "1 2147483647 -2147483648 0 2147483647 -2147483648 1 2", ""},
        {"{" + fields + "}", "none",
         "test:1: bad argument #-1 to 'readMouse' (number expected, got nil)"},
        {"{action=1, button='left', clickCount=2, modKey=0, mouseWheelDelta=0, mouseWheelAxis=0, "
         "position={}}",
         "none", "number expected, got string"},
        {"{action=1, button=1, clickCount=2, modKey=0, mouseWheelDelta=0, mouseWheelAxis=0}",
         "none", "attempt to index a nil value"},
        {"{action=1, button=1, clickCount=2, modKey=0, mouseWheelDelta=0, mouseWheelAxis=0, "
         "position=5}",
         "none", "attempt to index a number value"},
        {"5", "none", "test:1: bad argument #1 to 'readMouse' (table expected, got number)"},
    };
    for (const auto& c : cases) {
        sMouseEvent.reset();
        const std::string call = "built = readMouse(" + c.table + ")";
        if (*c.error) {
            EXPECT_NE(luaError(call).find(c.error), std::string::npos) << c.table;
        } else {
            runLua(call);
            EXPECT_EQ(luaValue("built"), "true") << c.table;
        }
        EXPECT_EQ(eventText(sMouseEvent.get()), c.event) << c.table;
    }
}

TEST_F(InputEventMarshallingTest, MouseEventReaderOrderAndTheNilOnTop) {
    runLua(R"(
        log = {}
        local function logged(prefix, value)
          return setmetatable({}, {__index = function(_, key)
            log[#log + 1] = prefix .. key
            return key == 'position' and logged('position.', 0.5) or value
          end})
        end
        built = readMouse(logged('', 3))
    )");
    EXPECT_EQ(luaValue("table.concat(log, ' ')"),
              "action button clickCount modKey mouseWheelDelta mouseWheelAxis position "
              "position.x position.y");
    EXPECT_EQ(eventText(sMouseEvent.get()), "3 3 3 3 3 3 0.5 0.5");

    // A held event is replaced by the new one; a nil on top (a further argument, even
    // with a good table at 1) builds nothing, keeps the held event and raises nothing.
    const MouseEvent* held = sMouseEvent.get();
    runLua("event = zeblua_CreateNewZEBUIMouseEvent(1, 1, 1, 4, 5, 0, 0, 0)");
    EXPECT_EQ(luaValue("readMouse(event, nil)"), "false");
    EXPECT_EQ(sMouseEvent.get(), held);
    EXPECT_EQ(luaValue("readMouse(event, nil, 0)"), "true");
    EXPECT_EQ(eventText(sMouseEvent.get()), "1 1 1 0 0 0 4 5");
}

TEST_F(InputEventMarshallingTest, LayerPublishesTheToolkitsInputNumbers) {
    const struct {
        const char* expression;
        long value;
    } cases[] = {
        {"zebhost.mouse.kDown", kMouseAction_Down},
        {"zebhost.mouse.kSwipe", kMouseAction_Swipe},
        {"zebhost.buttons.kMiddle", kMouseButton_Middle},
        {"zebhost.wheelAxis.kHorizontal", kMouseWheelAxis_Horizontal},
        {"zebhost.swipe.kDown", kSwipeDirection_Down},
        {"zebhost.modifiers.kShift", kModifierKey_Shift},
        {"zebhost.modifiers.kFunction", kModifierKey_Function},
        {"zebhost.keyboard.kFlagsChanged", kKeyboardAction_FlagsChanged},
        {"zebhost.keys.kReturn", kKeyCode_Return},
        {"zebhost.keys.kKeypadEnter", kKeyCode_KeypadEnter},
        {"zebhost.keys.k0", kKeyCode_0},
        {"zebhost.keys.k9", kKeyCode_9},
        {"zebhost.keys.kA", kKeyCode_A},
        {"zebhost.keys.kZ", kKeyCode_Z},
        {"zebhost.keys.kF1", kKeyCode_F1},
        {"zebhost.keys.kF12", kKeyCode_F12},
        {"zebhost.focus.kWindow", kFocusChangeReason_Window},
    };
    for (const auto& c : cases)
        EXPECT_EQ(luaValue(c.expression), std::to_string(c.value)) << c.expression;
    EXPECT_EQ(luaValue("zebhost.keys.kF13"), "nil");
    // Published once, beside the host's functions, and the hook is gone.
    EXPECT_EQ(luaValue("getmetatable(zebhost)"), "nil");
    EXPECT_EQ(luaValue("type(zebhost.now) .. ' ' .. type(zebhost.inputCodes)"),
              "function function");
}

}  // namespace

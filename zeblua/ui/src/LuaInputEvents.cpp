// Keyboard and mouse event tables: made through the script layer, read back by name.
#include "zeblua/ui/src/LuaInputEvents.h"

#include <algorithm>
#include <limits>

#include <lua.hpp>

#include "zeblua/utility/src/LuaTableFields.h"
#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/MouseEvent.h"

namespace zeblua {
namespace ui {

namespace {

using utility::CheckNumberField;
using zebui::ui::KeyboardEvent;
using zebui::ui::MouseEvent;

const char* const kKeyboardEventConstructor = "zeblua_CreateNewZEBUIKeyboardEvent";
const char* const kMouseEventConstructor = "zeblua_CreateNewZEBUIMouseEvent";

// What a mouse event table holds, read before any C++ object is made. Trivially
// destructible: a bad field raises a Lua error while it is alive.
struct MouseEventFields {
    lua_Integer action;
    double button;
    double clickCount;
    double modKey;
    double mouseWheelDelta;
    double mouseWheelAxis;
    double x;
    double y;
};

// Pushes field name of the table at index (positive) and leaves its value on top.
void pushField(lua_State* L, int index, const char* name) {
    lua_pushstring(L, name);
    lua_gettable(L, index); /* value */
}

// The table's fields in their fixed order; raises on a missing or non-numeric number.
void readMouseEventFields(lua_State* L, int index, MouseEventFields& fields) {
    pushField(L, index, "action");
    luaL_checknumber(L, -1);
    fields.action = lua_tointeger(L, -1);
    lua_pop(L, 1);
    fields.button = CheckNumberField(L, index, "button");
    fields.clickCount = CheckNumberField(L, index, "clickCount");
    fields.modKey = CheckNumberField(L, index, "modKey");
    fields.mouseWheelDelta = CheckNumberField(L, index, "mouseWheelDelta");
    fields.mouseWheelAxis = CheckNumberField(L, index, "mouseWheelAxis");
    pushField(L, index, "position"); /* position */
    lua_pushstring(L, "x");
    lua_gettable(L, -2); /* position, x: a non-table position raises here */
    fields.x = lua_tonumber(L, -1);
    lua_pop(L, 1);
    lua_pushstring(L, "y");
    lua_gettable(L, -2); /* position, y */
    fields.y = lua_tonumber(L, -1);
    lua_pop(L, 2);
}

}  // namespace

int PushKeyboardEventToLua(lua_State* L, const KeyboardEvent& event) {
    lua_checkstack(L, 6);
    lua_getfield(L, LUA_GLOBALSINDEX, kKeyboardEventConstructor);
    lua_pushnumber(L, static_cast<unsigned int>(event.GetAction()));
    lua_pushnumber(L, static_cast<unsigned int>(event.GetCharacter(0)) & 0xFFFFu);
    lua_pushnumber(L, event.GetCode().GetValue(true));
    lua_pushnumber(L, event.GetModKey().GetValue());
    lua_pushboolean(L, event.IsRepeat());
    lua_pcall(L, 5, 1, 0); /* the table, or the constructor's error value */
    return 1;
}

int PushMouseEventToLua(lua_State* L, const MouseEvent& event) {
    lua_checkstack(L, 9);
    lua_getfield(L, LUA_GLOBALSINDEX, kMouseEventConstructor);
    lua_pushnumber(L, static_cast<unsigned int>(event.GetAction()));
    lua_pushnumber(L, event.GetButton());
    lua_pushnumber(L, event.GetClickCount());
    lua_pushnumber(L, event.GetPosition().x);
    lua_pushnumber(L, event.GetPosition().y);
    lua_pushnumber(L, event.GetModKey().GetValue());
    lua_pushnumber(L, event.GetMouseWheelDelta());
    lua_pushnumber(L, event.GetMouseWheelAxis());
    lua_pcall(L, 8, 1, 0); /* the table, or the constructor's error value */
    return 1;
}

bool GetMouseEventFromLua(lua_State* L, int index, std::unique_ptr<MouseEvent>& event) {
    luaL_checktype(L, index, LUA_TTABLE);
    if (lua_isnil(L, -1)) return false;
    MouseEventFields fields;
    readMouseEventFields(L, index, fields);

    // Every read has succeeded: from here on nothing raises.
    const auto action = static_cast<MouseEvent::Action>(static_cast<unsigned int>(fields.action));
    const zebui::ui::ModifierFlags modKey = ModifiersFromNumber(fields.modKey);
    const zebcore::geom::PointT<float> position(static_cast<float>(fields.x),
                                                static_cast<float>(fields.y));
    event.reset(new MouseEvent(
        action, TruncatedInt(fields.button), TruncatedInt(fields.clickCount), position, modKey,
        zebui::ui::OS_Event(), TruncatedInt(fields.mouseWheelDelta),
        TruncatedInt(fields.mouseWheelAxis), 0.0f, 0.0f, zebui::ui::kSwipeDirection_None, 0));
    return true;
}

int TruncatedInt(double value) {
    if (value != value) return 0;
    return static_cast<int>(std::clamp(value, static_cast<double>(std::numeric_limits<int>::min()),
                                       static_cast<double>(std::numeric_limits<int>::max())));
}

zebui::ui::ModifierFlags ModifiersFromNumber(double value) {
    return static_cast<unsigned char>(TruncatedInt(value) & 0xFF);
}

}  // namespace ui
}  // namespace zeblua

// zebhost's event injection and assertion report access.
#include "host/src/HostHarness.h"

#include <memory>

#include <boost/intrusive_ptr.hpp>
#include <lua.hpp>

#include "host/src/HostNodes.h"
#include "zebcore/debug/Debug.h"
#include "zebcore/utility/Strings.h"
#include "zeblua/ui/src/LuaInputEvents.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/ui/KeyboardEvent.h"
#include "zebui/ui/MouseEvent.h"
#include "zebui/ui/UI_Node.h"
#include "zebui/ui/UI_NodeManager.h"

namespace zebhost {
namespace {

namespace zui = zebui::ui;
using NodeP = boost::intrusive_ptr<zui::UI_Node>;
using zebcore::geom::PointT;

// A left-button pointer event at a point of root's coordinates, sent as a device does.
NodeP sendPointer(zui::UI_Node* root, zui::MouseAction action, const PointT<float>& at,
                  zui::ModifierFlags modifiers) {
    const int clicks = action == zui::kMouseAction_Move ? 0 : 1;
    const int button =
        action == zui::kMouseAction_Move ? zui::kMouseButton_None : zui::kMouseButton_Left;
    const zui::MouseEvent event(action, button, clicks, root->UI_LocalToGlobalF(at), modifiers,
                                zui::OS_Event(), 0, 0, 0, 0, zui::kSwipeDirection_None, 0);
    return zui::UI_NodeManager::Get(false)->DispatchMouseEventAt(root, event);
}

// Move to from, press, drag in steps to to, release: a click when both are the same.
NodeP pressAndRelease(zui::UI_Node* root, const PointT<float>& from, const PointT<float>& to,
                      int steps, zui::ModifierFlags modifiers) {
    const NodeP keep(root);
    sendPointer(root, zui::kMouseAction_Move, from, modifiers);
    const NodeP taker = sendPointer(root, zui::kMouseAction_Down, from, modifiers);
    for (int step = 1; step <= steps; ++step) {
        const float share = float(step) / float(steps);
        const PointT<float> at(from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share);
        sendPointer(root, zui::kMouseAction_Drag, at, modifiers);
    }
    sendPointer(root, zui::kMouseAction_Up, to, modifiers);
    return taker;
}

// Answers the wrapper that PrepareWrapperPush made room for: the node work answers.
template <class Work> int answerNode(lua_State* L, const char* name, Work work) {
    const bool pushed = zeblua::utility::RunNative(L, name, [&] {
        const NodeP taker = work();
        return FinishWrapperPush(L, taker);
    });
    return pushed ? 1 : lua_error(L);
}

int hostSendMouse(lua_State* L) {
    CheckNodeArgument(L, 1);
    std::unique_ptr<zui::MouseEvent> event;
    if (!zeblua::ui::GetMouseEventFromLua(L, 2, event)) return 0;
    zui::UI_Node* root = CheckNodeArgument(L, 1);  // the table's __index may have released it
    PrepareWrapperPush(L);
    return answerNode(L, "zebhost.sendMouse", [&] {
        const NodeP keep(root);
        const zui::MouseEvent& local = *event;
        const zui::MouseEvent global(
            local.GetAction(), local.GetButton(), local.GetClickCount(),
            root->UI_LocalToGlobalF(local.GetPosition()), local.GetModKey(), local.GetOSEvent(),
            local.GetMouseWheelDelta(), local.GetMouseWheelAxis(), local.GetMagnification(),
            local.GetRotation(), local.GetSwipeDirection(), local.GetGesturePhase());
        return zui::UI_NodeManager::Get(false)->DispatchMouseEventAt(root, global);
    });
}

int hostClick(lua_State* L) {
    zui::UI_Node* root = CheckNodeArgument(L, 1);
    const PointT<float> at(float(luaL_checknumber(L, 2)), float(luaL_checknumber(L, 3)));
    const auto modifiers = static_cast<unsigned char>(luaL_optinteger(L, 4, 0));
    PrepareWrapperPush(L);
    return answerNode(L, "zebhost.click",
                      [&] { return pressAndRelease(root, at, at, 0, modifiers); });
}

int hostDrag(lua_State* L) {
    zui::UI_Node* root = CheckNodeArgument(L, 1);
    const PointT<float> from(float(luaL_checknumber(L, 2)), float(luaL_checknumber(L, 3)));
    const PointT<float> to(float(luaL_checknumber(L, 4)), float(luaL_checknumber(L, 5)));
    const lua_Integer steps = luaL_optinteger(L, 6, 1);
    luaL_argcheck(L, steps >= 1 && steps <= 10000, 6, "steps out of range (1 to 10000)");
    PrepareWrapperPush(L);
    return answerNode(L, "zebhost.drag",
                      [&] { return pressAndRelease(root, from, to, int(steps), 0); });
}

// The fields of a key event table, read before anything native exists.
struct KeyFields {
    lua_Integer action = zui::kKeyboardAction_Down;
    lua_Integer keyCode = zui::kKeyCode_None;
    lua_Integer modKey = 0;
    bool isRepeat = false;
    lua_Integer character = -1;  // a UTF-16 unit, or -1 for none or text
    const char* text = nullptr;  // held by the table on the stack
    size_t textLength = 0;
};

// A number field of the table at index, or fallback when it is missing.
lua_Integer integerField(lua_State* L, int index, const char* name, lua_Integer fallback) {
    lua_getfield(L, index, name);
    const lua_Integer value = lua_isnil(L, -1) ? fallback : lua_tointeger(L, -1);
    lua_pop(L, 1);
    return value;
}

// Reads each field with lua_getfield, which may run the table's __index. The character
// is left on the stack, where it keeps the text alive.
KeyFields readKeyFields(lua_State* L, int index) {
    KeyFields fields;
    fields.action = integerField(L, index, "action", fields.action);
    fields.keyCode = integerField(L, index, "keyCode", fields.keyCode);
    fields.modKey = integerField(L, index, "modKey", 0);
    lua_getfield(L, index, "isRepeat");
    fields.isRepeat = lua_toboolean(L, -1) != 0;
    lua_pop(L, 1);
    lua_getfield(L, index, "character");
    if (lua_type(L, -1) == LUA_TNUMBER)
        fields.character = lua_tointeger(L, -1);
    else if (lua_type(L, -1) == LUA_TSTRING)
        fields.text = lua_tolstring(L, -1, &fields.textLength);
    return fields;
}

NodeP sendKeyEvent(zui::UI_Node* target, zui::KeyboardAction action,
                   const zebcore::UTF16String& characters, unsigned int keyCode,
                   zui::ModifierFlags modifiers, bool isRepeat) {
    const zui::KeyboardEvent event(action, characters, zui::KeyboardCode(keyCode), modifiers,
                                   isRepeat);
    return zui::UI_NodeManager::Get(false)->DispatchKeyboardEvent(target, event);
}

int hostSendKey(lua_State* L) {
    luaL_checktype(L, 1, LUA_TTABLE);
    const bool toTarget = !lua_isnoneornil(L, 2);
    if (toTarget) CheckNodeArgument(L, 2);
    lua_settop(L, 2); /* the fields go above */
    const KeyFields fields = readKeyFields(L, 1);
    zui::UI_Node* target = toTarget ? CheckNodeArgument(L, 2) : nullptr;
    PrepareWrapperPush(L);
    return answerNode(L, "zebhost.sendKey", [&] {
        const NodeP keep(target);
        zebcore::UTF16String characters;
        if (fields.character >= 0)
            characters.push_back(char16_t(fields.character));
        else if (fields.text)
            characters = zebcore::utility::UTF8to16(std::string(fields.text, fields.textLength));
        return sendKeyEvent(target, zui::KeyboardAction(fields.action), characters,
                            static_cast<unsigned int>(fields.keyCode),
                            static_cast<unsigned char>(fields.modKey), fields.isRepeat);
    });
}

// The virtual key of a typed character: letters, digits and space have one.
unsigned int keyCodeOf(char16_t unit) {
    if (unit >= u'a' && unit <= u'z') return zui::kKeyCode_A + (unit - u'a');
    if (unit >= u'A' && unit <= u'Z') return zui::kKeyCode_A + (unit - u'A');
    if (unit >= u'0' && unit <= u'9') return zui::kKeyCode_0 + (unit - u'0');
    return unit == u' ' ? zui::kKeyCode_Space : zui::kKeyCode_None;
}

int hostType(lua_State* L) {
    size_t length = 0;
    const char* text = luaL_checklstring(L, 1, &length);
    PrepareWrapperPush(L);
    return answerNode(L, "zebhost.type", [&] {
        const zebcore::UTF16String units = zebcore::utility::UTF8to16(std::string(text, length));
        NodeP taker;
        for (size_t at = 0; at < units.size();) {
            // A surrogate pair is one character, typed as one event.
            const bool pair = (units[at] & 0xFC00) == 0xD800 && at + 1 < units.size();
            const zebcore::UTF16String character = units.substr(at, pair ? 2 : 1);
            const unsigned int code = keyCodeOf(units[at]);
            taker = sendKeyEvent(nullptr, zui::kKeyboardAction_Down, character, code, 0, false);
            sendKeyEvent(nullptr, zui::kKeyboardAction_Up, character, code, 0, false);
            at += character.size();
        }
        return taker;
    });
}

// Pushes one report as {expression=, message=, file=, line=, function=}.
void pushReport(lua_State* L, const zebcore::debug::AssertReport& report) {
    lua_createtable(L, 0, 5);
    lua_pushlstring(L, report.expression.data(), report.expression.size());
    lua_setfield(L, -2, "expression");
    lua_pushlstring(L, report.message.data(), report.message.size());
    lua_setfield(L, -2, "message");
    lua_pushlstring(L, report.file.data(), report.file.size());
    lua_setfield(L, -2, "file");
    lua_pushinteger(L, report.line);
    lua_setfield(L, -2, "line");
    lua_pushlstring(L, report.function.data(), report.function.size());
    lua_setfield(L, -2, "function");
}

// The recorded reports belong to the process; only references to them exist here, so a
// push that raises leaves nothing behind.
int hostAssertReports(lua_State* L) {
    const auto& reports = zebcore::debug::RecordedAssertReports();
    lua_createtable(L, static_cast<int>(reports.size()), 0);
    for (size_t i = 0; i < reports.size(); ++i) {
        pushReport(L, reports[i]);
        lua_rawseti(L, -2, static_cast<int>(i + 1));
    }
    return 1;
}

int hostClearAssertReports(lua_State*) {
    zebcore::debug::ClearRecordedAssertReports();
    return 0;
}

const luaL_Reg kHarnessFunctions[] = {
    {"sendMouse", hostSendMouse},
    {"click", hostClick},
    {"drag", hostDrag},
    {"sendKey", hostSendKey},
    {"type", hostType},
    {"assertReports", hostAssertReports},
    {"clearAssertReports", hostClearAssertReports},
    {nullptr, nullptr},
};

}  // namespace

void OpenHostHarness(lua_State* L) {
    zeblua::utility::RegisterFunctionModule(L, "zebhost", kHarnessFunctions);
    lua_pop(L, 1);
}

}  // namespace zebhost

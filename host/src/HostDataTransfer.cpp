// zebhost's clipboard, last drag, drop gestures and current native event.
#include "host/src/HostDataTransfer.h"

#include <string>

#include <lua.hpp>

#include "host/src/HostNodes.h"
#include "os/CurrentEvent.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zeblua/utility/src/LuaResultString.h"
#include "zeblua/utility/src/RunNative.h"
#include "zebui/datatransfer/Clipboard.h"
#include "zebui/datatransfer/DataStore.h"
#include "zebui/datatransfer/DragSession.h"

namespace zebhost {
namespace {

namespace zdt = zebui::datatransfer;

// Pushes the UTF-8 form of text; the conversion's string belongs to Lua while it lives.
void pushUTF8(lua_State* L, const zebcore::UTF16String& text) {
    std::string* out = zeblua::utility::PushResultString(L);
    zeblua::utility::RunNative(L, "zebhost", [&] {
        *out = zebcore::utility::UTF16to8(text);
        return 0;
    });
    lua_pushlstring(L, out->data(), out->size());
    lua_replace(L, -2);
}

void setBoolean(lua_State* L, const char* name, bool value) {
    lua_pushboolean(L, value);
    lua_setfield(L, -2, name);
}

void setInteger(lua_State* L, const char* name, lua_Integer value) {
    lua_pushinteger(L, value);
    lua_setfield(L, -2, name);
}

int hostClipboard(lua_State* L) {
    const zdt::DataStore& contents = zdt::GetClipboardContents();
    lua_newtable(L);
    lua_newtable(L); /* contents, types */
    for (size_t index = 0; index < contents.Count(); ++index) {
        pushUTF8(L, contents.TypeAt(index));
        lua_pushvalue(L, -1);
        lua_rawseti(L, -3, static_cast<int>(index + 1)); /* types[i] = name */
        const zdt::DataBytes& bytes = contents.BytesAt(index);
        lua_pushlstring(L, reinterpret_cast<const char*>(bytes.data()), bytes.size());
        lua_rawset(L, -4); /* contents[name] = bytes */
    }
    lua_setfield(L, -2, "types");
    return 1;
}

int hostSetClipboard(lua_State* L) {
    luaL_checktype(L, 1, LUA_TTABLE);
    lua_pushnil(L);
    while (lua_next(L, 1)) {
        luaL_argcheck(L, lua_type(L, -2) == LUA_TSTRING && lua_type(L, -1) == LUA_TSTRING, 1,
                      "names and contents must be strings");
        lua_pop(L, 1);
    }
    return zeblua::utility::RunNative(L, "zebhost.setClipboard", [&] {
        zdt::DataStore contents;
        lua_pushnil(L);
        while (lua_next(L, 1)) {  // raw strings only: no conversion, no allocation
            size_t length = 0;
            const char* name = lua_tostring(L, -2);
            const char* bytes = lua_tolstring(L, -1, &length);
            contents.Put(zebcore::utility::UTF8to16(name), zdt::DataBytes(bytes, bytes + length));
            lua_pop(L, 1);
        }
        zdt::SetClipboardContents(contents);
        return 0;
    });
}

int hostLastDrag(lua_State* L) {
    const zdt::DragRecord& drag = zdt::GetLastDrag();
    if (drag.count == 0) return 0;
    lua_newtable(L);
    setInteger(L, "count", static_cast<lua_Integer>(drag.count));
    setInteger(L, "allowed", drag.allowedEffects);
    setInteger(L, "effect", drag.effect);
    setInteger(L, "depth", drag.depth);
    setBoolean(L, "cancelled", drag.cancelled);
    setBoolean(L, "dropped", drag.dropped);
    setBoolean(L, "hadNativeEvent", drag.hadNativeEvent);
    lua_pushlstring(L, drag.targetId.data(), drag.targetId.size());
    lua_setfield(L, -2, "target");
    lua_newtable(L);
    for (size_t index = 0; index < drag.types.size(); ++index) {
        pushUTF8(L, drag.types[index]);
        lua_rawseti(L, -2, static_cast<int>(index + 1));
    }
    lua_setfield(L, -2, "types");
    return 1;
}

int hostDropOn(lua_State* L) {
    CheckNodeArgument(L, 1);
    const float x = static_cast<float>(luaL_checknumber(L, 2));
    const float y = static_cast<float>(luaL_checknumber(L, 3));
    const lua_Number delayMs = luaL_optnumber(L, 4, 0);
    zebui::ui::UI_Node* root = CheckNodeArgument(L, 1);
    return zeblua::utility::RunNative(L, "zebhost.dropOn", [&] {
        zdt::QueueDropGesture(root, zebcore::geom::PointT<float>(x, y),
                              delayMs > 0 ? static_cast<zebui::ui::VirtualTime>(delayMs) : 0);
        return 0;
    });
}

// A stand-in native event: any non-null address does, nothing reads through it.
const char kHostNativeEvent = 0;

// The scope ends before fn's error is raised again, which a longjmp would skip.
int hostWithNativeEvent(lua_State* L) {
    luaL_checktype(L, 1, LUA_TFUNCTION);
    const int base = 0;
    int status = 0;
    {
        const os::CurrentEventScope current(&kHostNativeEvent);
        status = lua_pcall(L, lua_gettop(L) - 1, LUA_MULTRET, base);
    }
    if (status != 0) return lua_error(L);
    return lua_gettop(L);
}

const luaL_Reg functions[] = {
    {"clipboard", hostClipboard},
    {"setClipboard", hostSetClipboard},
    {"lastDrag", hostLastDrag},
    {"dropOn", hostDropOn},
    {"withNativeEvent", hostWithNativeEvent},
    {NULL, NULL},
};

}  // namespace

void OpenHostDataTransfer(lua_State* L) {
    zeblua::utility::RegisterFunctionModule(L, "zebhost", functions);
    lua_pop(L, 1);
}

}  // namespace zebhost

// zebCmdAttachment and the attachment that asks a script's table about commands.
#include "zeblua/uisupport/src/LuaCmdAttachment.h"

#include <cstring>

#include <lua.hpp>

#include "vex/app/App.h"
#include "zeblua/utility/src/LuaCallForms.h"
#include "zeblua/utility/src/LuaModule.h"

namespace zeb {
namespace lua {
namespace uisupport {

const char* const sLuaCmdIsHandledProp = "isHandled";
const char* const sLuaCmdIsEnabledProp = "isEnabled";
const char* const sLuaCmdIsCheckedProp = "isChecked";
const char* const sLuaCmdNewDisplayStringProp = "newDisplayString";

namespace {

using zeblua::utility::CallCleanup;

// What the protected frame needs; the outs point into the chain's caller.
struct DispatchCall {
    int ref;
    int commandId;
    vex::uisupport::UnifiedDispatchBase::EnableOuts* outs;
    bool answer;
};

// Never throws: an allocation failure keeps the old text.
void assignDisplayString(zebcore::UTF16String* target, const char* text) noexcept {
    try {
        *target = zebcore::utility::UTF8to16(zebcore::UTF8String(text, std::strlen(text)));
    } catch (...) {
    }
}

int protectedDispatch(lua_State* L) {
    DispatchCall* call = static_cast<DispatchCall*>(lua_touserdata(L, 1));
    lua_settop(L, 0);
    lua_rawgeti(L, LUA_REGISTRYINDEX, call->ref);
    if (!lua_istable(L, -1)) return 0;
    lua_getfield(L, -1, call->outs ? "doCmdEnable" : "doCmdHandle");
    lua_insert(L, -2); /* method, table */
    lua_pushinteger(L, call->commandId);
    if (!zeblua::utility::CallChecked(L, 2, 1, CallCleanup::kEmptyFrame)) return 0;
    call->answer = ReadCmdAnswer(L, -1, call->outs);
    lua_settop(L, 0);
    return 0;
}

// -- zebCmdAttachment.registerCmdAttachment(table)
// Anything but exactly one argument does nothing and answers nothing.
int registerCmdAttachment(lua_State* L) {
    if (lua_gettop(L) != 1) return 0;
    vex::app::App* app = vex::app::App::GetApp();
    if (!app) return 0;
    installAttachmentIntoHandler(L, -1, app);
    return 0;
}

const luaL_Reg cmd_funcs[] = {
    {"registerCmdAttachment", registerCmdAttachment},
    {nullptr, nullptr},
};

}  // namespace

bool ReadCmdAnswer(lua_State* L, int index,
                   const vex::uisupport::UnifiedDispatchBase::EnableOuts* outs) {
    if (!lua_istable(L, index)) return false;
    const int table = index < 0 ? lua_gettop(L) + index + 1 : index;
    lua_getfield(L, table, sLuaCmdIsHandledProp);
    const bool handled = lua_toboolean(L, -1) != 0;
    lua_pop(L, 1);
    if (!outs || !handled) return handled;
    lua_getfield(L, table, sLuaCmdIsEnabledProp);
    *outs->enabled = lua_toboolean(L, -1) != 0;
    lua_getfield(L, table, sLuaCmdIsCheckedProp);
    *outs->checked = lua_toboolean(L, -1) != 0;
    lua_getfield(L, table, sLuaCmdNewDisplayStringProp);
    const char* text = lua_tolstring(L, -1, nullptr); /* a number becomes its text */
    if (text) assignDisplayString(outs->displayString, text);
    lua_pop(L, 3);
    return true;
}

LuaCmdAttachment::LuaCmdAttachment(int ref, lua_State* L) : StateBound(L), mRef(ref) {}

LuaCmdAttachment::~LuaCmdAttachment() {
    if (lua_State* L = GetLuaState()) luaL_unref(L, LUA_REGISTRYINDEX, mRef);
}

bool LuaCmdAttachment::UnifiedDispatch(int commandId, EnableOuts* outs) {
    lua_State* L = GetLuaState();
    if (!L) return false;
    DispatchCall call{mRef, commandId, outs, false};
    if (lua_cpcall(L, protectedDispatch, &call) != 0) {
        lua_pop(L, 1); /* out of memory before the call: not handled */
        return false;
    }
    return call.answer;
}

void LuaCmdAttachment::OnStateClosing() {
    if (vex::uisupport::CommandHandler* handler = GetHandler()) handler->RemoveAttachment(this);
}

int LuaCmdAttachment::InitLua(lua_State* L) {
    zeblua::utility::RegisterFunctionModule(L, "zebCmdAttachment", cmd_funcs);
    return 1;
}

void installAttachmentIntoHandler(lua_State* L, int index,
                                  vex::uisupport::CommandHandler* handler) {
    luaL_checktype(L, index, LUA_TTABLE);
    lua_pushvalue(L, index);
    const int ref = luaL_ref(L, LUA_REGISTRYINDEX);
    if (!handler) {
        luaL_unref(L, LUA_REGISTRYINDEX, ref);
        return;
    }
    LuaCmdAttachment* attachment = nullptr;
    try {
        attachment = new LuaCmdAttachment(ref, L);
        handler->AddAttachment(attachment);
    } catch (...) {
        delete attachment;  // its destructor releases the reference
        return;
    }
}

}  // namespace uisupport
}  // namespace lua
}  // namespace zeb

extern "C" int luaopen_zeblua_zebCmdAttachment(lua_State* L) {
    return zeb::lua::uisupport::LuaCmdAttachment::InitLua(L);
}

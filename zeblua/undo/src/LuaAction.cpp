// Undo steps and restorers in Lua.
#include "zeblua/undo/src/LuaAction.h"

#include <lua.hpp>

#include "zebcore/debug/Debug.h"
#include "zebcore/utility/StringToNumber.h"
#include "zeblua/utility/src/LuaCallForms.h"
#include "zeblua/utility/src/LuaModule.h"
#include "zebundo/UndoHistory.h"

namespace zeblua {
namespace undo {
namespace {

struct MethodCall {
    int reference;
    const char* method;
};

int protectedMethodCall(lua_State* L) {
    const MethodCall* call = static_cast<const MethodCall*>(lua_touserdata(L, 1));
    lua_settop(L, 0);
    lua_rawgeti(L, LUA_REGISTRYINDEX, call->reference);
    if (lua_istable(L, -1)) {
        lua_getfield(L, -1, call->method);
        lua_pushvalue(L, -2);
        utility::CallNotify(L, 1);
    }
    lua_settop(L, 0);
    return 0;
}

const luaL_Reg cmd_funcs[] = {{nullptr, nullptr}};

}  // namespace

void CallTableMethod(lua_State* L, int reference, const char* method) {
    if (!L) return;
    MethodCall call{reference, method};
    if (lua_cpcall(L, protectedMethodCall, &call) != 0) lua_pop(L, 1);
}

LuaAction::LuaAction(bool inUndoable, bool inChangesDocument,
                     const zebcore::UTF8String& description, const zebcore::UTF8String& data,
                     lua_State* L)
    : zebundo::Action(inUndoable, inChangesDocument, zebcore::utility::UTF8to16(description)),
      StateBound(L), mData(data) {}

LuaAction::~LuaAction() {
    if (mData.empty()) return;
    if (lua_State* L = GetLuaState()) luaL_unref(L, LUA_REGISTRYINDEX, reference());
    mData.clear();
}

int LuaAction::reference() const {
    int ref = 0;
    zebcore::utility::StringToNumber(ref, zebcore::utility::UTF8to16(mData), 1);
    return ref;
}

void LuaAction::InvokeAction(const char* inAction) {
    ZEB_ASSERT(inAction != NULL);
    if (!inAction || mData.empty()) return;
    CallTableMethod(GetLuaState(), reference(), inAction);
}

void LuaAction::UndoSelf() {
    InvokeAction("handleActionUndo");
}

void LuaAction::RedoSelf() {
    InvokeAction("handleActionRedo");
}

void LuaAction::OnStateClosing() {
    zebundo::UndoHistory::Get()->Clear();
}

int LuaAction::InitLua(lua_State* L) {
    utility::RegisterFunctionModule(L, "zebUndoAction", cmd_funcs);
    return 1;
}

}  // namespace undo
}  // namespace zeblua
